#include "PageEncoding.h"

#include "BuildInfo.h"
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

void LoadPageEncoding(const StoredSettings& store, PageEncoding& encoding, UserInterface& ui) {
  const std::string in = store.FilePath(kApplicationTitle) + ": ";
  encoding.PageCharset = EncodingCode(store.Text("Charset"), in + "Charset");
  ui.SetPanel(3, "Charset: " + encoding.PageCharset);
  encoding.PageLanguage = EncodingCode(store.Text("Lang"), in + "Lang");
  ui.SetPanel(2, "Language: " + encoding.PageLanguage);
}

}  // namespace folionet
