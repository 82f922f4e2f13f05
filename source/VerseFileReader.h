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
  std::string_view bookField;  // as they stand in the file
  std::string_view chapterField;
  std::string_view verse;
  std::string_view text;
};

class VerseFileReader {
 public:
  explicit VerseFileReader(const std::string& path) : m_lines(path, Subject::kVerseFile) {}
  VerseFileReader(const VerseFileReader&) = delete;
  VerseFileReader& operator=(const VerseFileReader&) = delete;

  // Goes on to the next verse; false at the end of the file, where blank lines do not count. Throws RunTimeError:
  // kInvalidProcedureCall for a line with fewer than four tabs, kSubscriptOutOfRange for a book outside 1 to 66,
  // kTypeMismatch and kOverflow for a book or a chapter that is no 16-bit number, and what LineReader throws.
  bool Next();

  // The verse at hand. After a failure, what was read of the line, or the verse before when nothing was; at the end of
  // the file the last one. Its texts are valid until the next call of Next.
  const Verse& Current() const { return m_verse; }

  // The last verse before the one at hand that has another book or chapter.
  const Verse& LastOfPlaceBefore() const { return m_before; }

  const LineReader& Lines() const { return m_lines; }

 private:
  std::int64_t Number(std::string_view field, const char* what) const;
  void TakePlace(std::string_view place);
  void KeepTexts();
  void KeepAsLastOfPlace();

  LineReader m_lines;
  Verse m_verse;
  std::string m_place;  // the book's and the chapter's field of m_verse, each with the tab behind it
  bool m_isPlaceRead = false;
  Verse m_before;
  std::string m_beforeTexts;
  std::string m_kept;  // the texts of m_verse while the lines' memory is filled anew
};

}  // namespace folionet
