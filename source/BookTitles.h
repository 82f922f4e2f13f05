#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "LineReader.h"
#include "Outcome.h"
#include "UserInterface.h"
#include "modGlob.h"

namespace folionet {

// A line of a file of book titles: fields separated by tabs, the code the second, the title the last. One line a book,
// in canonical order:
//
//   1	Gen	Genesis
struct BookTitle {
  std::string code;
  std::string title;
};

// As LineReader::NextNotBlank, but a line of tabs is given too: its fields are empty.
bool NextTitleLine(LineReader& lines, std::string_view& line);

// Throws RunTimeError (kInvalidProcedureCall) for a line with fewer than three fields.
BookTitle ParseBookTitle(const LineReader& lines, std::string_view line);

// Reads a file of book titles from the folder of definitions into BookCodes and both book lists, which it clears first.
// Lines after the 66th are not read. Throws RunTimeError: kInvalidProcedureCall for a line with fewer than three
// fields, kInputPastEnd for fewer than 66 lines; the lists then hold what was read.
void ReadBookTitles(ModGlob& glob, const std::string& fileName);

// The names of the files BOOKS_*.txt (in any letter case) in the folder of definitions, sorted; none when the folder is
// missing. Throws RunTimeError when the folder cannot be read.
std::vector<std::string> LanguageFiles(const ModGlob& glob);

// Fills cboLang with the names of LanguageFiles. A failure, which a folder without
// any is too (kFileNotFound), is reported under "GetLang"; the list is then empty.
Outcome GetLang(ModGlob& glob, UserInterface& ui);

}  // namespace folionet
