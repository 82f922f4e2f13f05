#include "LibraryTitles.h"

#include <algorithm>
#include <set>

#include "BookTitles.h"
#include "CodePage.h"
#include "FlowingText.h"
#include "ImportError.h"
#include "TitleLanguages.h"
#include "Utf8.h"

namespace folionet {
namespace {

// A title of a book as the name of a page may hold it. A ":" would make an address of the name, a "%" or "#" end it.
std::string Nameable(std::string_view title) {
  constexpr std::size_t kLongest = 160;  // bytes; a file system has room for 255
  std::string name;
  for (const char c : title) {
    if (c == '/' || c == '\\') {
      name += '-';
    } else if (std::string_view(":*?\"<>|#%&").find(c) == std::string_view::npos) {
      name += c;
    }
  }
  name = std::string(CutToBytes(WithSingleBlanks(name), kLongest));
  // A name that begins with a dot is hidden, or is no name.
  return name.substr(std::min(name.find_first_not_of(". "), name.size()));
}

// What the names of pages have of a title: titles that differ in letter case, or by a blank and a "_", share them.
std::string PageName(const std::string& title) {
  std::string name = CodePage("utf-8").ToLower(title);
  std::ranges::replace(name, ' ', '_');
  return name;
}

}  // namespace

BookTitleList CompleteTitles(const BookTitleList& given, std::string_view language) {
  const TitleLanguage& nearest = NearestLanguage(language);
  BookTitleList titles;
  std::set<std::string> names;
  for (std::size_t book = 1; book <= kBooks; ++book) {
    std::string title = Nameable(given[book]);
    if (title.empty()) title = nearest.titles[book - 1];
    std::string unique = title;
    for (int number = 2; !names.insert(PageName(unique)).second; ++number) {
      unique = title + " " + std::to_string(number);
    }
    titles[book] = std::move(unique);
  }
  return titles;
}

BookTitleList ReadTitlesFile(const std::string& path) {
  BookTitleReader reader(path);
  BookTitleList titles;
  while (reader.Next()) {
    const std::string title = reader.Title().title;
    titles[reader.Book()] = IsUtf8(title) ? title : CodePage().Decode(title);
  }
  if (const Sentence missing = reader.WhatIsMissing(); !missing.IsEmpty()) {
    throw ImportError(kInputPastEnd, path, missing);
  }
  return titles;
}

std::optional<BookTitleList> ReadTitlesIfSound(const std::string& path) {
  try {
    return ReadTitlesFile(path);
  } catch (const RunTimeError&) {
    return {};
  }
}

BookTitleList KeepTitles(BookTitleList titles, const BookTitleList& before, std::string_view language) {
  const TitleLanguage& nearest = NearestLanguage(language);
  for (std::size_t book = 1; book <= kBooks; ++book) {
    if (titles[book].empty() && before[book] != nearest.titles[book - 1]) titles[book] = before[book];
  }
  return titles;
}

std::vector<std::pair<std::string, std::string>> RenamedBooks(const ImportedBible& bible, const BookTitleList& before,
                                                              const BookTitleList& titles) {
  std::vector<std::pair<std::string, std::string>> renamed;
  std::size_t last = 0;
  for (const ImportedBible::Chapter& chapter : bible.Chapters()) {
    const auto book = static_cast<std::size_t>(chapter.book);
    if (book != last && titles[book] != before[book]) renamed.emplace_back(before[book], titles[book]);
    last = book;
  }
  return renamed;
}

}  // namespace folionet
