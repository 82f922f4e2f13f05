#include "PageEncoding.h"

#include <optional>

#include "OptionLoading.h"
#include "RunTimeError.h"

namespace folionet {

std::string EncodingCode(std::string_view entry, std::string_view what) {
  const std::size_t blank = entry.find(' ');
  if (blank == std::string_view::npos) {
    throw RunTimeError(kInvalidProcedureCall, std::string(what),
                       "A code, a blank and a description were expected: \"" + std::string(entry) + "\"");
  }
  return std::string(entry.substr(0, blank));
}

CodePage StoredCodePage(const StoredSettings& store) {
  try {
    return CodePage(EncodingCode(store.Text("Charset"), "Charset"));
  } catch (const RunTimeError&) {
    return CodePage();
  }
}

void LoadPageEncoding(const StoredSettings& store, PageOptions& options, PageEncoding& encoding, UserInterface& ui) {
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
}

}  // namespace folionet
