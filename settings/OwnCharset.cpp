#include "OwnCharset.h"

#include <string_view>

#include "BuildInfo.h"
#include "CustomHtml.h"
#include "FileNames.h"
#include "JointChange.h"
#include "OptionTable.h"
#include "PageEncoding.h"
#include "RunTimeError.h"
#include "WholeFile.h"

namespace folionet {
namespace {

CodePage CodePageOf(const std::string& entry) {
  try {
    return CodePage(EncodingCode(entry + " ", "Charset"));
  } catch (const RunTimeError&) {
    return CodePage();
  }
}

std::string OwnCharset(const StoredSettings& store) {
  return store.UserText("Charset").value_or(std::string(FindOption("Charset")->defaultText));
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
  const bool isStored = store.UserText("Charset").has_value();
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

}  // namespace folionet
