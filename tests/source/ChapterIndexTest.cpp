#include <gtest/gtest.h>

#include "ChapterIndex.h"
#include "RecordingUi.h"
#include "TinyLibrary.h"

namespace folionet {
namespace {

using test::RecordingUi;
using test::TinyLibrary;
using Texts = std::vector<std::string>;

// Index records for chapters given as {book, chapter, verses}.
std::string Records(const std::vector<std::array<int, 3>>& chapters) {
  std::string records;
  for (const auto& [book, chapter, verses] : chapters) {
    records +=
        "1,0," + std::to_string(book) + "," + std::to_string(chapter) + "," + std::to_string(verses) + ",9,\"Gen\"\r\n";
  }
  return records;
}

struct IndexedLibrary : TinyLibrary {
  explicit IndexedLibrary(const std::string& records) {
    glob.BibleNames = {"A Name", ""};
    glob.BibleFiles = {"STEM", ""};
    path = folder.Write("Index/STEM.TXT.INDEX", records);
  }
  std::string path;
};

TEST(BooksInChaptersTest, CountsByOrderOfAppearance) {
  const struct {
    std::vector<std::array<int, 3>> chapters;
    std::array<std::int16_t, 4> counts;  // of books 1 to 4
  } cases[] = {
      {{{1, 1, 9}, {1, 2, 9}, {2, 1, 9}, {2, 2, 9}, {2, 3, 9}, {3, 1, 9}}, {2, 3, 1, 0}},
      {{{1, 1, 9}, {2, 1, 9}, {1, 2, 9}}, {1, 1, 1, 0}},
      {{{40, 1, 9}, {40, 2, 9}}, {2, 0, 0, 0}},
      {{{0, 1, 9}}, {1, 0, 0, 0}},
      {{}, {0, 0, 0, 0}},
  };
  for (const auto& c : cases) {
    IndexedLibrary library(Records(c.chapters));
    library.glob.ChaptersInBook.fill(77);
    RecordingUi ui;
    EXPECT_EQ(BooksInChapters(library.glob, 0, CodePage(), ui), Outcome::kDone);
    for (std::size_t i = 0; i < c.counts.size(); ++i) EXPECT_EQ(library.glob.ChaptersInBook[i + 1], c.counts[i]) << i;
    EXPECT_TRUE(ui.said.empty());
  }
}

TEST(BooksInChaptersTest, TellsOfFailures) {
  std::vector<std::array<int, 3>> tooMany;
  for (int book = 1; book <= 67; ++book) tooMany.push_back({book, 1, 1});
  const struct {
    std::string records;
    const char* said;
  } cases[] = {
      {Records(tooMany), "9 BooksInChapters: FILE\r\nLine 67\r\nThe index has more than 66 books; the 67th is \"67\""},
      {"1,0,x,1,1,1,1\n", "13 BooksInChapters: FILE\r\nLine 1\r\nA number was expected: \"x\""},
      {"1,0,1,1\n", "62 BooksInChapters: FILE\r\nLine 1\r\nA record of 7 fields was expected, 4 found: \"1,0,1,1\""},
  };
  for (const auto& c : cases) {
    IndexedLibrary library(c.records);
    RecordingUi ui;
    EXPECT_EQ(BooksInChapters(library.glob, 0, CodePage(), ui), Outcome::kReported);
    std::string said = c.said;
    said.replace(said.find("FILE"), 4, library.path);
    EXPECT_EQ(ui.said, Texts{said});
  }
}

TEST(BooksInChaptersTest, AMissingIndexEndsTheProgram) {
  IndexedLibrary library("");
  std::filesystem::remove(library.path);
  RecordingUi ui;
  EXPECT_EQ(BooksInChapters(library.glob, 0, CodePage(), ui), Outcome::kEndProgram);
  EXPECT_EQ(ui.said, Texts{"INDEX File Not Found: Cannot find: " + library.path +
                           ".\r\nWithout this file Folionet cannot continue.\r\n"
                           "To create this file run Versalia on 'A Name' first.\r\nFolionet will now close."});
}

TEST(LoadVerseCountTest, KeepsOneSpareElement) {
  IndexedLibrary library(Records({{1, 1, 31}, {66, 255, 0}}));
  RecordingUi ui;
  for (int i = 0; i < 2; ++i) {
    EXPECT_EQ(LoadVerseCount(library.glob, library.path, ui), Outcome::kDone);
    ASSERT_EQ(library.glob.ChapterIndex.size(), 3U);
    EXPECT_EQ(library.glob.ChapterIndex[0].Verses, 31);
    EXPECT_EQ(library.glob.ChapterIndex[1].Chapter, 255);
    EXPECT_EQ(library.glob.ChapterIndex[2].Book, 0);
  }
}

TEST(LoadVerseCountTest, AFailureIsReportedWithTheLastInputAndEndsTheProgram) {
  const struct {
    const char* records;
    const char* report;
  } cases[] = {
      {"a,b,1,1,5,c,d\ne,f,1,256,6,\"g\",h\n",
       "6 Load Verse Count: Last Input \r\nA = e\r\nB = f\r\nC = 1\r\nD = 256\r\nE = 6\r\nF = g\r\nG = h\r\n"
       "FILE\r\nLine 2\r\nA number from 0 to 255 was expected: \"256\""},
      {"a,b,1,70000,5,c,d\n",
       "6 Load Verse Count: Last Input \r\nA = a\r\nB = b\r\nC = 1\r\nD = 70000\r\nE = 5\r\nF = c\r\nG = d\r\n"
       "FILE\r\nLine 1\r\nA number from 0 to 255 was expected: \"70000\""},
      {"a,b,1\n",
       "62 Load Verse Count: Last Input \r\nA = a\r\nB = b\r\nC = 1\r\nD = \r\nE = \r\nF = \r\nG = \r\n"
       "FILE\r\nLine 1\r\nA record of 7 fields was expected, 3 found: \"a,b,1\""},
  };
  for (const auto& c : cases) {
    IndexedLibrary library(c.records);
    RecordingUi ui;
    EXPECT_EQ(LoadVerseCount(library.glob, library.path, ui), Outcome::kEndProgram);
    std::string report = c.report;
    report.replace(report.find("FILE"), 4, library.path);
    EXPECT_EQ(ui.said, (Texts{report, "File not found: Folionet could not find the file\r\n" + library.path +
                                          "\r\nThis file is created automatically by Versalia.\r\n"
                                          "Please do a search on this Bible in Versalia to create it and try again."}));
  }
}

TEST(GetVSCntTest, FindsByTitleAndLeadingNumber) {
  ModGlob glob;
  for (int i = 1; i <= 66; ++i) glob.cboStartBook.push_back("Book " + std::to_string(i));
  glob.cboStartBook[2] = "Book 1";  // the last match wins
  glob.ChapterIndex = {{1, 1, 31}, {2, 12, 7}, {3, 1, 5}, {3, 1, 6}, {67, 0, 99}, {0, 0, 0}};
  const VerseCounts counts(glob);
  const struct {
    const char* title;
    const char* chapter;
    const char* verses;
  } cases[] = {
      {"Book 1", "1", "6"}, {"Book 2", "12abc", "7"}, {"Book 2", "13", ""}, {"book 2", "12", ""}, {"None", "1", ""},
      {"None", "0", "0"},   {"None", "", "0"},        {"", "", "99"},       {"Book 2", "-1", ""},
  };
  RecordingUi ui;
  for (const auto& c : cases) EXPECT_EQ(counts.GetVSCnt(c.title, c.chapter, ui), c.verses) << c.title << c.chapter;
  EXPECT_TRUE(ui.said.empty());
  EXPECT_EQ(counts.GetVSCnt("Book 1", "70000", ui), "");
  EXPECT_EQ(ui.said, Texts{"6 GetVSCnt: Last Book 0\r\nLast Chap \"70000\"\r\nLast Index 0\r\n"
                           "A chapter from -32768 to 32767 was expected."});
}

}  // namespace
}  // namespace folionet
