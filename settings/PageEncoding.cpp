#include "PageEncoding.h"

#include <optional>

#include "BuildInfo.h"
#include "CustomHtml.h"
#include "EncodingLists.h"
#include "JointChange.h"
#include "OptionLoading.h"
#include "RunTimeError.h"
#include "WholeFile.h"

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

namespace {

CodePage CodePageOf(const std::string& entry) {
  try {
    return CodePage(EncodingCode(entry + " ", "Charset"));
  } catch (const RunTimeError&) {
    return CodePage();
  }
}

std::string OwnCharset(const StoredSettings& store) {
  return store.OwnText("Charset").value_or(std::string(FindOption("Charset")->defaultText));
}

// Adds to a change that all texts of a person's own come over to another code page.
void RecodeOwnTexts(const OwnFolder& own, const CodePage& to, JointChange& change) {
  for (const std::string_view name : {kCustomHeader.fileName, kCustomFooter.fileName, std::string_view(kCharsetList),
                                      std::string_view(kLanguageList)}) {
    RecodeOwnText(own, name, to, change);
  }
}

// Whether the header and the footer can be in a code page.
bool CanBeIn(const CodePage& codePage, const std::string& programFolder) {
  const auto fits = [&](const CustomHtmlKind& html) {
    try {
      const std::string text = ReadIfThere(programFolder + std::string(html.fileName)).value_or("");
      return codePage.FindUndecodable(text) == std::string::npos;
    } catch (const RunTimeError&) {
      return true;  // told when it is loaded
    }
  };
  return fits(kCustomHeader) && fits(kCustomFooter);
}

}  // namespace

std::string StoredLanguage(const StoredSettings& store) {
  try {
    return EncodingCode(store.Text("Lang"), "Lang");
  } catch (const RunTimeError&) {
    return {};
  }
}

CodePage StoredCodePage(const StoredSettings& store) { return CodePageOf(store.Text("Charset")); }

OwnFolder StoredOwnFolder(const StoredSettings& store, const std::string& programFolder) {
  store.ReadAnew();
  OwnFolder own{programFolder, StoredCodePage(store), store.UnfinishedNote()};
  if (!store.SitePath().empty()) own.codePage = CodePageOf(OwnCharset(store));
  return own;
}

OwnFolder OwnFolderToSave(const StoredSettings& store, const std::string& programFolder) {
  store.FinishChange();  // until then a text may be in another code page than the stored one
  return StoredOwnFolder(store, programFolder);
}

OwnFolder OwnFolderOfRun(const StoredSettings& store, const std::string& programFolder) {
  OwnFolder own = StoredOwnFolder(store, programFolder);
  const bool isStored = store.OwnText("Charset").has_value();
  if (isStored || !CanBeIn(own.codePage, programFolder)) own.codePage = CodePageOf(OwnCharset(store));
  return own;
}

void SaveEncoding(SettingsStore& store, const std::string& programFolder, const EncodingOptions& chosen) {
  const auto save = [&] {
    if (!chosen.cboCharset.empty()) store.SaveText("Charset", chosen.cboCharset);
    if (!chosen.cboLang.empty()) store.SaveText("Lang", chosen.cboLang);
  };
  if (!store.SitePath().empty()) return store.SaveTogether(save);
  const OwnFolder own = OwnFolderToSave(store, programFolder);
  const CodePage to = chosen.cboCharset.empty() ? own.codePage : CodePageOf(chosen.cboCharset);
  if (own.codePage.Name() == to.Name()) return store.SaveTogether(save);
  JointChange change(own.note);
  RecodeOwnTexts(own, to, change);
  store.SaveTogether(save, change);
}

void RestoreSettings(SettingsStore& store, const std::string& programFolder) {
  if (!store.SitePath().empty()) return store.RestoreSite();
  const OwnFolder own = OwnFolderToSave(store, programFolder);
  const CodePage to;
  if (own.codePage.Name() == to.Name()) return store.DeleteSetting(kApplicationTitle);
  JointChange change(own.note);
  RecodeOwnTexts(own, to, change);
  store.DeleteSettings(change);
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

std::string CodeOfText(const ImportedText& text, const StoredSettings& store, std::string_view key) {
  if (store.Has(key)) return {};
  return key == "Charset" ? text.charset : key == "Lang" ? text.language : std::string();
}

void TakeEncodingOf(const ImportedText& text, const StoredSettings& store, PageEncoding& encoding, UserInterface& ui) {
  if (const std::string code = CodeOfText(text, store, "Charset"); !code.empty()) {
    encoding.PageCharset = code;
    ui.SetPanel(3, "Charset: " + code);
  }
  if (const std::string code = CodeOfText(text, store, "Lang"); !code.empty()) {
    encoding.PageLanguage = code;
    ui.SetPanel(2, "Language: " + code);
  }
}

}  // namespace folionet
