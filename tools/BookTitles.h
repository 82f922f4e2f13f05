#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "BookTable.h"

// Versalia's book-title files: 66 lines in windows-1252, one a book in canonical order, each ended by CR LF:
// number, tab, short label, tab, title. The second line of the Spanish file:
//
//   2<TAB>Exo<TAB>Éxodo

namespace folionet::tools {

struct TitleLanguage {
  std::string_view name;                 // upper case, as in the file's name: "SPANISH"
  std::vector<std::string_view> titles;  // of the 66 books, UTF-8
};

// The languages whose titles are known; English is the first.
const std::vector<TitleLanguage>& TitleLanguages();

// The bytes of a language's book-title file.
std::string TitleFileText(const TitleLanguage& language);

}  // namespace folionet::tools
