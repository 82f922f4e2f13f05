#include "FolderTree.h"
#include "MainFormTest.h"
#include "RunTimeError.h"

namespace folionet {
namespace {

using Log = std::vector<std::string>;

class LibraryOnForm : public MainFormTest {};

TEST_F(LibraryOnForm, AChosenTranslationIsRead) {
  ASSERT_TRUE(Start());
  Choose("cboBibleName", 1);
  EXPECT_EQ(TextOf("txtBibleSel"), "Other Bible");
  EXPECT_EQ(TextOf("txtFilename"), m_library.Path() + "Modules/Bible/OTHER.TXT");
  EXPECT_EQ(m_state->options.txtBibleSel, "Other Bible");
  EXPECT_EQ(m_state->glob.ChapterIndex.size(), 2U);
}

TEST_F(LibraryOnForm, AChosenTranslationWithoutIndexEndsTheProgram) {
  m_library.Remove("Index/OTHER.TXT.INDEX");
  ASSERT_TRUE(Start());
  Choose("cboBibleName", 1);
  EXPECT_EQ(m_ui->log, (Log{"report Load Verse Count", "message File not found"}));
  EXPECT_TRUE(m_hasEnded);
}

TEST_F(LibraryOnForm, AChosenLanguageFillsTheBooksOnce) {
  ASSERT_TRUE(Start());
  Get<QComboBox>("cboStartBook").setCurrentIndex(2);
  EXPECT_EQ(m_state->startBookText, "Book3");
  for (int i = 0; i < 2; ++i) {
    Choose("cboLang", 0);
    EXPECT_EQ(Stored("cboLang"), "BOOKS_DUTCH.TXT");
    EXPECT_EQ(Get<QComboBox>("cboStartBook").count(), 66);
    EXPECT_EQ(Get<QComboBox>("cboEndBook").count(), 66);
    EXPECT_EQ(ListText("cboStartBook"), "Boek1");
    EXPECT_EQ(ListText("cboEndBook"), "Boek66");
    EXPECT_EQ(m_state->startBookText, "Boek1");
    EXPECT_EQ(Get<QComboBox>("cboBibleName").count(), 2);
  }
}

TEST_F(LibraryOnForm, ABadLanguageFileAsksForTheFoldersAndEnds) {
  ASSERT_TRUE(Start());
  m_library.Write("Sysdefs/BOOKS_DUTCH.TXT", "1\tGen\tGenesis\r\n");
  Choose("cboLang", 0);
  EXPECT_EQ(m_ui->reports.size(), 4U);
  EXPECT_EQ(m_ui->reports[0].label, "Populate Combos");
  EXPECT_TRUE(m_hasEnded);
}

TEST_F(LibraryOnForm, NamesFollowTheCharset) {
  m_library.Write("Sysdefs/Translations.txt", "1,0,\"B\xE9ta\",\"SMALL\"\r\n");
  ASSERT_TRUE(Start());
  EXPECT_EQ(ListText("cboBibleName"), "B\xC3\xA9ta");
  m_form->OptionDialogs().openModal = [this](QDialog&) { m_state->texts.PageCharset = "iso-8859-7"; };
  Get<QComboBox>("cboEndBook").setCurrentIndex(4);
  Click("cmdPageEncoding");
  EXPECT_EQ(ListText("cboBibleName"), "B\xCE\xB9ta");
  EXPECT_EQ(TextOf("txtBibleSel"), "B\xCE\xB9ta");
  EXPECT_EQ(m_state->options.txtBibleSel, "B\xE9ta");
  EXPECT_EQ(Get<QComboBox>("cboEndBook").currentIndex(), 4);
}

TEST_F(LibraryOnForm, ARetryThatListsTranslationsTwiceStillCompilesTheRightOne) {
  const std::string good = Bytes(m_library.Path() + "Sysdefs/BOOKS.TXT");
  m_library.Write("Sysdefs/BOOKS.TXT", "1\tGen\tGenesis\r\n");
  m_script = [&](ScriptedUi& ui) {
    ui.texts = {m_library.Path(), m_library.Path() + "Modules/"};
    ui.onMessage = [&](const Message&) { m_library.Write("Sysdefs/BOOKS.TXT", good); };
  };
  ASSERT_TRUE(Start());
  EXPECT_EQ(Get<QComboBox>("cboBibleName").count(), 4);
  Choose("cboBibleName", 3);
  EXPECT_EQ(TextOf("txtFilename"), m_library.Path() + "Modules/Bible/OTHER.TXT");
}

class FoldersOnForm : public MainFormTest {};

TEST_F(FoldersOnForm, AnUntouchedStartChoosesNothing) {
  ASSERT_TRUE(Start());
  EXPECT_EQ(FromQt(Get<FolderTree>("Dir1").Path()), m_home.string());
  EXPECT_EQ(m_form->Folders().OutputPath(), "txtOutputPath");
  m_ui->yesNo = {true};
  Click("cmdClose");
  EXPECT_EQ(Stored("Dir1"), "C:");
  EXPECT_EQ(Stored("Drive1"), "C:");
}

TEST_F(FoldersOnForm, ChoosingAFolderSetsTheOutputPath) {
  ASSERT_TRUE(Start());
  auto& tree = Get<FolderTree>("Dir1");
  QTreeWidgetItem* home = tree.topLevelItem(0);
  ASSERT_EQ(home->childCount(), 4);  // config, library, program, site
  tree.setCurrentItem(home->child(3));
  EXPECT_EQ(TextOf("txtOutputPath"), m_output.string() + "/");
  EXPECT_EQ(m_state->glob.OutputFolder, m_output.string() + "/");
  home->child(1)->setExpanded(true);
  EXPECT_EQ(home->child(1)->childCount(), 3);
  Choose("Drive1", 1);
  EXPECT_EQ(TextOf("txtOutputPath"), "/");
  EXPECT_EQ(m_state->main.Drive1, "/");
}

TEST_F(FoldersOnForm, TheCurrentFolderIsChosenByAClick) {
  ASSERT_TRUE(Start());
  auto& tree = Get<FolderTree>("Dir1");
  emit tree.itemClicked(tree.topLevelItem(0), 0);
  EXPECT_EQ(TextOf("txtOutputPath"), m_home.string() + "/");
}

TEST_F(FoldersOnForm, BrowseTakesAFolderOfAnyDriveAndACancelNone) {
  ASSERT_TRUE(Start());
  Click("cmdBrowse");  // cancelled
  EXPECT_EQ(TextOf("txtOutputPath"), "");
  m_ui->folders = {"/usr", m_output.string()};
  Click("cmdBrowse");
  EXPECT_EQ(TextOf("txtOutputPath"), "/usr/");
  EXPECT_EQ(Get<QComboBox>("Drive1").currentIndex(), 1);
  Click("cmdBrowse");
  EXPECT_EQ(m_ui->folderInitials, (std::vector<std::string>{"", "", "/usr/"}));
  EXPECT_EQ(FromQt(Get<FolderTree>("Dir1").Path()), m_output.string());
  Click("cmdBrowse");  // cancelled
  EXPECT_EQ(TextOf("txtOutputPath"), m_output.string() + "/");
}

TEST_F(FoldersOnForm, ADriveThatIsNotReadyIsReportedAndLeft) {
  ASSERT_TRUE(Start());
  ChooseOutput();
  Get<QComboBox>("Drive1").addItem("Stick", ToQt((m_home / "gone").string()));
  Choose("Drive1", 2);
  ASSERT_EQ(m_ui->log, Log{"report Drive_Change"});
  EXPECT_EQ(m_ui->reports[0].extra.find("Drive not Ready or Drive not Available.\r\n" + m_home.string() + "/gone"), 0U);
  EXPECT_EQ(Get<QComboBox>("Drive1").currentIndex(), 0);
  EXPECT_EQ(TextOf("txtOutputPath"), m_output.string() + "/");
}

TEST_F(FoldersOnForm, StoredPlaces) {
  const std::string home = m_home.string();
  std::filesystem::create_directories(m_home / ".hidden/deep");
  const struct {
    std::string drive, folder;
    std::string outputPath;
    int drives;  // the item that is shown
    Log log;
  } kCases[] = {
      {home, home + "/site", home + "/site/", 0, {}},
      {"/", "/usr", "/usr/", 1, {}},
      {"C:", home + "/site", home + "/site/", 0, {}},
      {"C:", "/usr/", "/usr/", 1, {}},
      {home, home + "\\site", home + "/site/", 0, {}},
      {home, home + "/.hidden/deep", home + "/.hidden/deep/", 0, {}},
      {home, home + "/gone", "", 0, {"report Drive_Change"}},
      {home + "/gone", home + "/site", home + "/site/", 0, {"report Drive_Change"}},
  };
  for (const auto& row : kCases) {
    SCOPED_TRACE(row.drive + " " + row.folder);
    Store("Drive1", row.drive);
    Store("Dir1", row.folder);
    ASSERT_TRUE(Start());
    EXPECT_EQ(m_ui->log, row.log);
    EXPECT_EQ(TextOf("txtOutputPath"), row.outputPath);
    EXPECT_EQ(Get<QComboBox>("Drive1").currentIndex(), row.drives);
  }
}

}  // namespace
}  // namespace folionet
