#include <gtest/gtest.h>

#include <array>

#include "BookTitles.h"
#include "Catalogue.h"
#include "ChapterIndex.h"
#include "RecordingUi.h"
#include "RunTimeError.h"
#include "SettingsStore.h"
#include "TemporaryFolder.h"

// What runs of the command line do not reach; those are in tests/runs.

namespace folionet {
namespace {

using test::RecordingUi;
using Texts = std::vector<std::string>;

// A library folder with book titles, whose files a test writes, and the folders set in `glob`.
struct TinyLibrary {
  TinyLibrary() {
    SetInstallation(glob, folder.Path(), folder.Path() + "Modules/", "SysDefs");
    std::string titles;
    for (int i = 1; i <= kBooks; ++i) titles += std::to_string(i) + "\tB" + std::to_string(i) + "\tBook\r\n";
    folder.Write("SysDefs/BOOKS.TXT", titles);
    folder.Write("Modules/Bible/STEM.TXT", "");
    folder.Write("SysDefs/Translations.txt", "1,0,Name,STEM\n2,0,Missing,GONE\n");
    index = folder.Path() + "Index/STEM.TXT.INDEX";
  }

  test::TemporaryFolder folder;
  ModGlob glob;
  std::string index;
};

TEST(CatalogueTest, KeepsOneSpareElement) {
  TinyLibrary library;
  ReadCatalogue(library.glob, CodePage());
  EXPECT_EQ(library.glob.cboBibleName, Texts{"Name"});
  EXPECT_EQ(library.glob.BibleNames, (Texts{"Name", "Missing"}));
  EXPECT_EQ(library.glob.BibleFiles, (Texts{"STEM", "GONE"}));
  library.glob.cboBibleName = {"Name", "Name"};  // as after a second try
  EXPECT_EQ(TranslationAt(library.glob, 0), 0U);
  EXPECT_EQ(TranslationAt(library.glob, 1), 0U);
}

TEST(CatalogueTest, AsksForTheFoldersAndStartsAgain) {
  const TinyLibrary right;
  ModGlob glob;
  RecordingUi ui;
  ui.answers = {"", "", right.folder.Path(), right.folder.Path() + "Modules/"};
  EXPECT_EQ(PopulateCombos(1, "BOOKS.TXT", glob, CodePage(), ui), Outcome::kDone);
  EXPECT_EQ(glob.cboBibleName, Texts{"Name"});
  EXPECT_EQ(glob.cboEndBook.size(), 66U);
  EXPECT_EQ(glob.SysdefsPath, right.folder.Path() + "SysDefs/");
  ASSERT_EQ(ui.said.size(), 8U);
  EXPECT_EQ(ui.said[2], "Enter Versalia Path? Enter the Versalia Path [C:\\Program Files\\Versalia\\]");
  EXPECT_EQ(ui.said[3], "Enter Module Path? Enter the Versalia Module Path [C:\\Program Files\\Versalia\\Modules\\]");
}

TEST(CatalogueTest, EndsAtTheFourthFailureAfterAskingOnceMore) {
  ModGlob glob;
  RecordingUi ui;
  ui.answers.assign(20, "");
  EXPECT_EQ(PopulateCombos(1, "BOOKS.TXT", glob, CodePage(), ui), Outcome::kEndProgram);
  EXPECT_EQ(ui.answers.size(), 12U);
  EXPECT_EQ(ui.said.size(), 16U);
  EXPECT_EQ(ui.said[12], "76 Populate Combos: SysDefs/Translations.txt\r\nNo such file or directory");
}

TEST(InstallationTest, TakesGivenFoldersBeforeStoredOnes) {
  const struct {
    const char* stored;
    GivenFolders given;
    const char* install;
    const char* modules;
  } cases[] = {{"", {}, "", ""},
               {"[Module_Path]\nVersaliaPath=/v/\nModulePath=/m/\n", {}, "/v/", "/m/"},
               {"[Module_Path]\nVersaliaPath=C:\\Program Files\\new\\\n",
                {},
                "C:\\Program Files\\new\\",
                "C:\\Program Files\\new\\Modules/"},
               {"[Module_Path]\nVersaliaPath=/v/\nModulePath=/m/\n", {"/g", ""}, "/g/", "/m/"},
               {"", {"/g/", "/h"}, "/g/", "/h/"}};
  for (const auto& c : cases) {
    const test::TemporaryFolder folder;
    folder.Write("Versalia.ini", c.stored);
    const SettingsStore store(folder.Path());
    ModGlob glob;
    LocateInstallation(store, c.given, glob);
    EXPECT_EQ(glob.InstallPath, c.install);
    EXPECT_EQ(glob.ModulesPath, c.modules);
    EXPECT_EQ(glob.SysdefsPath, glob.InstallPath + "Sysdefs/");
  }
}

// Index records for chapters given as {book, chapter, verses}.
std::string Records(const std::vector<std::array<int, 3>>& chapters) {
  std::string records;
  for (const auto& [book, chapter, verses] : chapters) {
    records +=
        "1,0," + std::to_string(book) + "," + std::to_string(chapter) + "," + std::to_string(verses) + ",9,\"Gen\"\r\n";
  }
  return records;
}

TEST(BooksInChaptersTest, CountsByOrderOfAppearance) {
  const struct {
    std::vector<std::array<int, 3>> chapters;
    std::array<std::int16_t, 4> counts;  // of books 1 to 4
  } cases[] = {{{{1, 1, 9}, {1, 2, 9}, {2, 1, 9}, {2, 2, 9}, {2, 3, 9}, {3, 1, 9}}, {2, 3, 1, 0}},
               {{{1, 1, 9}, {2, 1, 9}, {1, 2, 9}}, {1, 1, 1, 0}},
               {{{40, 1, 9}, {40, 2, 9}}, {2, 0, 0, 0}},
               {{{0, 1, 9}}, {1, 0, 0, 0}},
               {{}, {0, 0, 0, 0}}};
  for (const auto& c : cases) {
    TinyLibrary library;
    library.folder.Write("Index/STEM.TXT.INDEX", Records(c.chapters));
    library.glob.BibleFiles = {"STEM"};
    library.glob.ChaptersInBook.fill(77);
    RecordingUi ui;
    EXPECT_EQ(BooksInChapters(library.glob, 0, CodePage(), ui), Outcome::kDone);
    for (std::size_t i = 0; i < c.counts.size(); ++i) EXPECT_EQ(library.glob.ChaptersInBook[i + 1], c.counts[i]) << i;
    EXPECT_TRUE(ui.said.empty());
  }
}

TEST(LoadVerseCountTest, KeepsOneSpareElement) {
  TinyLibrary library;
  library.folder.Write("Index/STEM.TXT.INDEX", Records({{1, 1, 31}, {66, 255, 0}}));
  RecordingUi ui;
  for (int i = 0; i < 2; ++i) {
    EXPECT_EQ(LoadVerseCount(library.glob, library.index, ui), Outcome::kDone);
    ASSERT_EQ(library.glob.ChapterIndex.size(), 3U);
    EXPECT_EQ(library.glob.ChapterIndex[0].Verses, 31);
    EXPECT_EQ(library.glob.ChapterIndex[1].Chapter, 255);
    EXPECT_EQ(library.glob.ChapterIndex[2].Book, 0);
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
  } cases[] = {{"Book 1", "1", "6"}, {"Book 2", "12abc", "7"}, {"Book 2", "13", ""},
               {"book 2", "12", ""}, {"None", "1", ""},        {"None", "0", "0"},
               {"None", "", "0"},    {"", "", "99"},           {"Book 2", "-1", ""}};
  RecordingUi ui;
  for (const auto& c : cases) EXPECT_EQ(counts.GetVSCnt(c.title, c.chapter, ui), c.verses) << c.title << c.chapter;
  EXPECT_TRUE(ui.said.empty());
  EXPECT_EQ(counts.GetVSCnt("Book 1", "70000", ui), "");
  EXPECT_EQ(ui.said, Texts{"6 GetVSCnt: Last Book 0\r\nLast Chap \"70000\"\r\nLast Index 0\r\n"
                           "A chapter from -32768 to 32767 was expected."});
}

}  // namespace
}  // namespace folionet
