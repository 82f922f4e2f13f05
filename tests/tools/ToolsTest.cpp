#include <gtest/gtest.h>

#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "BookTable.h"
#include "BookTitles.h"
#include "Catalogue.h"
#include "CodePage.h"
#include "LibraryError.h"
#include "VerseReader.h"
#include "Windows1252.h"

// What runs of make_library do not reach; those are in tests/runs.

namespace folionet::tools {
namespace {

TEST(Windows1252, EncodesWhatItHas) {
  const std::pair<std::string, std::optional<std::string>> cases[] = {
      {"Éxodo", "\xC9xodo"},   {"€‚ŸžÿŒ", "\x80\x82\x9F\x9E\xFF\x8C"},
      {"Ω", std::nullopt},     {"\xC2\x81", std::nullopt},
      {"a\xC3", std::nullopt}, {std::string("a\0b", 3), std::string("a\0b", 3)}};
  for (const auto& [text, bytes] : cases) EXPECT_EQ(ToWindows1252(text), bytes) << text;
}

TEST(BookTitles, EveryLanguageHas66TitlesThatMakeFileNamesOfTheirOwn) {
  const CodePage unicode("utf-8");
  EXPECT_EQ(TitleLanguages().size(), 7U);
  for (const TitleLanguage& language : TitleLanguages()) {
    std::set<std::string> names;
    for (const auto title : language.titles) names.insert(unicode.ToLower(std::string(title)));
    EXPECT_EQ(names.size(), 66U) << language.name;
    EXPECT_FALSE(names.contains("")) << language.name;
  }
}

TEST(BookTable, NamesFindTheirBook) {
  const std::pair<const char*, int> cases[] = {{"GEN", 1},        {"gen", 1},       {"Ge", 1},
                                               {"Gen.", 1},       {"1SA", 9},       {"1 Samuel", 9},
                                               {"I Samuel", 9},   {"1samuel", 9},   {"II Kings", 12},
                                               {"Psalm", 19},     {"SSol", 22},     {"iii john", 64},
                                               {"1 Jn.", 62},     {"Philemon", 57}, {"Phil", 50},
                                               {"Jude", 65},      {"Jdgs", 7},      {"Judges  ", 7},
                                               {"Ezekiel\t", 26}, {"I", 0},         {"IV Kings", 0},
                                               {"", 0},           {"Tobit", 0},     {"Song of Songs", 22},
                                               {"Isaiah", 23},    {"Genesis", 1},   {"Revelation of John", 66}};
  for (const auto& [name, book] : cases) EXPECT_EQ(FindBook(name), book) << name;
  std::set<std::string> labels;
  for (int book = 1; book <= kBookCount; ++book) {
    EXPECT_EQ(FindBook(BookAt(book).code), book);
    EXPECT_EQ(FindBook(BookAt(book).title), book);
    labels.insert(BookLabel(book));
  }
  EXPECT_EQ(labels.size(), 66U);
}

TEST(Catalogue, HasNumbersUpTo999) {
  std::string full;
  for (int number = 1; number < 1000; ++number) full += std::to_string(number) + ",0,X,x\n";
  EXPECT_THROW(WithTranslation(full, "T", "N", "S"), LibraryError);
  EXPECT_TRUE(WithTranslation(full.replace(0, 1, "2000"), "T", "N", "S").ends_with("999,0,X,x\n1,0,\"N\",\"S\"\r\n"));
}

// One verse for each of the 66 names "A1" to "A66", the names of the given places replaced.
std::string SixtySixNames(const std::vector<std::pair<int, std::string>>& replaced) {
  std::string content;
  for (int place = 1; place <= kBookCount; ++place) {
    std::string name = "A" + std::to_string(place);
    for (const auto& [where, other] : replaced) name = where == place ? other : name;
    content += name + " 1:1 x\n";
  }
  return content;
}

// "book chapter:verse text|" for each verse, or the message when they cannot be read.
std::string Outcome(const std::string& content) {
  std::string list;
  try {
    for (const Verse& v : ParseVerses(content, "in.txt")) {
      list +=
          std::to_string(v.book) + " " + std::to_string(v.chapter) + ":" + std::to_string(v.verse) + " " + v.text + "|";
    }
  } catch (const LibraryError& error) {
    return error.what();
  }
  return list;
}

TEST(VerseReader, SixtySixNamesStandForTheBooksInOrder) {
  std::string expected;
  for (int book = 1; book <= kBookCount; ++book) expected += std::to_string(book) + " 1:1 x|";
  EXPECT_EQ(Outcome(SixtySixNames({})), expected);
  EXPECT_EQ(Outcome(SixtySixNames({{18, "Job"}, {66, "REV"}})), expected);
  EXPECT_EQ(Outcome(SixtySixNames({}) + "a66 1:2 y\n"), expected + "66 1:2 y|");
  EXPECT_EQ(Outcome(SixtySixNames({{3, "Job"}})),
            "in.txt:3: \"Job 1:1 x\": book name 3 of the file, but Job is book 18: expected the books in canonical "
            "order, as \"A1\" is no USFM code or English title");
  EXPECT_EQ(Outcome(SixtySixNames({}) + "A67 1:1 x\n").substr(0, 38), "in.txt:1: \"A1 1:1 x\": unknown book \"A1");
}

TEST(VerseReader, KeepsTheOrderWithinLongChapters) {
  std::string content;
  std::string expected;
  for (int verse = 100; verse > 0; --verse) {
    const std::string number = std::to_string(verse);
    content += "Ge2:" + number + " b\nGe1:" + number + " a\n";
    expected += "1 1:" + number + " a|";
  }
  for (int verse = 100; verse > 0; --verse) expected += "1 2:" + std::to_string(verse) + " b|";
  EXPECT_EQ(Outcome(content), expected);
}

}  // namespace
}  // namespace folionet::tools
