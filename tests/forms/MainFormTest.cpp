#include <QComboBox>
#include <QDialog>
#include <QShortcut>
#include <QTest>

#include "FolderTree.h"
#include "FormTest.h"
#include "frmMain.h"

namespace folionet {
namespace {

class MainForm : public FormTest {};

TEST_F(MainForm, WhatAStartEnables) {
  const struct {
    const char* css;
    const char* back;
    bool chkBack, cmdBackColour, others;
  } cases[] = {{"0", "0", true, true, true},
               {"0", "1", true, false, true},
               {"1", "0", false, false, false},
               {"1", "1", false, false, false}};
  for (const auto& c : cases) {
    SCOPED_TRACE(std::string("chkCSS ") + c.css + " chkBack " + c.back);
    Store("chkCSS", c.css);
    Store("chkBack", c.back);
    ASSERT_TRUE(Start());
    EXPECT_EQ(IsEnabled("chkBack"), c.chkBack);
    EXPECT_EQ(IsEnabled("cmdBackColour"), c.cmdBackColour);
    for (const char* name :
         {"txtSample", "cmdForeColour", "cmdFont", "frmAlignment", "optAlignLeft", "OptAlignCenter", "OptAlignJust"}) {
      EXPECT_EQ(IsEnabled(name), c.others) << name;
    }
    EXPECT_TRUE(IsEnabled("cmdEffects"));
  }
}

TEST_F(MainForm, AClickOnTheStyleSheetOptionIsOneChange) {
  ASSERT_TRUE(Start());
  Click("cmdLinkToMain");
  EXPECT_TRUE(IsEnabled("frmLinkToMAin.cboSize"));
  Click("chkCSS");
  EXPECT_EQ(Stored("chkCSS"), "1");
  EXPECT_FALSE(IsEnabled("cmdEffects"));
  EXPECT_FALSE(IsEnabled("txtSample"));
  EXPECT_EQ(m_ui.log, Log{"CSS file to be used"});
  EXPECT_EQ(m_ui.said, Log{"Cascading Style Sheet 'default.css' will be used.\r\nPlease customize as required."});
  Click("cmdLinkToMain");
  EXPECT_FALSE(IsEnabled("frmLinkToMAin.cboSize"));
  QTest::keyClick(&Get("chkCSS"), Qt::Key_Space);
  EXPECT_EQ(Stored("chkCSS"), "0");
  EXPECT_TRUE(IsEnabled("cmdEffects"));
  EXPECT_TRUE(IsEnabled("cmdBackColour"));
  EXPECT_EQ(m_ui.log.size(), 1U);
}

TEST_F(MainForm, AClickOnTheBackgroundOptionIsOneChange) {
  ASSERT_TRUE(Start());
  m_whenOpen = [this](QWidget&) {
    EXPECT_EQ(Shown("chkBack"), "1");
    EXPECT_FALSE(IsEnabled("cmdBackColour"));
    EXPECT_EQ(Stored("chkBack"), "<missing>");
  };
  QTest::mouseClick(&Get("chkBack"), Qt::LeftButton);
  EXPECT_EQ(m_opened, Log{"frmBackground"});
  EXPECT_EQ(Stored("chkBack"), "1");
  Click("chkCSS");
  Click("chkCSS");
  EXPECT_FALSE(IsEnabled("cmdBackColour"));
  Click("chkBack");
  EXPECT_EQ(m_opened.size(), 1U);
  EXPECT_EQ(Stored("chkBack"), "0");
  EXPECT_TRUE(IsEnabled("cmdBackColour"));
}

TEST_F(MainForm, ButtonsOpenTheirDialogs) {
  ASSERT_TRUE(Start());
  for (const char* button : {"cmdPageTitles", "cmdKeyWords", "cmdEffects", "cmdLinkToMain", "cmdCustomHeader",
                             "cmdCustomFooter", "cmdPageEncoding"}) {
    Click(button);
  }
  EXPECT_EQ(m_opened, (Log{"frmPAgeTitles", "frmKeywords", "frmEffects", "frmLinkToMAin", "frmCustomHeader",
                           "frmCustomizeFooter", "frmEncoding"}));
  Click("cmdHelp");
  auto* help = m_form->findChild<QDialog*>(QStringLiteral("HelpWindow"));
  EXPECT_TRUE(help->isVisible());
  help->hide();
  for (auto* shortcut : m_form->findChildren<QShortcut*>()) {
    if (shortcut->key() == QKeySequence(Qt::Key_F1)) emit shortcut->activated();
  }
  EXPECT_TRUE(help->isVisible());
}

TEST_F(MainForm, AlignmentAtStartAndAtExit) {
  const struct {
    const char* alignmentLR;
    const char* indexAlignment;  // "<missing>" for a missing key
    const char* selected;
    const char* text;
  } cases[] = {
      {"Left", "Left", "optAlignLeft", "Left"},       {"Justify", "<missing>", "optAlignLeft", "Left"},
      {"Left", "Justify", "OptAlignJust", "Justify"}, {"Left", "Center", "OptAlignCenter", "Center"},
      {"Justify", "odd", "OptAlignCenter", "odd"},    {"Left", "odd", "optAlignLeft", "odd"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(std::string(c.alignmentLR) + "/" + c.indexAlignment);
    Remove("config/Folionet.ini");
    Store("alignmentLR", c.alignmentLR);
    if (*c.indexAlignment != '<') Store("Index_Alignment", c.indexAlignment);
    ASSERT_TRUE(Start());
    EXPECT_EQ(Shown(c.selected), "1");
    EXPECT_EQ(m_state->texts.LinkAlignment, c.text);
    Exit();
    EXPECT_EQ(Stored("Index_Alignment"), c.text);
    EXPECT_EQ(Stored("alignmentLR"), c.text == std::string("odd") ? c.alignmentLR : c.text);
  }
}

TEST_F(MainForm, AChosenTranslationIsRead) {
  ASSERT_TRUE(Start());
  Give("cboBibleName", "Other Bible");
  EXPECT_EQ(Shown("txtBibleSel"), "Other Bible");
  EXPECT_EQ(Shown("txtFilename"), m_home.Path() + "library/Modules/Bible/OTHER.TXT");
  EXPECT_EQ(m_state->options.txtBibleSel, "Other Bible");
  EXPECT_EQ(m_state->glob.ChapterIndex.size(), 2U);
  Remove("library/Index/OTHER.TXT.INDEX");
  Give("cboBibleName", "Other Bible");
  EXPECT_EQ(m_ui.log, (Log{"53 Load Verse Count", "File not found"}));
  EXPECT_TRUE(m_hasEnded);
}

TEST_F(MainForm, AChosenLanguageFillsTheBooksOnce) {
  ASSERT_TRUE(Start());
  Get<QComboBox>("cboStartBook").setCurrentIndex(2);
  EXPECT_EQ(m_state->startBookText, "Book3");
  for (int i = 0; i < 2; ++i) {
    Give("cboLang", "BOOKS_DUTCH.TXT");
    for (const char* list : {"cboStartBook", "cboEndBook"}) EXPECT_EQ(Get<QComboBox>(list).count(), 66) << list;
    EXPECT_EQ(Shown("cboStartBook"), "Boek1");
    EXPECT_EQ(Shown("cboEndBook"), "Boek66");
    EXPECT_EQ(m_state->startBookText, "Boek1");
    EXPECT_EQ(Get<QComboBox>("cboBibleName").count(), 2);
  }
  m_home.Write("library/Sysdefs/BOOKS_DUTCH.TXT", "1\tGen\tGenesis\r\n");
  Give("cboLang", "BOOKS_DUTCH.TXT");
  EXPECT_EQ(m_ui.log.at(0), "62 Populate Combos");
  EXPECT_TRUE(m_hasEnded);
}

TEST_F(MainForm, NamesFollowTheCharset) {
  m_home.Write("library/Sysdefs/Translations.txt", "1,0,\"B\xE9ta\",\"SMALL\"\r\n");
  ASSERT_TRUE(Start());
  EXPECT_EQ(Shown("cboBibleName"), "B\xC3\xA9ta");
  m_whenOpen = [this](QWidget&) { m_state->texts.PageCharset = "iso-8859-7"; };
  Get<QComboBox>("cboEndBook").setCurrentIndex(4);
  Click("cmdPageEncoding");
  EXPECT_EQ(Shown("cboBibleName"), "B\xCE\xB9ta");
  EXPECT_EQ(Shown("txtBibleSel"), "B\xCE\xB9ta");
  EXPECT_EQ(m_state->options.txtBibleSel, "B\xE9ta");
  EXPECT_EQ(Shown("cboEndBook"), "Book5");
}

TEST_F(MainForm, StoredPlaces) {
  const std::string home = m_home.Path().substr(0, m_home.Path().size() - 1);
  std::filesystem::create_directories(home + "/.hidden/deep");
  const struct {
    std::string drive, folder, outputPath;
    int item;  // of the drives
    Log log;
  } cases[] = {
      {"C:", "C:", "", 0, {}},
      {"/", "/usr", "/usr/", 1, {}},
      {"C:", home + "/site", home + "/site/", 0, {}},
      {"C:", "/usr/", "/usr/", 1, {}},
      {home, home + "\\site", home + "/site/", 0, {}},
      {home, home + "/.hidden/deep", home + "/.hidden/deep/", 0, {}},
      {home, home + "/gone", "", 0, {"76 Drive_Change"}},
      {home + "/gone", home + "/site", home + "/site/", 0, {"68 Drive_Change"}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.drive + " " + c.folder);
    Store("Drive1", c.drive);
    Store("Dir1", c.folder);
    ASSERT_TRUE(Start());
    EXPECT_EQ(m_ui.log, c.log);
    EXPECT_EQ(Shown("txtOutputPath"), c.outputPath);
    EXPECT_EQ(Get<QComboBox>("Drive1").currentIndex(), c.item);
  }
}

TEST_F(MainForm, AFolderIsChosenInTheTreeByDriveOrByBrowsing) {
  const std::string home = m_home.Path();
  ASSERT_TRUE(Start());
  auto& tree = Get<FolderTree>("Dir1");
  QTreeWidgetItem* root = tree.topLevelItem(0);
  ASSERT_EQ(root->childCount(), 4);  // config, library, program, site
  tree.setCurrentItem(root->child(3));
  EXPECT_EQ(Shown("txtOutputPath"), home + "site/");
  EXPECT_EQ(m_state->glob.OutputFolder, home + "site/");
  root->child(1)->setExpanded(true);
  EXPECT_EQ(root->child(1)->childCount(), 3);
  auto& drives = Get<QComboBox>("Drive1");
  emit drives.activated(1);
  EXPECT_EQ(Shown("txtOutputPath"), "/");
  Give("cmdBrowse", home + "site");
  EXPECT_EQ(FromQt(tree.Path()) + "/", home + "site/");
  EXPECT_EQ(drives.currentIndex(), 1) << "the drive that is shown has the folder too";

  Remove("config/Folionet.ini");
  ASSERT_TRUE(Start());
  Click("cmdBrowse");  // cancelled
  EXPECT_EQ(Shown("txtOutputPath"), "");
  auto& fresh = Get<FolderTree>("Dir1");
  emit fresh.itemClicked(fresh.topLevelItem(0), 0);  // the current one
  EXPECT_EQ(Shown("txtOutputPath"), home);
  Give("cmdBrowse", "/usr");
  EXPECT_EQ(Get<QComboBox>("Drive1").currentIndex(), 1);
  Click("cmdBrowse");
  EXPECT_EQ(Shown("txtOutputPath"), "/usr/");
  EXPECT_EQ(m_ui.offered, (Log{"/", "", home, "/usr/"}));
}

TEST_F(MainForm, ADriveThatIsNotReadyIsReportedAndLeft) {
  ASSERT_TRUE(Start());
  ChooseOutput();
  Get<QComboBox>("Drive1").addItem("Stick", ToQt(m_home.Path() + "gone"));
  Give("Drive1", "Stick");
  ASSERT_EQ(m_ui.log, Log{"53 Drive_Change"});
  EXPECT_TRUE(m_ui.said[0].starts_with("Drive not Ready or Drive not Available.\r\n" + m_home.Path() + "gone"));
  EXPECT_EQ(Get<QComboBox>("Drive1").currentIndex(), 0);
  EXPECT_EQ(Shown("txtOutputPath"), m_home.Path() + "site/");
}

TEST_F(MainForm, NoToTheExitKeepsTheFormAndSavesNothing) {
  ASSERT_TRUE(Start());
  const std::string before = m_home.Read("config/Folionet.ini");
  Click("chkDoubleSpace");
  for (const bool isButton : {true, false}) {
    isButton ? Click("cmdClose") : static_cast<void>(m_form->close());
    EXPECT_EQ(m_ui.log.back(), "Confirm Exit?");
    EXPECT_EQ(m_ui.said.back(), "All settings will be saved.\r\nOK?");
    EXPECT_TRUE(m_form->isVisible());
    EXPECT_FALSE(m_hasEnded);
    EXPECT_EQ(Shown("chkDoubleSpace"), "1");
    EXPECT_EQ(m_home.Read("config/Folionet.ini"), before);
  }
  EXPECT_EQ(m_ui.log.size(), 2U);
}

}  // namespace
}  // namespace folionet
