#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>
#include <utility>

#include "BookTable.h"
#include "CatalogueText.h"
#include "CodePage.h"
#include "ImportText.h"
#include "RunTimeError.h"
#include "TemporaryFolder.h"
#include "TitleLanguages.h"

namespace folionet::test {
namespace {

TEST(BookTable, NamesFindTheirBook) {
  const std::pair<const char*, int> cases[] = {
      {"gen", 1},       {"Ge", 1},         {"Gen.", 1},       {"1SA", 9},        {"I Samuel", 9}, {"1samuel", 9},
      {"II Kings", 12}, {"Psalm", 19},     {"SSol", 22},      {"iii john", 64},  {"1 Jn.", 62},   {"Philemon", 57},
      {"Phil", 50},     {"Jdgs", 7},       {"Judges  ", 7},   {"Ezekiel\t", 26}, {"I", 0},        {"IV Kings", 0},
      {"", 0},          {"1. KÖNIGE", 11}, {"Apocalisse", 66}};
  for (const auto& [name, book] : cases) EXPECT_EQ(FindBook(name), book) << name;
  std::set<std::string> labels;
  for (int book = 1; book <= kBooks; ++book) {
    EXPECT_EQ(FindBook(BookAt(book).code), book);
    labels.insert(BookLabel(book));
  }
  EXPECT_EQ(labels.size(), 66U);
  EXPECT_TRUE(labels.contains("1Sa"));
}

TEST(TitleLanguages, HaveTitlesThatMakeFileNamesOfTheirOwnAndFindTheirBook) {
  for (const TitleLanguage& language : TitleLanguages()) {
    std::set<std::string> names;
    for (const auto title : language.titles) names.insert(FoldCase(title));
    EXPECT_EQ(names.size(), 66U) << language.name;
    for (int book = 1; book <= kBooks; ++book) {
      EXPECT_EQ(FindBook(language.titles[static_cast<std::size_t>(book) - 1]), book) << language.name;
    }
  }
}

TEST(CatalogueText, HasNumbersUpTo999) {
  const TemporaryFolder folder;
  std::string full;
  for (int number = 1; number < 1000; ++number) full += std::to_string(number) + ",0,X,x\n";
  folder.Write("T", full);
  EXPECT_THROW(CatalogueText(folder.Path() + "T").With({"N", "S"}), RunTimeError);
  folder.Write("T", full.replace(0, 1, "2000"));
  EXPECT_TRUE(CatalogueText(folder.Path() + "T").With({"N", "S"}).ends_with("999,0,X,x\n1,0,\"N\",\"S\"\r\n"));
}

// "book chapter:verse text|" for each verse, or the message when they cannot be read.
std::string Outcome(const std::string& content) {
  const TemporaryFolder folder;
  folder.Write("in", content);
  std::string list;
  try {
    const ImportedBible bible = ReadBible({{folder.Path() + "in"}, {}});
    for (std::size_t i = 0; i < bible.VerseCount(); ++i) {
      const auto [book, chapter, field, text] = bible.VerseAt(i);
      list += std::to_string(book) + " " + std::to_string(chapter) + ":" + std::string(field) + " ";
      list.append(text).append("|");
    }
  } catch (const RunTimeError& error) {
    return std::to_string(error.Line()) + ": " + error.Detail();
  }
  return list;
}

// One verse for each of the 66 names "A1" to "A66", the names of the given places replaced.
std::string SixtySixNames(const std::map<int, std::string>& replaced) {
  std::string content;
  for (int place = 1; place <= kBooks; ++place) {
    const auto other = replaced.find(place);
    content += (other != replaced.end() ? other->second : "A" + std::to_string(place)) + " 1:1 x\n";
  }
  return content;
}

TEST(Lines, OfSixtySixNamesStandForTheBooksInOrder) {
  std::string expected;
  for (int book = 1; book <= kBooks; ++book) expected += std::to_string(book) + " 1:1 x|";
  EXPECT_EQ(Outcome(SixtySixNames({})), expected);
  EXPECT_EQ(Outcome(SixtySixNames({{18, "Job"}, {66, "REV"}})), expected);
  EXPECT_EQ(Outcome(SixtySixNames({}) + "a66 1:2 y\n"), expected + "66 1:2 y|");
  // Names that are none of the 66, or in another order, are left out.
  EXPECT_EQ(Outcome(SixtySixNames({{3, "Job"}})), "18 1:1 x|");
  EXPECT_EQ(Outcome(SixtySixNames({}) + "A67 1:1 x\n"),
            "0: verses of one of the 66 books were expected; the books are others, such as \"A1\"");
}

TEST(Lines, AreReadOrToldWithTheirNumber) {
  const std::pair<std::string, std::string> cases[] = {
      {"\xEF\xBB\xBFGe1:1 In the beginning\r\n\r\n \t\r\nGEN 1:2 And\n1 Samuel 3:4 And\nII Kings 2:1: came: to\nMat "
       "2:22: \n"
       "Psalm\t3:6\t I\thave  \nMat 2:21\nGe1:3 12:30 o'clock\nJude1:255 x\nGe1:1-2a y\n",
       "1 1:1 In the beginning|1 1:2 And|1 1:3 12:30 o'clock|1 1:1-2a y|9 3:4 And|12 2:1 came: to|19 3:6 I have|"
       "40 2:22 |40 2:21 |65 1:255 x|"},
      {"", "0: A Bible text was expected: USFM, USX, USFX, OSIS, Zefania XML, or one verse a line."},
      {"Ge1:1 In\n\r\nhello\r\n",
       "3: Genesis 1:1: a verse such as \"GEN 1:1 In the beginning\" was expected: \"hello\""},
      {"Ge0:1 In", "1: Genesis: a chapter from 1 to 255 was expected: \"0\""},
      {"Ge99999999999:1 In", "1: Genesis: a chapter from 1 to 255 was expected: \"99999999999\""}};
  for (const auto& [content, expected] : cases) EXPECT_EQ(Outcome(content), expected) << content;
}

}  // namespace
}  // namespace folionet::test
