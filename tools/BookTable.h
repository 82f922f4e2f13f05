#pragma once

#include <string>
#include <string_view>

namespace folionet::tools {

inline constexpr int kBookCount = 66;

// One of the 66 books of the Bible.
struct Book {
  std::string_view code;      // USFM code: "GEN", "1SA"
  std::string_view title;     // English title: "Genesis", "1 Samuel"
  std::string_view synonyms;  // other names, lower-cased and without blanks, a blank between two: "gn"
};

// Book `number`, 1 (Genesis) to 66 (Revelation).
const Book& BookAt(int number);

// The short label that Versalia keeps for a book: its code in the form "Gen", "1Sa".
std::string BookLabel(int number);

// What makes two spellings the same name: ASCII letters lower-cased, blanks and full stops left out, a leading roman
// number as a digit. "II Samuel", "2 samuel" and "2Samuel" all give "2samuel"; other bytes stay as they are.
std::string BookKey(std::string_view name);

// The number of the book that `name` means, by code, title or synonym in any case; 0 when it is none of them.
int FindBook(std::string_view name);

}  // namespace folionet::tools
