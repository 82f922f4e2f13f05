#include <QComboBox>

#include "FormTest.h"

namespace folionet {
namespace {

class StartUp : public FormTest {};

TEST_F(StartUp, ShowsTheLibraryAndTheDefaults) {
  ASSERT_TRUE(Start());
  EXPECT_EQ(m_ui.log, Log{});
  const std::pair<const char*, std::string> shown[] = {
      {"cboBibleName", "Small Bible"},
      {"txtBibleSel", "Small Bible"},
      {"txtFilename", m_home.Path() + "library/Modules/Bible/SMALL.TXT"},
      {"cboStartBook", "Book1"},
      {"cboEndBook", "Book66"},
      {"cboLang", "BOOKS.TXT"},
      {"txtOutputPath", ""},
      {"txthttpRoot", ""},
      {"frmMain.StatusBar1_Panel2", "Language: en-us"},
      {"frmMain.StatusBar1_Panel3", "Charset: windows-1252"},
  };
  for (const auto& [control, text] : shown) EXPECT_EQ(Shown(control), text) << control;
  EXPECT_EQ(Get<QComboBox>("cboLang").count(), 2);
  EXPECT_EQ(m_state->glob.ChapterIndex.size(), 4U);
  EXPECT_EQ(m_state->glob.ChaptersInBook[1], 2);
}

// A setting that does not convert ends the start-up where it is read: what comes before is shown, what comes after
// keeps its initial value.
TEST_F(StartUp, ABadSettingEndsItWhereItIsRead) {
  const struct {
    const char* key;
    bool listsAreFilled;
    bool titlesAreLoaded;
    bool languageIsShown;
    const char* text = "x";
    const char* report = "13 Form Load - MAIN";
  } cases[] = {
      {"chkBack", false, false, false},       {"Use83", false, false, false},
      {"chkDoubleSpace", true, false, false}, {"WaterMark", true, false, false},
      {"lblActive", true, true, false},       {"BackColor", true, true, false},
      {"LinkBackSize", true, true, true},     {"FontBold", true, true, true},
      {"chkCSS", true, true, true},           {"Lang", true, true, false, "english", "5 Form Load - MAIN"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.key);
    Remove("config/Folionet.ini");
    Store(c.key, c.text);
    ASSERT_TRUE(Start());
    ASSERT_EQ(m_ui.log, Log{c.report});
    EXPECT_NE(m_ui.said[0].find(c.key), std::string::npos) << m_ui.said[0];
    EXPECT_EQ(m_ui.said[0].starts_with(m_home.Path() + "library/Modules/Bible/SMALL.TXT\r\n"), c.listsAreFilled);
    EXPECT_EQ(Get<QComboBox>("cboStartBook").count(), c.listsAreFilled ? 66 : 0);
    EXPECT_EQ(m_state->options.frmPAgeTitles.txtPageTitles.empty(), !c.titlesAreLoaded);
    EXPECT_EQ(Shown("frmMain.StatusBar1_Panel2").empty(), !c.languageIsShown);
  }
}

// No page is made without the settings that such a start left unread, and an exit keeps them.
TEST_F(StartUp, ABadSettingRefusesToCompileAndLosesNothing) {
  Store("BackColor", "x");
  Store("FontSize", "20");
  Store("Index_Alignment", "Center");
  ASSERT_TRUE(Start());
  ChooseOutput();
  Click("cmdCompile");
  EXPECT_EQ(m_ui.log, (Log{"13 Form Load - MAIN", "13 Form Load - MAIN"}));
  EXPECT_TRUE(std::filesystem::is_empty(m_home.Path() + "site"));
  Exit();
  EXPECT_EQ(Stored("FontSize"), "20");
  EXPECT_EQ(Stored("Index_Alignment"), "Center");
  EXPECT_EQ(Stored("BackColor"), "16777215");
}

TEST_F(StartUp, AMissingOrBadIndexEndsTheProgram) {
  const struct {
    const char* index;  // nullptr for none
    Log log;
  } cases[] = {
      {nullptr, {"INDEX File Not Found"}},
      {"1,0,1,1,256,50,\"B1\"\r\n", {"6 Load Verse Count", "File not found"}},
      {"1,0,1\r\n", {"62 BooksInChapters", "62 Load Verse Count", "File not found"}},
  };
  for (const auto& c : cases) {
    Remove("library/Index/SMALL.TXT.INDEX");
    if (c.index != nullptr) m_home.Write("library/Index/SMALL.TXT.INDEX", c.index);
    EXPECT_FALSE(Start());
    EXPECT_TRUE(m_hasEnded);
    EXPECT_EQ(m_ui.log, c.log);
    EXPECT_FALSE(m_home.Has("config/Folionet.ini"));
  }
}

TEST_F(StartUp, WithoutVersaliaAsksForItsFoldersFourTimes) {
  Remove("config/Versalia.ini");
  EXPECT_FALSE(Start());
  Log expected{"53 GetLang"};
  for (int i = 0; i < 4; ++i) {
    for (const char* box :
         {"76 Populate Combos", "Path and/or file not found", "Enter Versalia Path?", "Enter Module Path?"}) {
      expected.emplace_back(box);
    }
  }
  EXPECT_EQ(m_ui.log, expected);
  EXPECT_EQ(m_ui.said.at(3), "Enter the Versalia Path [C:\\Program Files\\Versalia\\]");
  EXPECT_TRUE(m_hasEnded);
}

TEST_F(StartUp, FoldersThatAreEnteredOrGivenForTheRunAreUsed) {
  const std::string library = m_home.Path() + "library/";
  Remove("config/Versalia.ini");
  m_ui.texts = {"", "", library, library + "Modules/"};
  ASSERT_TRUE(Start());
  EXPECT_EQ(Shown("cboBibleName"), "Small Bible");
  EXPECT_TRUE(m_ui.texts.empty());
  m_given = {library, ""};
  ASSERT_TRUE(Start());
  EXPECT_EQ(m_ui.log, Log{});
  EXPECT_EQ(Shown("cboBibleName"), "Small Bible");
}

TEST_F(StartUp, ARetryThatListsTranslationsTwiceStillCompilesTheRightOne) {
  const std::string good = m_home.Read("library/Sysdefs/BOOKS.TXT");
  m_home.Write("library/Sysdefs/BOOKS.TXT", "1\tGen\tGenesis\r\n");
  m_ui.texts = {m_home.Path() + "library/", m_home.Path() + "library/Modules/"};
  m_ui.onMessage = [&] { m_home.Write("library/Sysdefs/BOOKS.TXT", good); };
  ASSERT_TRUE(Start());
  auto& list = Get<QComboBox>("cboBibleName");
  ASSERT_EQ(list.count(), 4);
  list.setCurrentIndex(3);
  emit list.activated(3);
  EXPECT_EQ(Shown("txtFilename"), m_home.Path() + "library/Modules/Bible/OTHER.TXT");
}

TEST_F(StartUp, ACatalogueWithoutATextLeavesNothingToCompile) {
  Remove("library/Modules/Bible/SMALL.TXT");
  Remove("library/Modules/Bible/OTHER.TXT");
  ASSERT_TRUE(Start());
  EXPECT_EQ(Get<QComboBox>("cboBibleName").currentIndex(), -1);
  ChooseOutput();
  Click("cmdCompile");
  EXPECT_EQ(m_ui.said, Log{"Please Select a Bible to compile first"});
}

}  // namespace
}  // namespace folionet
