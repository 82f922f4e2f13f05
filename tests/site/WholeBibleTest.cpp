// Compiles the whole King James Version, as the program bible prints it, and looks the site through.

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "FolderContent.h"
#include "ProgramRun.h"
#include "TemporaryFolder.h"

namespace folionet::test {
namespace {

namespace fs = std::filesystem;
using Texts = std::vector<std::string>;

constexpr std::size_t kChapters = 1189;
constexpr std::size_t kVerses = 31102;
const Texts kCompile{"compile", "--versalia-path", "library", "--module-path",   "library/Modules", "--program-folder",
                     ".",       "--output",        "out",     "--index-address", "index.html"};

bool IsDigit(char c) { return std::isdigit(static_cast<unsigned char>(c)) != 0; }

// The texts between two marks, in order.
Texts Between(const std::string& text, const std::string& from, const std::string& to) {
  Texts found;
  for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at)) {
    at += from.size();
    found.push_back(text.substr(at, text.find(to, at) - at));
  }
  return found;
}

struct Book {
  std::string label;  // such as 1SA
  std::string file;   // what its page names begin with, such as 1_samuel
};

std::vector<Book> ReadBooks(const std::string& path) {
  std::vector<Book> books;
  std::ifstream file(path, std::ios::binary);
  for (std::string line; std::getline(file, line);) {
    std::istringstream fields(line);
    Book book;
    std::getline(fields, book.label, '\t');
    std::getline(fields, book.label, '\t');
    std::getline(fields, book.file, '\r');
    for (char& c : book.label) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    for (char& c : book.file) c = c == ' ' ? '_' : static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    books.push_back(book);
  }
  return books;
}

// The verse lines that each page should hold, made from printed verses such as "1Sa3:4 That the LORD called Samuel".
std::map<std::string, std::string> ExpectedVerses(const std::string& printed, const std::vector<Book>& books) {
  std::map<std::string, std::string> pages;
  std::istringstream lines(printed);
  std::string lastBook;
  std::size_t count = 0;
  for (std::string line; std::getline(lines, line);) {
    const std::size_t colon = line.find(':');
    std::size_t chapter = colon;
    while (IsDigit(line.at(chapter - 1))) --chapter;
    if (line.substr(0, chapter) != lastBook) {
      lastBook = line.substr(0, chapter);
      ++count;
    }
    const Book& book = books.at(count - 1);
    pages[book.file + "_" + line.substr(chapter, colon - chapter) + ".html"] +=
        book.label + " " + line.substr(chapter) + "<br>\r\n";
  }
  return pages;
}

class WholeBible : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    s_home = std::make_unique<TemporaryFolder>();
    const std::string& home = s_home->Path();
    const ProgramResult verses = RunProgram({KJV_VERSES_SCRIPT}, home);
    s_error = verses.errors;
    if (verses.status != 0) return;
    s_printed = verses.output;
    s_home->Write("verses.txt", s_printed);
    const ProgramResult library = RunProgram(
        {MAKE_LIBRARY_PROGRAM, "verses.txt", "--name", "King James Version", "--stem", "KJV", "--into", "library"},
        home);
    ASSERT_EQ(library.status, 0) << library.errors;
    s_run = RunCli(kCompile, home);
    s_site = ReadFolder(home + "out");
  }

  static void TearDownTestSuite() { s_home.reset(); }

  void SetUp() override {
    if (s_error.find("no program bible") != std::string::npos) GTEST_SKIP() << s_error;
    ASSERT_EQ(s_error, "");
    ASSERT_EQ(s_run.errors, "");
    ASSERT_EQ(s_run.status, 0);
  }

  static std::map<std::string, fs::file_time_type> Times() {
    std::map<std::string, fs::file_time_type> times;
    for (const auto& [name, bytes] : s_site) times[name] = fs::last_write_time(s_home->Path() + "out/" + name);
    return times;
  }

  static inline std::unique_ptr<TemporaryFolder> s_home;
  static inline std::string s_error;
  static inline std::string s_printed;
  static inline ProgramResult s_run;
  static inline FolderContent s_site;
};

TEST_F(WholeBible, HasAPageForEachChapterThatHoldsItsVerses) {
  EXPECT_EQ(s_run.output, "Compilation Complete!\n1190 HTML pages created.\n0 pages removed\nRemaining pages 1190\n");
  const auto expected = ExpectedVerses(s_printed, ReadBooks(s_home->Path() + "library/Sysdefs/BOOKS.TXT"));
  ASSERT_EQ(expected.size(), kChapters);
  EXPECT_EQ(s_site.size(), kChapters + 1);
  ASSERT_EQ(static_cast<std::size_t>(std::count(s_printed.begin(), s_printed.end(), '\n')), kVerses);
  for (const auto& [name, verses] : expected) {
    ASSERT_EQ(s_site.count(name), 1u) << name;
    const Texts found = Between(s_site.at(name), "<font face=\"Verdana\" size= \"3\">\r\n", "</blockquote>");
    ASSERT_EQ(found.size(), 1u) << name;
    EXPECT_EQ(DescribeDifference(name, verses, found.front()), "");
  }
}

TEST_F(WholeBible, LinksEveryPageInOrderAndNothingElse) {
  EXPECT_EQ(RunCli({"verify", "out"}, s_home->Path()).output,
            "1190 pages, 57056 links: 0 broken, 0 pages not reached.\n");
  const Texts links = Between(s_site.at("index.html"), "[<a href=\"", "\"");
  ASSERT_EQ(links.size(), kChapters);
  EXPECT_EQ(links.front(), "genesis_1.html");
  EXPECT_EQ(links.at(50), "exodus_1.html");
  EXPECT_EQ(links.back(), "revelation_22.html");
}

TEST_F(WholeBible, HeadsItsPagesWithBookAndChapter) {
  const std::string& page = s_site.at("psalms_119.html");
  EXPECT_EQ(Between(page, "<title>", "</title>"), Texts{"FREE Online King James Version. Psalms Chapter 119:1-176."});
  EXPECT_EQ(Between(page, "<u>", "<br><br></u>"), Texts{"Psalms 119"});
  EXPECT_EQ(Between(page, "[<a href=\"", "</a>]").size(), 150U);
}

TEST_F(WholeBible, LeavesTheTimeStampsOfPagesThatDoNotChange) {
  const std::string folder = s_home->Path() + "out/";
  const auto longAgo = fs::file_time_type::clock::now() - std::chrono::hours(24);
  for (const auto& [name, bytes] : s_site) fs::last_write_time(folder + name, longAgo);
  std::map<std::string, fs::file_time_type> expected = Times();
  ASSERT_EQ(RunCli(kCompile, s_home->Path()).output, s_run.output);
  EXPECT_EQ(Times(), expected);

  s_home->Write("out/jude_1.html", "touched by hand");
  fs::last_write_time(folder + "jude_1.html", longAgo);
  ASSERT_EQ(RunCli(kCompile, s_home->Path()).output, s_run.output);
  const auto times = Times();
  EXPECT_NE(times.at("jude_1.html"), expected.at("jude_1.html"));
  expected["jude_1.html"] = times.at("jude_1.html");
  EXPECT_EQ(times, expected);
  EXPECT_EQ(DescribeDifference(s_site, ReadFolder(folder)), "");
}

}  // namespace
}  // namespace folionet::test
