#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "LineReader.h"

namespace folionet {

// Reads a translation's text, one verse a line, fields separated by one tab: a field of Versalia's own, book, chapter,
// verse and text. The text is what follows the last tab; the verse is all between the third and the last.
//
//   1	1	1	1	In the beginning God created the heaven and the earth.
struct Verse {
  int book = 0;                // 1 to 66
  std::int16_t chapter = 0;    // the number
  std::string_view bookField;  // as they stand in the file; valid until the next verse is read
  std::string_view chapterField;
  std::string_view verse;
  std::string_view text;
};

class VerseFileReader {
 public:
  explicit VerseFileReader(const std::string& path) : m_lines(path) {}

  // Gives the next verse; false at the end of the file. Throws RunTimeError: kInvalidProcedureCall for a line with
  // fewer than four tabs, kSubscriptOutOfRange for a book outside 1 to 66, kTypeMismatch and kOverflow for a book or a
  // chapter that is no 16-bit number. `verse` then holds what was read of the line.
  bool Next(Verse& verse);

  const LineReader& Lines() const { return m_lines; }

 private:
  std::int64_t Number(std::string_view field, const char* what) const;
  void ReadPlace(const Verse& verse);

  LineReader m_lines;
  std::string m_place;           // the book's and the chapter's field of the line before, each with the tab behind it
  std::size_t m_bookLength = 0;  // of the book's field in it; 0 when m_place does not hold
  int m_book = 0;
  std::int16_t m_chapter = 0;
};

}  // namespace folionet
