#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "CodePage.h"
#include "Outcome.h"
#include "RecordReader.h"
#include "Sentence.h"
#include "UserInterface.h"
#include "modGlob.h"

namespace folionet {

// One record of the catalogue of translations, Sysdefs/Translations.txt: number, integer, display name, file stem:
//
//   1,0,"King James Version","KJV"
struct CatalogueRecord {
  std::string name;
  std::string stem;
  bool isListed = false;  // its number is less than 1000
};

// Reads the next record; false at the end of the file. Throws RunTimeError for a bad record; kBadFileName is one whose
// stem would lead out of its folder.
bool ReadCatalogueRecord(RecordReader& records, const CodePage& codePage, CatalogueRecord& record);

// So many translations may be listed: each is looked for on the disk.
inline constexpr int kMostListed = 10000;

// Fails, at the line that was read last, with kOutOfMemory.
[[noreturn]] void FailMoreThanMostListed(const RecordReader& records);

// Reads the catalogue into BibleNames and BibleFiles and appends them to cboBibleName and cboBibleFile. Only records
// that are listed are considered, of which there may be 10,000; one whose stem is no file name is passed over, a
// translation whose text file is missing is left out, one whose text, or the file beside it of an imported one, is
// there and cannot be read is left out and noted in unreadableTexts. Both arrays keep one spare element at their end.
// Throws RunTimeError; cboBibleName is then unchanged.
void ReadCatalogue(ModGlob& glob, const CodePage& codePage);

// Fills the lists of the form: when `which` is not 0 the catalogue, and always the book lists from the book-title file
// `cboLang`. A failure is reported under "Populate Combos" with a warning, Versalia's two folders are asked for, and
// all of it starts again; on the fourth failure, or at the first where nobody can be asked, kEndProgram is given.
Outcome PopulateCombos(int which, const std::string& cboLang, ModGlob& glob, const CodePage& codePage,
                       UserInterface& ui);

// Why cboBibleName is empty, after a reading: what was looked for, and where. Nothing when it is not empty.
std::optional<Sentence> WhyNoTranslation(const ModGlob& glob);

// The place in BibleNames of an item of cboBibleName. Items stay when the catalogue is read again, so that translations
// may be listed twice; nothing for one that the last reading did not find.
std::optional<std::size_t> TranslationAt(const ModGlob& glob, std::size_t item);

}  // namespace folionet
