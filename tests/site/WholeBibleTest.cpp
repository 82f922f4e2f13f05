// Compiles the whole King James Version, as the program bible prints it, and looks the site through.

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <chrono>
#include <filesystem>
#include <fstream>
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
  for (std::string label, title;
       file.ignore(3, '\t') && std::getline(file, label, '\t') && std::getline(file, title);) {
    title.pop_back();
    for (char& c : label) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    for (char& c : title) c = c == ' ' ? '_' : static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    books.push_back({label, title});
  }
  return books;
}

// A text without the blanks at its end, and with one where there are several.
std::string SingleBlanks(std::string text) {
  for (std::size_t at = text.find("  "); at != std::string::npos; at = text.find("  ", at)) text.erase(at, 1);
  return text.substr(0, text.find_last_not_of(' ') + 1);
}

// The verse lines that each page should hold, made from printed verses such as "1Sa3:4 That the LORD called Samuel".
FolderContent ExpectedVerses(const std::string& printed, const std::vector<Book>& books) {
  FolderContent pages;
  std::istringstream lines(printed);
  std::string lastBook;
  std::size_t count = 0;
  for (std::string line; std::getline(lines, line);) {
    const std::size_t colon = line.find(':');
    const std::size_t chapter = line.find_last_not_of("0123456789", colon - 1) + 1;
    if (line.substr(0, chapter) != lastBook) ++count;
    lastBook = line.substr(0, chapter);
    const Book& book = books.at(count - 1);
    pages[book.file + "_" + line.substr(chapter, colon - chapter) + ".html"] +=
        book.label + " " + SingleBlanks(line.substr(chapter)) + "<br>\r\n";
  }
  return pages;
}

TEST(WholeBible, HasItsVersesAndLinksAndIsLeftAloneByASecondRun) {
  const TemporaryFolder home;
  const ProgramResult verses = RunProgram({KJV_VERSES_SCRIPT}, home.Path());
  if (verses.errors.find("no program bible") != std::string::npos) GTEST_SKIP() << verses.errors;
  ASSERT_EQ(verses.errors, "");
  EXPECT_EQ(std::count(verses.output.begin(), verses.output.end(), '\n'), 31102);
  home.Write("verses.txt", verses.output);
  const ProgramResult library =
      RunCli({"import", "verses.txt", "--name=King James Version", "--stem=KJV", "--into=library"}, home.Path());
  ASSERT_EQ(library.status, 0) << library.errors;
  const auto compile = [&] {
    const ProgramResult run = RunCli(
        {"compile", "--versalia-path=library", "--program-folder=.", "--output=out", "--index-address=index.html"},
        home.Path());
    EXPECT_EQ(run.errors, "");
    EXPECT_EQ(run.output, "Compilation Complete!\n1190 HTML pages created.\n0 pages removed\nRemaining pages 1190\n");
    return ReadFolder(home.Path() + "out");
  };
  const FolderContent site = compile();
  const FolderContent expected = ExpectedVerses(verses.output, ReadBooks(home.Path() + "library/Sysdefs/BOOKS.TXT"));
  ASSERT_EQ(expected.size(), 1189U);
  ASSERT_EQ(site.size(), 1190U);
  FolderContent found;
  for (const auto& [name, page] : site) {
    for (const std::string& text : Between(page, "<font face=\"Verdana\" size= \"3\">\r\n", "</blockquote>")) {
      if (name != "index.html") found[name] += text;
    }
  }
  EXPECT_EQ(DescribeDifference(expected, found), "");

  EXPECT_EQ(RunCli({"verify", "out"}, home.Path()).output, "1190 pages, 57056 links: 0 broken, 0 pages not reached.\n");
  const Texts links = Between(site.at("index.html"), "[<a href=\"", "\"");
  ASSERT_EQ(links.size(), 1189U);
  EXPECT_EQ(links.front() + links.at(50) + links.back(), "genesis_1.htmlexodus_1.htmlrevelation_22.html");

  home.Write("out/jude_1.html", site.at("jude_1.html") + "touched by hand");
  const auto longAgo = fs::file_time_type::clock::now() - std::chrono::hours(24);
  for (const auto& [name, page] : site) fs::last_write_time(home.Path() + "out/" + name, longAgo);
  EXPECT_EQ(DescribeDifference(site, compile()), "");
  for (const auto& [name, page] : site) {
    EXPECT_EQ(fs::last_write_time(home.Path() + "out/" + name) != longAgo, name == "jude_1.html") << name;
  }
}

}  // namespace
}  // namespace folionet::test
