#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "CodePage.h"
#include "Outcome.h"
#include "RecordReader.h"
#include "Sentence.h"
#include "UserInterface.h"
#include "modGlob.h"

namespace folionet {

// A record of the catalogue of translations, Sysdefs/Translations.txt, one a line: number, a number that is 0 here,
// display name, file stem. All in the bytes of the file:
//
//   1,0,"King James Version","KJV"
struct CatalogueRecord {
  static constexpr int kFirstUnlisted = 1000;  // from this number on, records are no translations

  std::string name;
  std::string stem;
  double number = 0;
  std::string numbers{};  // the first two fields, with the comma behind each

  bool IsListed() const { return number < kFirstUnlisted; }
};

// Reads the next record; nothing at the end of the file. Throws RunTimeError for a bad record.
std::optional<CatalogueRecord> ReadCatalogueRecord(RecordReader& records);

// Whether a file of this stem would lie in another folder than those of translations.
bool LeadsOut(std::string_view stem, const CodePage& codePage);

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

// What PopulateCombos fills: the book lists alone or, as for any other number, those of translations too.
inline constexpr int kBookLists = 0;
inline constexpr int kAllLists = 1;

// Fills the lists of the form: the book lists from the book-title file `cboLang` and, before them, those of the
// catalogue as `which` says. A failure is reported under "Populate Combos" with a warning, Versalia's two folders are
// asked for, and all of it starts again; on the fourth failure, or at the first where nobody can be asked, kEndProgram
// is given.
Outcome PopulateCombos(int which, const std::string& cboLang, ModGlob& glob, const CodePage& codePage,
                       UserInterface& ui);

// Why cboBibleName is empty, after a reading: what was looked for, and where. Nothing when it is not empty.
std::optional<Sentence> WhyNoTranslation(const ModGlob& glob);

// The place in BibleNames of an item of cboBibleName. Items stay when the catalogue is read again, so that translations
// may be listed twice; nothing for one that the last reading did not find.
std::optional<std::size_t> TranslationAt(const ModGlob& glob, std::size_t item);

}  // namespace folionet
