// Reads any bytes as a settings file, takes every option from it, and stores texts that must read back as they were.

#include <QString>
#include <optional>

#include "FuzzFiles.h"
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
      } catch (const RunTimeError&) {
        isRead = false;
      }
      if (isGood != isRead) std::abort();
    });
  }
}

void SaveAndRead(const std::string& folder, const std::string& text) {
  SettingsStore(folder).SaveText("Keywords", text);
  // Bytes that are no UTF-8 do not survive, and need not.
  const bool isUtf8 = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())).toStdString() == text;
  const bool isSame = SettingsStore(folder).Text("Keywords") == text;
  if (isUtf8 && !isSame) std::abort();
}

}  // namespace
}  // namespace folionet::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace folionet::fuzz;
  static const Folder root;
  // QSettings keeps what it knows of a file's path, so that each input is given a path of its own.
  static int number = 0;
  const std::string folder = root.Path() + std::to_string(++number);
  std::filesystem::create_directory(folder);
  const std::vector<std::string> parts = Parts(Text(data, size), 2);
  root.Write(std::to_string(number) + "/Folionet.ini", parts[0]);
  LoadAll(folder);
  SaveAndRead(folder, parts[1]);
  std::filesystem::remove_all(folder);
  return 0;
}
