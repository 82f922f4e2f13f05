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
  PageEncoding encoding;
  std::optional<RunTimeError> failure;
  try {
    LoadOptions(store, OptionPart::kEncoding, options);
  } catch (const RunTimeError& error) {
    failure = error;
  }
  const auto show = [&](std::string_view key, const std::string& entry, std::string& code) {
    if (!options.maySave.test(PlaceOf(*FindOption(key)))) throw RunTimeError(*failure);
    code = EncodingCode(entry, key);
  };
  show("Charset", options.frmEncoding.cboCharset, encoding.PageCharset);
  ui.SetPanel(3, "Charset: " + encoding.PageCharset);
  show("Lang", options.frmEncoding.cboLang, encoding.PageLanguage);
  ui.SetPanel(2, "Language: " + encoding.PageLanguage);
  if (const std::string code = CodeOfText(imported, store, "Charset"); !code.empty()) {
    encoding.PageCharset = code;
    ui.SetPanel(3, "Charset: " + code);
  }
  if (const std::string code = CodeOfText(imported, store, "Lang"); !code.empty()) {
    encoding.PageLanguage = code;
    ui.SetPanel(2, "Language: " + code);
  }
  return encoding;
}

}  // namespace folionet
