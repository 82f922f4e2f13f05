#include "PageEncoding.h"

#include <optional>

#include "CustomHtml.h"
#include "EncodingLists.h"
#include "JointChange.h"
#include "OptionLoading.h"
#include "OptionSaving.h"
#include "RunTimeError.h"

namespace folionet {

std::string EncodingCode(std::string_view entry, std::string_view what) {
  const std::size_t blank = entry.find(' ');
  if (blank == std::string_view::npos) {
    throw RunTimeError(kInvalidProcedureCall, std::string(what),
                       "A code, a blank and a description were expected: \"" + std::string(entry) + "\"")
        .About(Subject::kSetting);
  }
  return std::string(entry.substr(0, blank));
}

namespace {

CodePage CodePageOf(const std::string& entry) {
  try {
    return CodePage(EncodingCode(entry, "Charset"));
  } catch (const RunTimeError&) {
    return CodePage();
  }
}

}  // namespace

CodePage StoredCodePage(const StoredSettings& store) {
  try {
    return CodePageOf(store.Text("Charset"));
  } catch (const RunTimeError&) {
    return CodePage();
  }
}

OwnFolder StoredOwnFolder(const StoredSettings& store, const std::string& programFolder) {
  return {programFolder, StoredCodePage(store), store.UnfinishedNote()};
}

OwnFolder OwnFolderOfRun(const StoredSettings& store, const std::string& programFolder) {
  OwnFolder own = StoredOwnFolder(store, programFolder);
  if (const auto stored = store.StoredText("Charset"); stored) own.codePage = CodePageOf(*stored);
  return own;
}

void SaveEncoding(SettingsStore& store, const std::string& programFolder, PageOptions& options) {
  const OwnFolder own = StoredOwnFolder(store, programFolder);
  const CodePage chosen = CodePageOf(options.frmEncoding.cboCharset);
  if (own.codePage.Name() == chosen.Name()) return SaveOptions(store, OptionPart::kEncoding, options);
  JointChange change(own.note);
  for (const std::string_view name : {kCustomHeader.fileName, kCustomFooter.fileName, std::string_view(kCharsetList),
                                      std::string_view(kLanguageList)}) {
    RecodeOwnText(own, name, chosen, change);
  }
  SaveOptions(store, OptionPart::kEncoding, options, change);
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

void TakeEncodingOf(const ImportedText& text, const StoredSettings& store, PageEncoding& encoding, UserInterface& ui) {
  if (!text.charset.empty() && !store.Has("Charset")) {
    encoding.PageCharset = text.charset;
    ui.SetPanel(3, "Charset: " + encoding.PageCharset);
  }
  if (!text.language.empty() && !store.Has("Lang")) {
    encoding.PageLanguage = text.language;
    ui.SetPanel(2, "Language: " + encoding.PageLanguage);
  }
}

}  // namespace folionet
