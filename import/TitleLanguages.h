#pragma once

#include <string>
#include <string_view>
#include <vector>

// Files of book titles: 66 lines, one a book in canonical order, each ended by CR LF: number, tab, short label, tab,
// title. The second line of the Spanish file:
//
//   2<TAB>Exo<TAB>Éxodo

namespace folionet {

struct TitleLanguage {
  std::string_view name;                 // upper case, as in the file's name: "SPANISH"
  std::string_view codes;                // of the language, lower case, a blank between two: "es spa"
  std::vector<std::string_view> titles;  // of the 66 books, UTF-8; windows-1252 has all of their characters
};

// The languages whose titles are known; English is the first.
const std::vector<TitleLanguage>& TitleLanguages();

// The one of a code, such as "es"; nullptr for a language without titles.
const TitleLanguage* FindLanguage(std::string_view code);

// The one whose titles stand in for those that a text in this language has not: "es-419" gives Spanish, a language
// without titles English.
const TitleLanguage& NearestLanguage(std::string_view code);

// The text of a file of book titles.
std::string TitleFileText(const std::vector<std::string_view>& titles);

}  // namespace folionet
