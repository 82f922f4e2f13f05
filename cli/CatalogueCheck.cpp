#include "CatalogueCheck.h"

#include <algorithm>

#include "Catalogue.h"
#include "Installation.h"
#include "LineReader.h"
#include "Paths.h"
#include "RecordReader.h"

namespace folionet {
namespace {

void CheckRecord(ModGlob& glob, const RecordReader& records, const CatalogueRecord& record, FaultList& faults) {
  const std::string& path = records.Lines().Path();
  const std::size_t line = records.Lines().LineNumber();
  faults.CheckBytes(path, line, record.name);
  faults.CheckBytes(path, line, record.stem);
  if (!record.isListed) return;
  const std::string text = VerseFile(glob, faults.Charset(), record.stem);
  if (!FileExists(text)) {
    faults.Add(path, line, "The text of " + Quoted(record.name) + " is missing: " + text);
    return;
  }
  faults.CheckLetterCase(text, glob.ModulesPath + "Bible/" + faults.Charset().Decode(record.stem) + ".TXT");
  if (std::find(glob.BibleFiles.begin(), glob.BibleFiles.end(), record.stem) != glob.BibleFiles.end()) {
    faults.Add(path, line, "The file stem is listed twice: " + Quoted(record.stem));
  }
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
    for (bool more = true; more;) {
      try {
        more = ReadCatalogueRecord(records, faults.Charset(), record);
        if (more) CheckRecord(glob, records, record, faults);
      } catch (const RunTimeError& error) {
        faults.Add(error);
        more = error.Line() != 0;  // a bad record is passed over; a file that cannot be read on is not
      }
    }
    if (glob.BibleNames.empty()) faults.Add(path, 0, "No translation is listed whose text is there.");
  } catch (const RunTimeError& error) {
    faults.Add(error);
  }
  glob.cboBibleName = glob.BibleNames;
}

}  // namespace folionet
