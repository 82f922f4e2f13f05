#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// Reads verse files: plain text, one verse a line, "BOOK CHAPTER:VERSE TEXT", in any encoding that holds ASCII as
// ASCII.
//
//   Ge1:1 In the beginning God created the heaven and the earth.
//   GEN 1:1 In the beginning God created the heaven and the earth.
//   1 Samuel 3:4 That the LORD called Samuel: and he answered, Here am I.
//   II Kings 2:1: And it came to pass, when the LORD would take up Elijah
//
// Lines end in LF or CR LF; a UTF-8 byte-order mark at the start and blank lines are skipped. A colon after the verse
// number and the blanks before the text are no part of the text; a text may be empty. Books are known by USFM code,
// English title or a common synonym. A file with names that are none of these is read all the same when it has exactly
// 66 different names: the names then stand for the books in their order of appearance.

namespace folionet::tools {

struct Verse {
  int book = 0;      // 1 to 66
  int chapter = 0;   // 1 to 255
  int verse = 0;     // 1 to 255
  std::string text;  // as it stands in the file, but for tabs, which are blanks here
  std::size_t line = 0;
};

// The verses of `content`, sorted into books and chapters; within a chapter they keep the order of the file. `file`
// names the source in messages. Throws LibraryError for the first line that cannot be read, an unknown book, a verse
// that comes twice, and for a content without any verse.
std::vector<Verse> ParseVerses(std::string_view content, const std::string& file);

// What a whole Bible has and `verses`, sorted, lack: books ("Ruth", "Exodus to Joshua"), and chapters below the last
// one of a book that is there ("Genesis 3").
std::vector<std::string> MissingParts(const std::vector<Verse>& verses);

}  // namespace folionet::tools
