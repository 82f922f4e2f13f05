#pragma once

#include <string>
#include <string_view>

#include "modGlob.h"

namespace folionet {

// One of the 66 books of the Bible.
struct Book {
  std::string_view code;      // USFM code: "GEN", "1SA"
  std::string_view title;     // English title: "Genesis", "1 Samuel"
  std::string_view synonyms;  // other names and codes, as BookKey makes them, a blank between two: "ge gn"
};

// Book `number`, 1 (Genesis) to 66 (Revelation).
const Book& BookAt(int number);

// Whether a book has one chapter only, whose number is often left out: "Jude 5".
bool HasOneChapter(int number);

// The short label that Versalia keeps for a book: its code in the form "Gen", "1Sa".
std::string BookLabel(int number);

// What makes two spellings the same name: letters in lower case, blanks, "." "_" and "-" left out, a leading number
// in letters as a digit. "II Samuel", "2 samuel" and "2Samuel" all give "2samuel".
std::string BookKey(std::string_view name);

// The number of the book that a name means in any case: a code of USFM, OSIS or the VPL form, a common synonym, or a
// title in one of the languages of TitleLanguages, with its accents or without; 0 when it is none of them.
int FindBook(std::string_view name);

}  // namespace folionet
