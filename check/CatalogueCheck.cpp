#include "CatalogueCheck.h"

#include <algorithm>
#include <optional>

#include "Catalogue.h"
#include "CharsetCheck.h"
#include "FileNames.h"
#include "ImportedTextFile.h"
#include "Installation.h"
#include "LineReader.h"
#include "Paths.h"
#include "RecordReader.h"
#include "Text.h"

namespace folionet {
namespace {

// Whether the text of a record can be read. One that is there and cannot be is not called missing.
bool CheckVerseFile(const RecordReader& records, const std::string& name, const std::string& text,
                    CheckedLibrary& library) {
  if (FileExists(text)) return true;
  FindingKind kind = "missing-text";
  Sentence what{"The text of %1 is missing: %2", {Quoted(name), text}};
  try {
    const LineReader reader(text, Subject::kVerseFile);
  } catch (const RunTimeError& error) {
    if (error.Number() != kFileNotFound && error.Number() != kPathNotFound) {
      kind = "unreadable";
      what = {"The text of %1 cannot be read: %2: %3", {Quoted(name), text, error.Detail()}};
    }
  }
  library.Add(kind, records.Lines().Path(), records.Lines().LineNumber(), std::move(what));
  return false;
}

// What stands beside the text of a record where that was imported; nothing, and a finding, where it cannot be read.
std::optional<ImportedText> CheckImported(const RecordReader& records, const std::string& name, const std::string& text,
                                          CheckedLibrary& library) {
  try {
    return ReadImportedText(text).value_or(ImportedText());
  } catch (const RunTimeError& error) {
    library.Add("unreadable", records.Lines().Path(), records.Lines().LineNumber(),
                {"The text of %1 cannot be read: %2: %3", {Quoted(name), error.Item(), error.Detail()}});
    return std::nullopt;
  }
}

void CheckRecord(const RecordReader& records, const CatalogueRecord& record, CheckedLibrary& library) {
  ModGlob& glob = library.glob;
  const std::string& path = records.Lines().Path();
  const std::size_t line = records.Lines().LineNumber();
  const std::string text =
      record.IsListed() ? VerseFile(glob, library.codePage, record.stem, library.folders) : std::string();
  const auto imported = record.IsListed() ? CheckImported(records, record.name, text, library) : ImportedText();
  if (!imported) return;
  // The name of an imported translation is in UTF-8 where windows-1252 lacks its characters.
  if (!imported->IsThere()) CheckName(library, path, line, record.name);
  library.CheckBytes(path, line, record.stem);
  if (!record.IsListed()) return;
  if (!CheckVerseFile(records, record.name, text, library)) return;
  if (std::find(glob.BibleFiles.begin(), glob.BibleFiles.end(), record.stem) != glob.BibleFiles.end()) {
    library.Add("doubled-stem", path, line, {"The file stem is listed twice: %1", {Quoted(record.stem)}});
    return;
  }
  library.CheckLetterCase(text, glob.ModulesPath + kVerseFolder + library.codePage.Decode(record.stem) + kVerseEnding);
  glob.BibleNames.push_back(record.name);
  glob.BibleFiles.push_back(record.stem);
  glob.BibleImports.push_back(*imported);
}

}  // namespace

void CheckCatalogue(CheckedLibrary& library) {
  ModGlob& glob = library.glob;
  glob.BibleNames.clear();
  glob.BibleFiles.clear();
  glob.BibleImports.clear();
  try {
    const std::string path = SysdefsFile(glob, kCatalogueFile);
    RecordReader records(path, Subject::kCatalogue);
    library.CheckLetterCase(path, glob.SysdefsPath + kCatalogueFile);
    int listed = 0;
    for (bool more = true; more;) {
      try {
        const auto record = ReadCatalogueRecord(records);
        more = record.has_value();
        if (!record) break;
        if (record->IsListed() && LeadsOut(record->stem, library.codePage)) {
          records.Lines().Fail(kBadFileName, "A file name without a folder was expected: " + Quoted(record->stem));
        }
        if (record->IsListed() && ++listed > kMostListed) {
          more = false;
          FailMoreThanMostListed(records);
        }
        CheckRecord(records, *record, library);
      } catch (const RunTimeError& error) {
        library.findings.Add(FindingOf(error));
        more = more && error.Line() != 0;  // a bad record is passed over; a file that cannot be read on is not
      }
    }
    if (glob.BibleNames.empty())
      library.Add("no-translation", path, 0, {"No translation is listed whose text is there."});
  } catch (const RunTimeError& error) {
    library.findings.Add(FindingOf(error));
  }
  glob.cboBibleName = glob.BibleNames;
  glob.BibleNames.emplace_back();
  glob.BibleFiles.emplace_back();
  glob.BibleImports.emplace_back();
}

}  // namespace folionet
