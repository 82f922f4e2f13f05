#include <gtest/gtest.h>

#include "Catalogue.h"
#include "RecordingUi.h"
#include "SettingsStore.h"
#include "TinyLibrary.h"

namespace folionet {
namespace {

using test::RecordingUi;
using test::TinyLibrary;
using Texts = std::vector<std::string>;

constexpr char kWarning[] =
    "Path and/or file not found: This error has probably occured because you have an older version of Versalia\r\n"
    "or because Versalia is not correctly installed.\r\n"
    "Folionet will attempt to gather the correct information manually\r\n"
    "You will need to enter the values for the following:\r\n"
    "1. The Versalia Path\r\n"
    "2. The Versalia Module Path";
constexpr char kAskInstall[] = "Enter Versalia Path? Enter the Versalia Path [C:\\Program Files\\Versalia\\]";
constexpr char kAskModules[] =
    "Enter Module Path? Enter the Versalia Module Path [C:\\Program Files\\Versalia\\Modules\\]";

TEST(CatalogueTest, ListsTranslationsWhoseTextIsThere) {
  TinyLibrary library;
  library.folder.Write("sysdefs/translations.TXT",
                       "1,0,\"First, the\",\"ONE\"\r\n"
                       "1000,0,\"Hidden\",\"TWO\"\r\n"
                       "2,0,Missing,GONE\r\n"
                       "999,0,Second,two\r\n"
                       "3,0,Missing too,GONE2\r\n");
  library.folder.Write("Modules/bible/ONE.TXT", "");
  library.folder.Write("Modules/bible/Two.txt", "");
  ReadCatalogue(library.glob, CodePage());
  EXPECT_EQ(library.glob.cboBibleName, (Texts{"First, the", "Second"}));
  EXPECT_EQ(library.glob.BibleNames, (Texts{"First, the", "Second", "Missing too"}));  // the last is the spare one
  EXPECT_EQ(library.glob.BibleFiles, (Texts{"ONE", "two", "GONE2"}));
}

TEST(CatalogueTest, StemsAreInTheCodePage) {
  TinyLibrary library;
  library.folder.Write("Sysdefs/Translations.txt", "1,0,\"Jos\xE9\",\"Jos\xE9\"\r\n");
  library.folder.Write("Modules/Bible/José.TXT", "");
  ReadCatalogue(library.glob, CodePage());
  EXPECT_EQ(library.glob.cboBibleName, Texts{"Jos\xE9"});
}

TEST(CatalogueTest, RefusesBadRecordsNamingFileAndLine) {
  const struct {
    const char* records;
    const char* said;
  } cases[] = {
      {"1,0,A,B\nx,0,A,B\n", "13 Populate Combos: FILE\r\nLine 2\r\nA number was expected: \"x\""},
      {"1,y,A,B\n", "13 Populate Combos: FILE\r\nLine 1\r\nA number was expected: \"y\""},
      {"99999999999,0,A,B\n",
       "6 Populate Combos: FILE\r\nLine 1\r\nA number from -2147483648 to 2147483647 was expected: \"99999999999\""},
      {"1,0,A\n", "62 Populate Combos: FILE\r\nLine 1\r\nA record of 4 fields was expected, 3 found: \"1,0,A\""},
      {"1,0,A,\"../B\"\n", "52 Populate Combos: FILE\r\nLine 1\r\nA file name without a folder was expected: \"../B\""},
      {"1,0,A,\"x\\B\"\n", "52 Populate Combos: FILE\r\nLine 1\r\nA file name without a folder was expected: \"x\\B\""},
  };
  for (const auto& c : cases) {
    TinyLibrary library;
    const std::string path = library.folder.Write("Sysdefs/Translations.txt", c.records);
    RecordingUi ui;
    EXPECT_EQ(PopulateCombos(1, "BOOKS.TXT", library.glob, CodePage(), ui), Outcome::kEndProgram);
    std::string said = c.said;
    said.replace(said.find("FILE"), 4, path);
    EXPECT_EQ(ui.said, (Texts{said, kWarning, kAskInstall})) << c.records;
    EXPECT_TRUE(library.glob.cboBibleName.empty());
  }
}

TEST(CatalogueTest, AsksForTheFoldersAndStartsAgain) {
  const TinyLibrary right;
  right.folder.Write("SysDefs/Translations.txt", "1,0,Name,STEM\n");
  right.folder.Write("SysDefs/BOOKS.TXT", test::TitleLines());
  right.folder.Write("Modules/Bible/STEM.TXT", "");
  ModGlob glob;
  RecordingUi ui;
  ui.answers = {"", "", right.folder.Path(), right.folder.Path() + "Modules/"};
  EXPECT_EQ(PopulateCombos(1, "BOOKS.TXT", glob, CodePage(), ui), Outcome::kDone);
  EXPECT_EQ(glob.cboBibleName, Texts{"Name"});
  EXPECT_EQ(glob.cboEndBook.size(), 66U);
  EXPECT_EQ(glob.SysdefsPath, right.folder.Path() + "SysDefs/");
  ASSERT_EQ(ui.said.size(), 8U);
  EXPECT_EQ(ui.said[3], kAskModules);
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

TEST(CatalogueTest, ARetryAfterBadTitlesListsTheTranslationsTwice) {
  TinyLibrary library;
  library.folder.Write("Sysdefs/Translations.txt", "1,0,Name,STEM\n");
  library.folder.Write("Modules/Bible/STEM.TXT", "");
  RecordingUi ui;
  ui.answers.assign(2, library.folder.Path());
  EXPECT_EQ(PopulateCombos(1, "BOOKS.TXT", library.glob, CodePage(), ui), Outcome::kEndProgram);
  EXPECT_EQ(library.glob.cboBibleName, Texts{"Name"});  // the second try looked for the texts elsewhere
  library.glob.BibleNames = {"Name", ""};
  library.glob.cboBibleName = {"Name", "Name"};
  EXPECT_EQ(TranslationAt(library.glob, 0), 0U);
  EXPECT_EQ(TranslationAt(library.glob, 1), 0U);
}

TEST(InstallationTest, TakesGivenFoldersBeforeStoredOnes) {
  const struct {
    const char* stored;
    GivenFolders given;
    const char* install;
    const char* modules;
  } cases[] = {
      {"", {}, "", ""},
      {"[Module_Path]\nVersaliaPath=/v/\nModulePath=/m/\n", {}, "/v/", "/m/"},
      {"[Module_Path]\nVersaliaPath=C:\\Program Files\\new\\\n",
       {},
       "C:\\Program Files\\new\\",
       "C:\\Program Files\\new\\Modules/"},
      {"[Module_Path]\nVersaliaPath=/v/\nModulePath=/m/\n", {"/g", ""}, "/g/", "/m/"},
      {"", {"/g/", "/h"}, "/g/", "/h/"},
  };
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

}  // namespace
}  // namespace folionet
