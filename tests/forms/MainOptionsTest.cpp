#include <QLayout>
#include <QRadioButton>
#include <QShortcut>
#include <QTest>

#include "MainFormTest.h"
#include "SampleTextBox.h"

namespace folionet {
namespace {

class MainOptionsOnForm : public MainFormTest {};

TEST_F(MainOptionsOnForm, CaptionsAndToolTips) {
  const struct {
    const char* name;
    const char* caption;
    const char* toolTip;
  } kControls[] = {
      {"chkCSS", "Use Cascading Style Sheet", "Use Cascading Style sheets to really make your pages look good!"},
      {"chkBack", "Use Background Image", "Select the image for all page backgrounds."},
      {"chkUseNames", "Include Book Names",
       "Start each verse with the name of the Book. E.g. \"GEN 1:1 In the beginning...\" OR \"1:1 In the "
       "beginning...\""},
      {"cmdLinkToMain", "Link back to Main Page",
       "Set Text value as well as Left, Centre or Right Alignment and font size."},
      {"chkUse83", "Use 8.3 File Names",
       "Check to use filenames like \"01_001.htm\" or uncheck for long filenames like \"genesis_1.html\""},
      {"cmdRestoreAll", "Restore ALL Defaults", "Clear All settings and return to the defaults."},
      {"cmdEffects", "Effects", "Set Rollover effects and more."},
      {"cmdPageTitles", "Page Titles", "Customize the page titles."},
      {"optAlignLeft", "Left", ""},
      {"OptAlignCenter", "Center", ""},
      {"OptAlignJust", "Justify", ""},
      {"cmdPageEncoding", "Page Encoding", "Set the Page encoding for the language of the document you are making."},
      {"cmdHelp", "Help", ""},
      {"cmdClose", "Close", ""},
      {"cmdCustomFooter", "Custom Footer", "Insert your own custon HTML code for the footer you want to use."},
      {"cmdCustomHeader", "Custom Header", "Insert your own custon HTML code for the header you want to use."},
      {"chkDoubleSpace", "Use Double Line Spacing", "Check to force a line break between verses."},
      {"cmdKeyWords", "Meta Tags", "Set the META tag values for KEYWORDS and DESCRIPTION."},
      {"cmdBackColour", "Background Color", "Choose Background color"},
      {"cmdForeColour", "Text Color", ""},
      {"cmdFont", "Font", "Choose Font and Style"},
      {"cmdCompile", "Compile", ""},
      {"lblBibleSel", "Selected Bible", ""},
      {"lblFilename", "File Name", ""},
      {"lblStartBook", "Select Starting Book", ""},
      {"lblEndBook", "Select ending Book", ""},
      {"lblWarning", "WARNING: Files in the Output Path will be overwritten.", ""},
      {"frmLanguage", "Language File", ""},
      {"frmAlignment", "Overall Link Alignment",
       "All Hyperlinks (including those in the \"index.html\" file) will have this alignment."},
  };
  ASSERT_TRUE(Start());
  for (const auto& row : kControls) {
    const QWidget& control = Get(row.name);
    QString caption = control.property("text").toString() + control.property("title").toString();
    EXPECT_EQ(FromQt(caption.remove(QLatin1Char('&'))), row.caption) << row.name;
    EXPECT_EQ(FromQt(control.toolTip()), row.toolTip) << row.name;
  }
  EXPECT_EQ(FromQt(Get("cboLang").toolTip()),
            "The language to be used for the NAMES ofthe Books. E.g. \"Genesis\", \"Exodus\" etc.");
}

// A control that takes the focus can be found by name, and no two keys are the same. There are more controls than
// letters: those of one group share its title's, and the rare command that clears everything has none.
TEST_F(MainOptionsOnForm, ControlsCanBeReachedByKeyboardAndNamed) {
  ASSERT_TRUE(Start());
  std::map<char, std::string> mnemonics;
  for (const QWidget* control : m_form->centralWidget()->findChildren<QWidget*>()) {
    const std::string caption = FromQt(control->property("text").toString() + control->property("title").toString());
    if (const std::size_t at = caption.find('&'); at != std::string::npos) {
      const char key = static_cast<char>(std::toupper(caption.at(at + 1)));
      EXPECT_TRUE(mnemonics.emplace(key, caption).second) << caption << " and " << mnemonics[key];
    }
    const bool isOurs = !control->objectName().startsWith(QLatin1String("qt_")) && !control->objectName().isEmpty();
    if (isOurs && control->focusPolicy() != Qt::NoFocus) {
      EXPECT_FALSE((FromQt(control->accessibleName()) + caption).empty()) << FromQt(control->objectName());
    }
  }
  EXPECT_GT(mnemonics.size(), 15U);
}

// On a small screen with a large font, no text is cut off.
TEST_F(MainOptionsOnForm, EveryTextHasItsRoom) {
  constexpr QSize kRoom(1366, 768 - 60);  // a panel and a title bar take the rest
  for (const int points : {9, 11, 13}) {
    SCOPED_TRACE(points);
    QFont font = QApplication::font();
    font.setPointSize(points);
    ASSERT_TRUE(Start());
    m_form->setFont(font);
    const QSize least = m_form->minimumSizeHint();
    EXPECT_LE(least.width(), kRoom.width());
    EXPECT_LE(least.height(), kRoom.height());
    m_form->resize(least);
    m_form->layout()->activate();
    for (const QWidget* control : m_form->centralWidget()->findChildren<QWidget*>()) {
      const bool hasText = !control->property("text").toString().isEmpty() && control->isVisible();
      if (const auto* box = qobject_cast<const QLineEdit*>(control)) {
        EXPECT_GE(box->width(), box->fontMetrics().horizontalAdvance(box->placeholderText()))
            << FromQt(box->objectName());
        continue;
      }
      if (!hasText) continue;
      EXPECT_GE(control->width(), control->minimumSizeHint().width()) << FromQt(control->objectName());
      EXPECT_GE(control->height(), control->minimumSizeHint().height()) << FromQt(control->objectName());
    }
  }
}

TEST_F(MainOptionsOnForm, WhatAStartEnables) {
  const struct {
    const char* css;
    const char* back;
    bool chkBack, cmdBackColour, others;
  } kCases[] = {
      {"0", "0", true, true, true},
      {"0", "1", true, false, true},
      {"1", "0", false, false, false},
      {"1", "1", false, false, false},
  };
  for (const auto& row : kCases) {
    SCOPED_TRACE(std::string("chkCSS ") + row.css + " chkBack " + row.back);
    Store("chkCSS", row.css);
    Store("chkBack", row.back);
    ASSERT_TRUE(Start());
    EXPECT_EQ(IsEnabled("chkBack"), row.chkBack);
    EXPECT_EQ(IsEnabled("cmdBackColour"), row.cmdBackColour);
    for (const char* name :
         {"txtSample", "cmdForeColour", "cmdFont", "frmAlignment", "optAlignLeft", "OptAlignCenter", "OptAlignJust"}) {
      EXPECT_EQ(IsEnabled(name), row.others) << name;
    }
    EXPECT_TRUE(IsEnabled("cmdEffects"));
  }
}

TEST_F(MainOptionsOnForm, AClickOnTheStyleSheetOptionIsOneChange) {
  ASSERT_TRUE(Start());
  Click("chkCSS");
  EXPECT_EQ(Stored("chkCSS"), "1");
  EXPECT_FALSE(IsEnabled("cmdEffects"));
  EXPECT_FALSE(IsEnabled("txtSample"));
  ASSERT_EQ(m_ui->messages.size(), 1U);
  EXPECT_EQ(m_ui->messages[0].title, "CSS file to be used");
  EXPECT_EQ(m_ui->messages[0].text,
            "Cascading Style Sheet 'default.css' will be used.\r\nPlease customize as required.");
  QTest::keyClick(&Get("chkCSS"), Qt::Key_Space);
  EXPECT_EQ(Stored("chkCSS"), "0");
  EXPECT_TRUE(IsEnabled("cmdEffects"));
  EXPECT_TRUE(IsEnabled("cmdBackColour"));
  EXPECT_EQ(m_ui->messages.size(), 1U);
}

TEST_F(MainOptionsOnForm, AClickOnTheBackgroundOptionIsOneChange) {
  ASSERT_TRUE(Start());
  bool wasSaved = true;
  m_form->OptionDialogs().openModal = [&](QDialog& dialog) {
    m_opened.push_back(FromQt(dialog.objectName()));
    wasSaved = Stored("chkBack") == "1";
    EXPECT_TRUE(IsChecked("chkBack"));
    EXPECT_FALSE(IsEnabled("cmdBackColour"));
  };
  QTest::mouseClick(&Get("chkBack"), Qt::LeftButton);
  EXPECT_EQ(m_opened, std::vector<std::string>{"frmBackground"});
  EXPECT_FALSE(wasSaved);
  EXPECT_EQ(Stored("chkBack"), "1");
  Click("chkCSS");
  Click("chkCSS");
  EXPECT_FALSE(IsEnabled("cmdBackColour"));
  Click("chkBack");
  EXPECT_EQ(m_opened.size(), 1U);
  EXPECT_EQ(Stored("chkBack"), "0");
  EXPECT_TRUE(IsEnabled("cmdBackColour"));
}

TEST_F(MainOptionsOnForm, BookNamesAreSavedAtOnce) {
  ASSERT_TRUE(Start());
  EXPECT_TRUE(IsChecked("chkUseNames"));
  Click("chkUseNames");
  EXPECT_EQ(Stored("chkUseNames"), "0");
  EXPECT_FALSE(m_state->options.chkUseNames);
}

TEST_F(MainOptionsOnForm, ButtonsOpenTheirDialogs) {
  const struct {
    const char* button;
    const char* dialog;
  } kButtons[] = {
      {"cmdPageTitles", "frmPAgeTitles"},     {"cmdKeyWords", "frmKeywords"},
      {"cmdEffects", "frmEffects"},           {"cmdLinkToMain", "frmLinkToMAin"},
      {"cmdCustomHeader", "frmCustomHeader"}, {"cmdCustomFooter", "frmCustomizeFooter"},
      {"cmdPageEncoding", "frmEncoding"},
  };
  ASSERT_TRUE(Start());
  for (const auto& row : kButtons) {
    m_opened.clear();
    Click(row.button);
    EXPECT_EQ(m_opened, std::vector<std::string>{row.dialog}) << row.button;
  }
}

TEST_F(MainOptionsOnForm, TheLinkSizeIsTheStyleSheetsIfThereIsOne) {
  ASSERT_TRUE(Start());
  std::vector<bool> enabled;
  m_form->OptionDialogs().openModal = [&](QDialog& dialog) {
    enabled.push_back(dialog.findChild<QWidget*>(QStringLiteral("cboSize"))->isEnabled());
  };
  Click("cmdLinkToMain");
  Click("chkCSS");
  Click("cmdLinkToMain");
  EXPECT_EQ(enabled, (std::vector{true, false}));
}

TEST_F(MainOptionsOnForm, AlignmentAtStartAndByClick) {
  const struct {
    const char* alignmentLR;
    const char* indexAlignment;  // "" for a missing key
    const char* selected;
    const char* text;
  } kCases[] = {
      {"Left", "Left", "optAlignLeft", "Left"},       {"Justify", "", "optAlignLeft", "Left"},
      {"Left", "Justify", "OptAlignJust", "Justify"}, {"Left", "Center", "OptAlignCenter", "Center"},
      {"Justify", "odd", "OptAlignCenter", "odd"},    {"Left", "odd", "optAlignLeft", "odd"},
  };
  for (const auto& row : kCases) {
    SCOPED_TRACE(std::string(row.alignmentLR) + "/" + row.indexAlignment);
    std::filesystem::remove(m_home / "config/Folionet.ini");
    Store("alignmentLR", row.alignmentLR);
    if (*row.indexAlignment != '\0') Store("Index_Alignment", row.indexAlignment);
    ASSERT_TRUE(Start());
    EXPECT_TRUE(IsChecked(row.selected));
    EXPECT_EQ(m_state->texts.LinkAlignment, row.text);
  }
  Click("OptAlignJust");
  EXPECT_EQ(m_state->texts.LinkAlignment, "Justify");
  Click("OptAlignCenter");
  EXPECT_EQ(m_state->texts.LinkAlignment, "Center");
  EXPECT_EQ(m_state->main.alignment, "Center");
}

TEST(SampleText, NamesItsStyle) {
  constexpr Colour kDarkBlue = 8389122;
  const struct {
    SampleText sample;
    const char* text;
  } kCases[] = {
      {{},
       "Sample Text [Font:  Verdana]\r\n[Fontsize:3] [Format: None]\r\n[Foreground:#020280#]\r\n"
       "[Background:#FFFFFF#]"},
      {{"Arial", 10.5, true, true, 0, kDarkBlue},
       "Sample Text [Font:  Arial]\r\n[Fontsize:2] Format: BoldItalic\r\n[Foreground:#020280#]\r\n"
       "[Background:#000000#]"},
      {{"Arial", 8, true, false, 0x0C0B0A, 255},
       "Sample Text [Font:  Arial]\r\n[Fontsize:-1] [Format: Bold]\r\n[Foreground:#FF0000#]\r\n"
       "[Background:#0A0B0C#]"},
      {{"Arial", 11.5, false, true, 255, 0},
       "Sample Text [Font:  Arial]\r\n[Fontsize:2] [Format: Italic]\r\n[Foreground:#000000#]\r\n"
       "[Background:#FF0000#]"},
  };
  for (const auto& row : kCases) EXPECT_EQ(MakeSampleText(row.sample), row.text);
}

TEST_F(MainOptionsOnForm, PickersChangeTheSample) {
  ASSERT_TRUE(Start());
  const auto& box = Get<SampleTextBox>("txtSample");
  m_ui->colours = {255, 65280};
  Click("cmdBackColour");
  Click("cmdForeColour");
  EXPECT_EQ(m_ui->colourInitials, (std::vector<Colour>{16777215, 8389122}));
  m_ui->fonts.push_back({"DejaVu Serif", 18, true, false, 1, 2});  // a font has no colours
  Click("cmdFont");
  EXPECT_EQ(m_ui->fontInitials[0].FontName, "Verdana");
  EXPECT_EQ(FromQt(box.toPlainText()),
            "Sample Text [Font:  DejaVu Serif]\n[Fontsize:9] [Format: Bold]\n[Foreground:#00FF00#]\n"
            "[Background:#FF0000#]");
  EXPECT_EQ(box.palette().color(QPalette::Active, QPalette::Base), QColor(255, 0, 0));
  EXPECT_EQ(box.palette().color(QPalette::Active, QPalette::Text), QColor(0, 255, 0));
  EXPECT_EQ(box.font().family(), QStringLiteral("DejaVu Serif"));
  EXPECT_EQ(box.font().pointSizeF(), 18);
  EXPECT_TRUE(box.font().bold());
}

TEST_F(MainOptionsOnForm, HelpOpensByKeyAndButton) {
  ASSERT_TRUE(Start());
  EXPECT_EQ(m_form->findChild<QWidget*>(QStringLiteral("HelpWindow")), nullptr);
  Click("cmdHelp");
  auto* help = m_form->findChild<QDialog*>(QStringLiteral("HelpWindow"));
  ASSERT_NE(help, nullptr);
  EXPECT_TRUE(help->isVisible());
  help->hide();
  for (auto* shortcut : m_form->findChildren<QShortcut*>()) {
    if (shortcut->key() == QKeySequence(Qt::Key_F1)) emit shortcut->activated();
  }
  EXPECT_TRUE(help->isVisible());
}

}  // namespace
}  // namespace folionet
