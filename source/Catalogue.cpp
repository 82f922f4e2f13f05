#include "Catalogue.h"

#include <algorithm>
#include <array>

#include "BookTitles.h"
#include "BuildInfo.h"
#include "ChosenText.h"
#include "FileNames.h"
#include "FolderLister.h"
#include "ImportedTextFile.h"
#include "Installation.h"
#include "Numbers.h"
#include "Paths.h"
#include "RunTimeError.h"

namespace folionet {
namespace {

void WarnOfWrongPaths(UserInterface& ui) {
  const std::string title = kApplicationTitle;
  ui.ShowMessage({MessageIcon::kWarning, "Path and/or file not found",
                  "This error has probably occured because you have an older version of Versalia\r\n"
                  "or because Versalia is not correctly installed.\r\n" +
                      title +
                      " will attempt to gather the correct information manually\r\n"
                      "You will need to enter the values for the following:\r\n"
                      "1. The Versalia Path\r\n"
                      "2. The Versalia Module Path"});
}

// False where nobody can be asked.
bool AskForPaths(ModGlob& glob, UserInterface& ui) {
  const auto install = ui.AskText({"Enter the Versalia Path", "Enter Versalia Path", "C:\\Program Files\\Versalia\\",
                                   LibraryFolder::kInstallation});
  if (!install) return false;
  const auto modules = ui.AskText({"Enter the Versalia Module Path", "Enter Module Path",
                                   "C:\\Program Files\\Versalia\\Modules\\", LibraryFolder::kModules});
  if (!modules) return false;
  SetInstallation(glob, *install, *modules, "SysDefs");
  return true;
}

}  // namespace

std::optional<CatalogueRecord> ReadCatalogueRecord(RecordReader& records) {
  std::array<std::string_view, 4> fields;
  if (!records.Next(fields)) return std::nullopt;
  CatalogueRecord record{std::string(fields[2]), std::string(fields[3]), records.Number(fields[0])};
  records.Integer(fields[1], kInt32Min, kInt32Max);
  record.numbers.append(fields[0]).append(",").append(fields[1]).append(",");
  return record;
}

bool LeadsOut(std::string_view stem, const CodePage& codePage) {
  const std::string name = codePage.Decode(stem);
  return std::any_of(name.begin(), name.end(),
                     [](char c) { return c == '/' || c == '\\' || static_cast<unsigned char>(c) < 0x20; });
}

void FailMoreThanMostListed(const RecordReader& records) {
  records.Lines().Fail(kOutOfMemory, "More than " + std::to_string(kMostListed) + " translations are listed.");
}

void ReadCatalogue(ModGlob& glob, const CodePage& codePage) {
  RecordReader records(SysdefsFile(glob, kCatalogueFile), Subject::kCatalogue);
  glob.BibleNames.assign(1, {});
  glob.BibleFiles.assign(1, {});
  glob.BibleImports.assign(1, {});
  glob.unreadableTexts.clear();
  glob.listedTranslations = 0;
  glob.firstText.clear();
  std::size_t counter = 0;
  int& listed = glob.listedTranslations;
  FolderLister folders;
  while (const auto record = ReadCatalogueRecord(records)) {
    if (!record->IsListed() || LeadsOut(record->stem, codePage)) continue;
    if (++listed > kMostListed) FailMoreThanMostListed(records);
    glob.BibleNames[counter] = record->name;
    glob.BibleFiles[counter] = record->stem;
    const std::string text = VerseFile(glob, codePage, record->stem, folders);
    if (!FileExists(text)) {
      if (MayBeThere(text)) glob.unreadableTexts.push_back(text);
      if (listed == 1) glob.firstText = text;
      continue;
    }
    try {
      glob.BibleImports[counter] = ReadImportedText(text).value_or(ImportedText());
    } catch (const RunTimeError&) {
      glob.unreadableTexts.push_back(ImportedTextFile(text));
      if (listed == 1) glob.firstText = text;
      continue;
    }
    ++counter;
    glob.BibleNames.resize(counter + 1);
    glob.BibleFiles.resize(counter + 1);
    glob.BibleImports.resize(counter + 1);
  }
  for (std::size_t i = 0; i < counter; ++i) {
    glob.cboBibleName.push_back(glob.BibleNames[i]);
    glob.cboBibleFile.push_back(glob.BibleFiles[i]);
  }
}

Outcome PopulateCombos(int which, const std::string& cboLang, ModGlob& glob, const CodePage& codePage,
                       UserInterface& ui) {
  constexpr int kLastRetry = 3;
  for (int failures = 0;;) {
    try {
      if (which != kBookLists) ReadCatalogue(glob, codePage);
      ReadBookTitles(glob, cboLang);
      if (glob.Imported.IsThere()) EncodeTitles(glob, codePage);
      return Outcome::kDone;
    } catch (const RunTimeError& error) {
      ui.ShowErrorReport({Procedure::kPopulateCombos, error});
    }
    WarnOfWrongPaths(ui);
    ++failures;
    if (!AskForPaths(glob, ui) || failures > kLastRetry) return Outcome::kEndProgram;
  }
}

std::optional<Sentence> WhyNoTranslation(const ModGlob& glob) {
  if (!glob.cboBibleName.empty()) return std::nullopt;
  if (!FolderExists(glob.ModulesPath)) {
    return Sentence{Words("QObject", "There is no translation, for there is no folder %1 of Versalia's modules."),
                    {glob.ModulesPath}};
  }
  const std::string catalogue = SysdefsFile(glob, kCatalogueFile);
  if (glob.listedTranslations == 0) {
    return Sentence{Words("QObject", "There is no translation, for the catalogue %1 lists none."), {catalogue}};
  }
  return Sentence{Words("QObject",
                        "There is no translation, for the text of none can be read: %1 lists %2, and the text of "
                        "the first was looked for in %3."),
                  {catalogue, std::to_string(glob.listedTranslations), glob.firstText}};
}

std::optional<std::size_t> TranslationAt(const ModGlob& glob, std::size_t item) {
  if (item >= glob.cboBibleFile.size()) return std::nullopt;
  const auto isThat = [&](std::size_t place) {
    return glob.BibleFiles[place] == glob.cboBibleFile[item] && glob.BibleNames[place] == glob.cboBibleName[item];
  };
  const std::size_t count = glob.BibleNames.empty() ? 0 : glob.BibleNames.size() - 1;
  if (item < count && isThat(item)) return item;
  for (std::size_t place = 0; place < count; ++place) {
    if (isThat(place)) return place;
  }
  return std::nullopt;
}

}  // namespace folionet
