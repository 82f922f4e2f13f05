#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "LineReader.h"
#include "Outcome.h"
#include "Sentence.h"
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

// Reads a file of book titles, up to the 66th line.
class BookTitleReader {
 public:
  // Throws RunTimeError for a file that cannot be opened.
  explicit BookTitleReader(const std::string& path);

  // Goes to the next line that is more than blanks; one of tabs has empty fields. False when there is none, and behind
  // the 66th. Throws RunTimeError when reading fails.
  bool Next();

  // Of the line at hand; how many were read, behind the last.
  std::size_t Book() const { return m_book; }
  std::string_view Line() const { return m_line; }

  // Throws RunTimeError (kInvalidProcedureCall) for a line with fewer than three fields.
  BookTitle Title() const;

  // Behind the last line: that books are missing; empty when there are 66.
  Sentence WhatIsMissing() const;

  const LineReader& Lines() const { return m_lines; }

 private:
  LineReader m_lines;
  std::string_view m_line;
  std::size_t m_book = 0;
};

// Reads a file of book titles from the folder of definitions into BookCodes and both book lists, which it clears first.
// Lines after the 66th are not read. Throws RunTimeError: kInvalidProcedureCall for a line with fewer than three
// fields, kInputPastEnd for fewer than 66 lines; the lists then hold what was read.
void ReadBookTitles(ModGlob& glob, const std::string& fileName);

// The names of the files BOOKS_*.txt (in any letter case) in the folder of definitions, sorted; none when the folder is
// missing. Throws RunTimeError when the folder cannot be read.
std::vector<std::string> LanguageFiles(const ModGlob& glob);

// Fills cboLang with the names of LanguageFiles. A failure, which a folder without any is too (kFileNotFound), is
// reported under "GetLang"; the list is then empty.
Outcome GetLang(ModGlob& glob, UserInterface& ui);

}  // namespace folionet
