#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "CodePage.h"
#include "Outcome.h"
#include "UserInterface.h"
#include "modGlob.h"

namespace folionet {

// The chapter index of a translation, Index/<stem>.TXT.INDEX: one record a chapter, in canonical order, of seven
// fields; the third is the book, the fourth the chapter, the fifth the number of verses, the others are Versalia's own:
//
//   1,0,1,1,31,4521,"Gen"
//
// BooksInChapters and LoadVerseCount share one reading of the file, for as long as it stays as it is.

// Counts the chapters of each book of the translation at place `translation` of BibleFiles into ChaptersInBook, which
// it clears first. Books are numbered by order of appearance: a change of the third field starts the next book. Of an
// imported text, as `glob` tells the chosen one, they have the numbers of the third field, the count is the highest
// chapter, and missingChapters gets those before it that are not there. A missing index is told in a box and gives
// kEndProgram; a place that is none, a 67th book or a bad record is reported under "BooksInChapters" and gives
// kReported, with the counts up to there.
Outcome BooksInChapters(ModGlob& glob, std::size_t translation, const CodePage& codePage, UserInterface& ui);

// Reads the index at `path` into ChapterIndex: its records in order and one more that is all zero. Any failure, which a
// number above 255 is too, is reported under "Load Verse Count", told in a box, and gives kEndProgram.
Outcome LoadVerseCount(ModGlob& glob, const std::string& path, UserInterface& ui);

// The chapters of each book, element 0 unused, of the translation whose index was loaded last: those that
// ChaptersInBook holds once BooksInChapters has counted them, which a compile does anew.
using ChapterCounts = std::array<int, kBooks + 1>;
ChapterCounts CountChapters(const ModGlob& glob);

// Looks verse counts up in ChapterIndex, as it and the start-book list were when this was made.
class VerseCounts {
 public:
  explicit VerseCounts(const ModGlob& glob);

  // The number of verses of a chapter as decimal text, the empty text when unknown. The book is known by its title's
  // last place in the start-book list, the chapter by the number that its text begins with. A failure (a chapter that
  // does not fit 16 bits) is reported under "GetVSCnt" and gives the empty text.
  std::string GetVSCnt(std::string_view bookTitle, std::string_view chapter, UserInterface& ui) const {
    return GetVSCnt(BookOf(bookTitle), chapter, ui);
  }

  // The same in two steps, for the many chapters of one book.
  int BookOf(std::string_view title) const;
  std::string GetVSCnt(int book, std::string_view chapter, UserInterface& ui) const;

 private:
  std::unordered_map<std::string, int> m_bookOfTitle;
  std::vector<std::int16_t> m_verses;  // by 256 * book + chapter; -1 for none
};

}  // namespace folionet
