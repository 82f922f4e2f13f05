#include "PageEncoding.h"

#include <optional>

#include "OptionLoading.h"
#include "OptionTable.h"
#include "RunTimeError.h"

namespace folionet {

std::string EncodingCode(std::string_view entry, std::string_view what) {
  const std::string_view code = CodeOfEntry(entry);
  if (code.empty()) {
    throw RunTimeError(kInvalidProcedureCall, std::string(what),
                       "A code, a blank and a description were expected: \"" + std::string(entry) + "\"")
        .About(Subject::kSetting);
  }
  return std::string(code);
}

std::string StoredLanguage(const StoredSettings& store) {
  try {
    return EncodingCode(store.Text("Lang"), "Lang");
  } catch (const RunTimeError&) {
    return {};
  }
}

std::string CodeOfText(const ImportedText& text, const StoredSettings& store, std::string_view key) {
  if (store.Has(key)) return {};
  return key == "Charset" ? text.charset : key == "Lang" ? text.language : std::string();
}

PageEncoding ReadPageEncoding(const StoredSettings& store, PageOptions& options, const ImportedText& imported,
                              UserInterface& ui) {
  std::optional<RunTimeError> failure;
  try {
    LoadOptions(store, OptionPart::kEncoding, options);
  } catch (const RunTimeError& error) {
    failure = error;
  }
  const auto show = [&](std::string_view key, const std::string& entry, int panel, const char* caption) {
    if (!options.maySave.test(PlaceOf(*FindOption(key)))) throw RunTimeError(*failure);
    const std::string stored = EncodingCode(entry, key);
    const std::string ofText = CodeOfText(imported, store, key);
    const std::string code = ofText.empty() ? stored : ofText;
    ui.SetPanel(panel, caption + code);
    return code;
  };
  PageEncoding encoding;
  encoding.PageCharset = show("Charset", options.frmEncoding.cboCharset, 3, "Charset: ");
  encoding.PageLanguage = show("Lang", options.frmEncoding.cboLang, 2, "Language: ");
  return encoding;
}

}  // namespace folionet
