#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "ImportedBible.h"
#include "modGlob.h"

namespace folionet {

using BookTitleList = std::array<std::string, kBooks + 1>;  // element 0 is unused

// The titles of the 66 books as a file of book titles has them: those that are given, the missing ones in the language
// nearest to `language`; without the characters that no page name can hold; and each with a page name of its own, by a
// number where two would share one.
BookTitleList CompleteTitles(const BookTitleList& given, std::string_view language);

// The titles of a file of book titles, in UTF-8 or windows-1252. Throws RunTimeError for one that cannot be read.
BookTitleList ReadTitlesFile(const std::string& path);

// The same, or nothing where there is none or it is damaged.
std::optional<BookTitleList> ReadTitlesIfSound(const std::string& path);

// The titles of a text that takes the place of one in `language` whose pages had the titles `before`: where it names a
// book not, one that was given to that keeps its title.
BookTitleList KeepTitles(BookTitleList titles, const BookTitleList& before, std::string_view language);

// The books of a text that have another title than before, each with both.
std::vector<std::pair<std::string, std::string>> RenamedBooks(const ImportedBible& bible, const BookTitleList& before,
                                                              const BookTitleList& titles);

}  // namespace folionet
