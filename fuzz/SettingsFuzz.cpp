// Reads any bytes as a settings file, takes every option from it, and writes texts that must read back as they were.

#include "CodePage.h"
#include "FuzzFiles.h"
#include "IniText.h"
#include "OptionRecords.h"
#include "PageEncoding.h"
#include "RunTimeError.h"
#include "SettingsKeys.h"
#include "SilentUi.h"

namespace folionet::fuzz {
namespace {

template <typename Load>
void Try(Load load) {
  try {
    load();
  } catch (const RunTimeError&) {
  }
}

void LoadAll(const std::string& folder) {
  const StoredSettings store(folder);
  SilentUi ui;
  Try([&] {
    MainOptions main;
    LoadPageOptions(store, main);
  });
  Try([&] {
    PageEncoding encoding;
    LoadPageEncoding(store, encoding, ui);
  });
  for (const SettingKey& key : SettingKeys()) {
    Try([&] {
      // A text has its key's form when it reads, and only then.
      const std::string text = store.Text(key.name);
      const bool isGood = CheckSetting(key.form, text) == 0;
      bool isRead = true;
      try {
        if (key.form == SettingForm::kFlag) store.Flag(key.name);
        if (key.form == SettingForm::kColour) store.ColourOf(key.name);
        if (key.form == SettingForm::kBoolean) store.Boolean(key.name);
        if (key.form == SettingForm::kNumber) store.Number(key.name);
        if (key.form == SettingForm::kPointSize) store.PointSize(key.name);
        if (key.form == SettingForm::kEntry) EncodingCode(text, key.name);
      } catch (const RunTimeError&) {
        isRead = false;
      }
      if (isGood != isRead) std::abort();
    });
  }
}

void WriteAndRead(const std::string& text) {
  // Bytes that are no UTF-8 do not survive, and need not.
  if (!IsUtf8(text)) return;
  const IniValues values{{"Keys/Keywords", text}, {"Keys/Lang", "x"}, {"loose", text}};
  if (ParseIni(BuildIni(values)) != values) std::abort();
}

}  // namespace
}  // namespace folionet::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace folionet::fuzz;
  static const Folder folder;
  const std::vector<std::string> parts = Parts(Text(data, size), 2);
  folder.Write("Folionet.ini", parts[0]);
  LoadAll(folder.Path());
  WriteAndRead(parts[1]);
  return 0;
}
