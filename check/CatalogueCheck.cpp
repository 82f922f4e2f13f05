#include "CatalogueCheck.h"

#include <algorithm>

#include "Catalogue.h"
#include "Installation.h"
#include "LineReader.h"
#include "Paths.h"
#include "RecordReader.h"

namespace folionet {
namespace {

// Whether the text of a record can be read. One that is there and cannot be is not called missing.
bool CheckVerseFile(const RecordReader& records, const std::string& name, const std::string& text, FaultList& faults) {
  if (FileExists(text)) return true;
  std::string fault = "The text of " + Quoted(name) + " is missing: " + text;
  try {
    const LineReader reader(text);
  } catch (const RunTimeError& error) {
    if (error.Number() != kFileNotFound && error.Number() != kPathNotFound) {
      fault = "The text of " + Quoted(name) + " cannot be read: " + text + ": " + error.Detail();
    }
  }
  faults.Add(records.Lines().Path(), records.Lines().LineNumber(), fault);
  return false;
}

void CheckRecord(ModGlob& glob, const RecordReader& records, const CatalogueRecord& record, FaultList& faults) {
  const std::string& path = records.Lines().Path();
  const std::size_t line = records.Lines().LineNumber();
  faults.CheckBytes(path, line, record.name);
  faults.CheckBytes(path, line, record.stem);
  if (!record.isListed) return;
  const std::string text = VerseFile(glob, faults.Charset(), record.stem);
  if (!CheckVerseFile(records, record.name, text, faults)) return;
  if (std::find(glob.BibleFiles.begin(), glob.BibleFiles.end(), record.stem) != glob.BibleFiles.end()) {
    faults.Add(path, line, "The file stem is listed twice: " + Quoted(record.stem));
    return;
  }
  faults.CheckLetterCase(text, glob.ModulesPath + "Bible/" + faults.Charset().Decode(record.stem) + ".TXT");
  glob.BibleNames.push_back(record.name);
  glob.BibleFiles.push_back(record.stem);
}

}  // namespace

void CheckCatalogue(ModGlob& glob, FaultList& faults) {
  glob.BibleNames.clear();
  glob.BibleFiles.clear();
  try {
    const std::string path = SysdefsFile(glob, "Translations.txt");
    RecordReader records(path);
    faults.CheckLetterCase(path, glob.SysdefsPath + "Translations.txt");
    CatalogueRecord record;
    int listed = 0;
    for (bool more = true; more;) {
      try {
        more = ReadCatalogueRecord(records, faults.Charset(), record);
        if (more && record.isListed && ++listed > kMostListed) {
          more = false;
          FailMoreThanMostListed(records);
        }
        if (more) CheckRecord(glob, records, record, faults);
      } catch (const RunTimeError& error) {
        faults.Add(error);
        more = more && error.Line() != 0;  // a bad record is passed over; a file that cannot be read on is not
      }
    }
    if (glob.BibleNames.empty()) faults.Add(path, 0, "No translation is listed whose text is there.");
  } catch (const RunTimeError& error) {
    faults.Add(error);
  }
  glob.cboBibleName = glob.BibleNames;
}

}  // namespace folionet
