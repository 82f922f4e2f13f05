#include <gtest/gtest.h>

#include <set>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "BookTable.h"
#include "LibraryError.h"
#include "VerseReader.h"

namespace folionet::tools {
namespace {

constexpr const char* kForm = "expected BOOK CHAPTER:VERSE TEXT, such as \"Ge1:1 In the beginning\"";

// "book chapter:verse text|" for each verse.
std::string Listed(const std::vector<Verse>& verses) {
  std::ostringstream list;
  for (const Verse& v : verses) list << v.book << ' ' << v.chapter << ':' << v.verse << ' ' << v.text << '|';
  return list.str();
}

// The verses' list, or the message when they cannot be read.
std::string Outcome(const std::string& content) {
  try {
    return Listed(ParseVerses(content, "in.txt"));
  } catch (const LibraryError& error) {
    return error.what();
  }
}

// One verse for each of the 66 names "A1" to "A66", the names of the given places replaced.
std::string SixtySixNames(const std::vector<std::pair<int, std::string>>& replaced) {
  std::string content;
  for (int place = 1; place <= kBookCount; ++place) {
    std::string name("A");
    name += std::to_string(place);
    for (const auto& [where, other] : replaced) {
      if (where == place) name = other;
    }
    content += name + " 1:1 x\n";
  }
  return content;
}

TEST(BookTable, NamesFindTheirBook) {
  const struct {
    const char* name;
    int book;
  } kCases[] = {{"GEN", 1},        {"gen", 1},       {"Ge", 1},       {"Genesis", 1},
                {"1SA", 9},        {"1 Samuel", 9},  {"I Samuel", 9}, {"1samuel", 9},
                {"II Kings", 12},  {"iii john", 64}, {"1 Jn.", 62},   {"Psalm", 19},
                {"Gen.", 1},       {"SSol", 22},     {"Jdgs", 7},     {"Song of Songs", 22},
                {"Philemon", 57},  {"Phil", 50},     {"Jude", 65},    {"Revelation of John", 66},
                {"Ezekiel\t", 26}, {"Isaiah", 23},   {"I", 0},        {"IV Kings", 0},
                {"", 0},           {"Judges  ", 7},  {"Tobit", 0},    {"Song of Solomon", 22}};
  for (const auto& c : kCases) EXPECT_EQ(FindBook(c.name), c.book) << c.name;
}

TEST(BookTable, EveryCodeTitleAndLabelIsItsOwn) {
  std::set<std::string> labels;
  for (int book = 1; book <= kBookCount; ++book) {
    EXPECT_EQ(FindBook(BookAt(book).code), book);
    EXPECT_EQ(FindBook(BookAt(book).title), book);
    labels.insert(BookLabel(book));
  }
  EXPECT_EQ(labels.size(), 66u);
  EXPECT_EQ(BookLabel(1) + BookLabel(9) + BookLabel(64), "Gen1Sa3Jn");
}

TEST(VerseReader, ReadsEveryForm) {
  const struct {
    std::string content;
    std::string verses;
  } kCases[] = {
      {"Ge1:1 In the beginning\n", "1 1:1 In the beginning|"},
      {"GEN 1:1 In\nGEN 1:2 And", "1 1:1 In|1 1:2 And|"},
      {"1 Samuel 3:4 And\n", "9 3:4 And|"},
      {"1Sm3:4 And\n", "9 3:4 And|"},
      {"II Kings 2:1: And it came: to pass\n", "12 2:1 And it came: to pass|"},
      {"\xEF\xBB\xBFGe1:1 In\r\n\r\n \t\r\nGe1:2 And\r\n", "1 1:1 In|1 1:2 And|"},
      {"Psalm\t119:176\t I\thave \xE9 \n", "19 119:176 I have \xE9 |"},
      {"Mat 17:21\nMat 17:22: \n", "40 17:21 |40 17:22 |"},
      {"Ge1:1 12:30 o'clock\n", "1 1:1 12:30 o'clock|"},
      {"Ge255:255 x", "1 255:255 x|"},
      // Canonical order of books and chapters; the file's order within a chapter.
      {"Exo1:1 e\nGe2:1 c\nGe1:2 b\nGe1:1 a\nExo1:2 f\n", "1 1:2 b|1 1:1 a|1 2:1 c|2 1:1 e|2 1:2 f|"},
  };
  for (const auto& c : kCases) EXPECT_EQ(Outcome(c.content), c.verses) << c.content;
}

TEST(VerseReader, KeepsTheOrderWithinLongChapters) {
  std::string content;
  std::string first;
  std::string second;
  for (int verse = 100; verse > 0; --verse) {
    const std::string number = std::to_string(verse);
    content += "Ge2:" + number + " b\nGe1:" + number + " a\n";
    first += "1 1:" + number + " a|";
    second += "1 2:" + number + " b|";
  }
  EXPECT_EQ(Outcome(content), first + second);
}

TEST(VerseReader, NamesTheLineThatItCannotRead) {
  const std::string form = std::string(": ") + kForm;
  const std::string range = ": expected a chapter and a verse from 1 to 255";
  const struct {
    std::string content;
    std::string message;
  } kCases[] = {
      {"",
       "in.txt: no verse in it: expected lines of the form BOOK CHAPTER:VERSE TEXT, such as \"Ge1:1 In the "
       "beginning\""},
      {"Ge1:1 In\n\r\nhello\r\n", "in.txt:3: \"hello\"" + form},
      {":1 In", "in.txt:1: \":1 In\"" + form},
      {"1:1 In", "in.txt:1: \"1:1 In\"" + form},
      {"2 1:1 In", "in.txt:1: \"2 1:1 In\"" + form},
      {"Ge:1 In", "in.txt:1: \"Ge:1 In\"" + form},
      {"Ge1: In", "in.txt:1: \"Ge1: In\"" + form},
      {"Ge1:1a In", "in.txt:1: \"Ge1:1a In\"" + form},
      {"Ge1:1-2 In", "in.txt:1: \"Ge1:1-2 In\"" + form},
      {"Ge1:1:2 In", "in.txt:1: \"Ge1:1:2 In\"" + form},
      {std::string(250, 'x') + "\x01", "in.txt:1: \"" + std::string(200, 'x') + "...\"" + form},
      {"a\x01\x7F"
       "b",
       "in.txt:1: \"a??b\"" + form},
      {"Ge0:1 In", "in.txt:1: \"Ge0:1 In\"" + range},
      {"Ge1:256 In", "in.txt:1: \"Ge1:256 In\"" + range},
      {"Ge1:99999999999 In", "in.txt:1: \"Ge1:99999999999 In\"" + range},
      {"Ge1:1 In\nTobit 1:1 The\nTobit 1:2 x",
       "in.txt:2: \"Tobit 1:1 The\": unknown book \"Tobit\": expected a USFM code or an English title (names of any "
       "kind need exactly 66 of them in the file; it has 2)"},
      {"Ge1:1 a\nExo1:1 b\nGEN 1:1 c",
       "in.txt:3: \"GEN 1:1 c\": the verse stands in line 1 already: expected each verse once"},
  };
  for (const auto& c : kCases) EXPECT_EQ(Outcome(c.content), c.message);
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

TEST(VerseReader, TellsWhatIsMissing) {
  const auto missing = [](const std::string& content) { return MissingParts(ParseVerses(content, "in.txt")); };
  EXPECT_EQ(
      missing("Ge1:1 a\nGe4:1 b\nLev2:1 c\nJude1:1 d"),
      (std::vector<std::string>{"Genesis 2", "Genesis 3", "Exodus", "Leviticus 1", "Numbers to 3 John", "Revelation"}));
  std::string whole;
  for (int book = 1; book <= kBookCount; ++book) whole += std::string(BookAt(book).code) + " 1:1 x\n";
  EXPECT_EQ(missing(whole), std::vector<std::string>{});
}

}  // namespace
}  // namespace folionet::tools
