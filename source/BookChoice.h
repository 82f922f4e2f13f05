#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "CodePage.h"
#include "modGlob.h"

namespace folionet {

// Places in the book lists, counted from 0.
struct BookRange {
  int first = 0;
  int last = kBooks - 1;
};

// The place of the book that a person (UTF-8) means by its number from 1, by its title or by its code in the chosen
// file of book titles, each exactly or else in any letter case.
std::optional<int> ChooseBook(const ModGlob& glob, const CodePage& codePage, std::string_view text);

// The books that a person means: a part of the Bible by its English name ("NT", "Gospels"), a book, or the first and
// the last of several with "-" between ("Matthew-Acts", "40-44").
std::optional<BookRange> ChooseBooks(const ModGlob& glob, const CodePage& codePage, std::string_view text);

// The place in BibleNames of the translation that a person (UTF-8) means by its name or by the stem of its file.
std::optional<std::size_t> FindTranslation(const ModGlob& glob, const CodePage& codePage, std::string_view nameOrStem);

// The names of the parts, in their order.
std::vector<std::string> BookParts();

}  // namespace folionet
