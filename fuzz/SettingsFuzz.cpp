// Reads any bytes as a settings file, takes every option from it, and writes texts that must read back as they were.

#include "FuzzFiles.h"
#include "IniText.h"
#include "OptionLoading.h"
#include "PageEncoding.h"
#include "RunTimeError.h"
#include "SilentUi.h"
#include "Text.h"
#include "Utf8.h"

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
    PageOptions options;
    LoadAllOptions(store, options);
  });
  Try([&] {
    PageOptions options;
    ReadPageEncoding(store, options, {}, ui);
  });
  PageOptions options;
  for (const Option& option : OptionTable()) {
    std::string text;
    bool isRead = false;
    Try([&] {
      text = store.Text(option.key);
      isRead = true;
    });
    if (!isRead) return;
    // A text has its option's form when it reads, and only then; free ones are read as one line.
    const bool isGood = CheckOption(option.form, IsFreeText(option.form) ? InOneLine(text) : text) == 0;
    Try([&] { LoadOption(store, option, options); });
    if (options.maySave.test(PlaceOf(option)) != isGood) std::abort();
    if (CheckOption(option.form, OptionText(option, options)) != 0) std::abort();
  }
}

void WriteAndRead(const std::string& text) {
  // Bytes that are no UTF-8 do not survive, and need not.
  if (!IsUtf8(text)) return;
  const IniValues values{{"Keys/Keywords", text}, {"Keys/Lang", "x"}, {"loose", text}};
  if (ParseIni(EditIni({}, {values.begin(), values.end()})) != values) std::abort();
}

// What is changed in any file is read back, and all else as before.
void EditAndRead(const std::string& file, const std::string& text) {
  if (!IsUtf8(text) || file.find('\0') != std::string::npos) return;
  Try([&] {
    IniValues wanted = ParseIni(file);
    wanted.insert_or_assign("Keys/Keywords", text);
    wanted.insert_or_assign("New/key", text);
    if (ParseIni(EditIni(file, {{"Keys/Keywords", text}, {"New/key", text}})) != wanted) std::abort();
  });
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
  EditAndRead(parts[0], parts[1]);
  return 0;
}
