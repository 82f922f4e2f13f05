#pragma once

#include <string_view>

namespace folionet {

// What becomes of the text behind a marker of USFM, which the styles of USX and the elements of USFX are as well.
enum class MarkerKind {
  kUnknown,
  kBook,              // \id: the code of the book, then a remark
  kHeader,            // \h: the short title
  kToc1,              // \toc1: the long title
  kToc2,              // \toc2: the short title of a table of contents
  kChapter,           // \c
  kVerse,             // \v
  kParagraph,         // paragraphs, lines of poetry, items of lists, rows of tables: their text is the text
  kCell,              // a cell of a table: a word's end
  kCanonicalTitle,    // \d
  kLeftOutParagraph,  // headings, introductions, remarks, labels
  kSidebar,           // \esb: left out up to \esbe
  kSidebarEnd,
  kCharacter,         // character styles: their text is the text
  kLeftOutCharacter,  // other numbers, figures, cross references outside notes
  kNote,              // left out up to its end
  kMilestone,         // holds attributes only
};

// The kind of a marker, without "\", "+" and "*": "q2", "wj", "qt-s".
MarkerKind KindOfMarker(std::string_view name);

}  // namespace folionet
