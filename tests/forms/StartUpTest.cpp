#include "MainFormTest.h"
#include "RunTimeError.h"
#include "TextCombo.h"

namespace folionet {
namespace {

using Log = std::vector<std::string>;

class StartUp : public MainFormTest {};

TEST_F(StartUp, ShowsTheLibraryAndTheDefaults) {
  ASSERT_TRUE(Start());
  EXPECT_EQ(m_ui->log, Log{});
  EXPECT_EQ(FromQt(m_form->windowTitle()), "Versalia HTML Bible Compiler Ver 1.0.0");
  EXPECT_EQ(ListText("cboBibleName"), "Small Bible");
  EXPECT_EQ(TextOf("txtBibleSel"), "Small Bible");
  EXPECT_EQ(TextOf("txtFilename"), m_library.Path() + "Modules/Bible/SMALL.TXT");
  EXPECT_EQ(ListText("cboStartBook"), "Book1");
  EXPECT_EQ(ListText("cboEndBook"), "Book66");
  EXPECT_EQ(FromQt(Get<TextCombo>("cboLang").Text()), "BOOKS.TXT");
  EXPECT_EQ(Get<QComboBox>("cboLang").count(), 2);
  EXPECT_EQ(TextOf("txtOutputPath"), "");
  EXPECT_EQ(TextOf("txthttpRoot"), "");
  EXPECT_EQ(Panel(2), "Language: en-us");
  EXPECT_EQ(Panel(3), "Charset: windows-1252");
  EXPECT_EQ(m_state->glob.ChapterIndex.size(), 4U);
  EXPECT_EQ(m_state->glob.ChaptersInBook[1], 2);
}

TEST_F(StartUp, EveryDialogLoadsItsOptions) {
  std::ofstream(m_home / "program/CustomHeader.txt") << "<b>top</b>\r\n";
  std::ofstream(m_home / "program/CustomFooter.txt") << "<b>foot</b>\r\n";
  Store("BackImage", "paper.gif");
  Store("PageTitles", "%bk%");
  Store("lblActive", "1");
  Store("Keywords", "words");
  Store("LinkToMain", "back");
  ASSERT_TRUE(Start());
  EXPECT_EQ(m_state->texts.CustomHeader, "<b>top</b>\r\n");
  EXPECT_EQ(m_state->texts.CustomFooter, "<b>foot</b>\r\n");
  EXPECT_EQ(m_state->options.frmBackground.txtImagepath, "paper.gif");
  EXPECT_EQ(m_state->options.frmPAgeTitles.txtPageTitles, "%bk%");
  EXPECT_EQ(m_state->texts.BodyLinkTag, "<body  alink=\"#010000\"");
  EXPECT_EQ(m_state->options.frmKeywords.txtKeyWords, "words");
  EXPECT_EQ(m_state->options.frmLinkToMAin.txtLinkToMain, "back");
}

// A setting that does not convert ends the start-up where it is read: what comes before is shown, what comes after
// keeps its initial value.
TEST_F(StartUp, ABadSettingEndsItWhereItIsRead) {
  const struct {
    const char* key;
    bool listsAreFilled;
    bool titlesAreLoaded;
    bool languageIsShown;
  } kCases[] = {
      {"chkBack", false, false, false},   {"Use83", false, false, false},   {"chkDoubleSpace", true, false, false},
      {"WaterMark", true, false, false},  {"lblActive", true, true, false}, {"BackColor", true, true, false},
      {"LinkBackSize", true, true, true}, {"FontBold", true, true, true},   {"chkCSS", true, true, true},
  };
  for (const auto& row : kCases) {
    SCOPED_TRACE(row.key);
    Store(row.key, "x");
    ASSERT_TRUE(Start());
    EXPECT_EQ(m_ui->log, Log{"report Form Load - MAIN"});
    EXPECT_EQ(m_ui->reports[0].number, kTypeMismatch);
    EXPECT_NE(m_ui->reports[0].extra.find(std::string("The setting ") + row.key), std::string::npos);
    EXPECT_EQ(m_ui->reports[0].extra.find(m_library.Path() + "Modules/Bible/SMALL.TXT") == 0, row.listsAreFilled);
    EXPECT_EQ(Get<QComboBox>("cboStartBook").count(), row.listsAreFilled ? 66 : 0);
    EXPECT_EQ(m_state->options.frmPAgeTitles.txtPageTitles.empty(), !row.titlesAreLoaded);
    EXPECT_EQ(Panel(2).empty(), !row.languageIsShown);
    std::filesystem::remove(m_home / "config/Folionet.ini");
  }
}

TEST_F(StartUp, AnEntryWithoutACodeIsReported) {
  Store("Lang", "english");
  ASSERT_TRUE(Start());
  EXPECT_EQ(m_ui->log, Log{"report Form Load - MAIN"});
  EXPECT_EQ(m_ui->reports[0].number, kInvalidProcedureCall);
  EXPECT_EQ(Panel(3), "Charset: windows-1252");
  EXPECT_EQ(Panel(2), "");
}

TEST_F(StartUp, AMissingOrBadIndexEndsTheProgram) {
  const struct {
    const char* index;  // nullptr for none
    Log log;
  } kCases[] = {
      {nullptr, {"message INDEX File Not Found"}},
      {"1,0,1,1,256,50,\"B1\"\r\n", {"report Load Verse Count", "message File not found"}},
      {"1,0,1\r\n", {"report BooksInChapters", "report Load Verse Count", "message File not found"}},
  };
  for (const auto& row : kCases) {
    m_library.Remove("Index/SMALL.TXT.INDEX");
    if (row.index != nullptr) m_library.Write("Index/SMALL.TXT.INDEX", row.index);
    EXPECT_FALSE(Start());
    EXPECT_TRUE(m_hasEnded);
    EXPECT_EQ(m_ui->log, row.log);
    EXPECT_FALSE(std::filesystem::exists(m_home / "config/Folionet.ini"));
  }
}

TEST_F(StartUp, WithoutVersaliaAsksForItsFoldersFourTimes) {
  std::filesystem::remove(m_home / "config/Versalia.ini");
  EXPECT_FALSE(Start());
  Log expected{"report GetLang"};
  for (int i = 0; i < 4; ++i) {
    for (const char* box : {"report Populate Combos", "message Path and/or file not found", "input Enter Versalia Path",
                            "input Enter Module Path"}) {
      expected.emplace_back(box);
    }
  }
  EXPECT_EQ(m_ui->log, expected);
  EXPECT_TRUE(m_hasEnded);
}

TEST_F(StartUp, FoldersThatAreEnteredAreUsed) {
  std::filesystem::remove(m_home / "config/Versalia.ini");
  m_script = [this](ScriptedUi& ui) { ui.texts = {"", "", m_library.Path(), m_library.Path() + "Modules/"}; };
  ASSERT_TRUE(Start());
  EXPECT_EQ(m_ui->inputBoxes.size(), 4U);
  EXPECT_EQ(ListText("cboBibleName"), "Small Bible");
  EXPECT_EQ(m_ui->inputBoxes[0].prompt, "Enter the Versalia Path");
  EXPECT_EQ(m_ui->inputBoxes[0].defaultText, "C:\\Program Files\\Versalia\\");
}

TEST_F(StartUp, FoldersGivenForTheRunWin) {
  std::filesystem::remove(m_home / "config/Versalia.ini");
  AppState state{*(m_store = std::make_unique<SettingsStore>((m_home / "config").string())),
                 *(m_ui = std::make_unique<ScriptedUi>()),
                 (m_home / "program/").string(),
                 {m_library.Path(), ""}};
  frmMain form(state);
  ASSERT_TRUE(form.LoadForm());
  EXPECT_EQ(m_ui->log, Log{});
  EXPECT_EQ(state.glob.cboBibleName.size(), 2U);
}

TEST_F(StartUp, ACatalogueWithoutATextLeavesNothingSelected) {
  m_library.Remove("Modules/Bible/SMALL.TXT");
  m_library.Remove("Modules/Bible/OTHER.TXT");
  ASSERT_TRUE(Start());
  EXPECT_EQ(m_ui->log, Log{});
  EXPECT_EQ(Get<QComboBox>("cboBibleName").currentIndex(), -1);
  ChooseOutput();
  Click("cmdCompile");
  ASSERT_EQ(m_ui->messages.size(), 1U);
  EXPECT_EQ(m_ui->messages[0].text, "Please Select a Bible to compile first");
}

TEST_F(StartUp, ALanguageThatIsNotListedIsShownAllTheSame) {
  Store("cboLang", "BOOKS_DUTCH.TXT");
  ASSERT_TRUE(Start());
  EXPECT_EQ(Get<QComboBox>("cboLang").currentText(), "BOOKS_DUTCH.TXT");
  EXPECT_EQ(ListText("cboStartBook"), "Boek1");
}

}  // namespace
}  // namespace folionet
