#include <QLineEdit>
#include <QRadioButton>

#include "FormTest.h"
#include "frmMain.h"

namespace folionet {
namespace {

class OptionDialogs : public FormTest {};

const struct {
  const char* box;
  const char* preview;
  const char* beginning;  // of the preview of the default
} kTemplates[] = {
    {"frmPAgeTitles.txtIndex_html", "frmPAgeTitles.txtPrevIndex", "Read the Small Bible Online."},
    {"frmPAgeTitles.txtPageTitles", "frmPAgeTitles.txtPrevOther", "FREE Online Small Bible. Book1 Chapter 1:1-3."},
    {"frmKeywords.txtKeywordsI", "frmKeywords.txtKeywordsOKI", "Small Bible, Online Bible, Versalia"},
    {"frmKeywords.txtDescriptionI", "frmKeywords.txtDescriptionOKI", "Read the Small Bible Online or"},
    {"frmKeywords.txtKeyWords", "frmKeywords.txtKeyWordsOK", "Small Bible Book1 1:1-3, Online"},
    {"frmKeywords.txtDescription", "frmKeywords.txtDescriptionOK", "Read the Small Bible Book1 1:1-3"},
};

TEST_F(OptionDialogs, PreviewsFollowKeyReleases) {
  ASSERT_TRUE(Start());
  for (const auto& t : kTemplates) EXPECT_EQ(Shown(t.preview), "") << t.preview;
  for (const char* button : {"frmPAgeTitles.cmdClose", "frmKeywords.cmdClose"}) {
    Key(Get(button), QEvent::KeyRelease, Qt::Key_A);
  }
  for (const auto& t : kTemplates) EXPECT_TRUE(Shown(t.preview).starts_with(t.beginning)) << Shown(t.preview);
  for (const auto& t : kTemplates) {
    const std::string own = t.box;
    Give(t.box, own + "|%bible%|%bk%|%ch%|%vs%|%BK%");
    Key(Get(t.box), QEvent::KeyRelease, Qt::Key_A);
    EXPECT_EQ(Shown(t.preview), own + "|Small Bible|Book1|1|1-3|%BK%");
  }
  EXPECT_EQ(Stored("PageTitles"), "<missing>") << "a key saves nothing";
  Click("frmPAgeTitles.cmdCheck");
  Click("frmKeywords.cmdCheck");
  EXPECT_NE(Stored("PageTitles"), "<missing>");
  EXPECT_NE(Stored("index_html"), "<missing>");
  EXPECT_EQ(Stored("Keywords"), "<missing>");

  Give("frmLinkToMAin.txtLinkToMain", "%bk% %ch%");
  EXPECT_EQ(Shown("frmLinkToMAin.txtLinkToMainOK"), "");
  Click("frmLinkToMAin.cmdRefresh");
  EXPECT_EQ(Shown("frmLinkToMAin.txtLinkToMainOK"), "Book1 1");
  EXPECT_NE(Shown("frmLinkToMAin.txtBackToString").find(">1 1</font>"), std::string::npos);
}

// A title that holds its own word never ends. Each failing preview keeps its text, and the release of the key that
// closed the report does not bring it up again.
TEST_F(OptionDialogs, AFailedPreviewKeepsItsText) {
  ASSERT_TRUE(Start());
  QWidget& box = Get("frmPAgeTitles.txtPageTitles");
  Key(box, QEvent::KeyRelease, Qt::Key_A);
  m_state->startBookText = "%bk%";
  Key(box, QEvent::KeyRelease, Qt::Key_A);
  Key(box, QEvent::KeyRelease, Qt::Key_Return);
  EXPECT_EQ(m_ui.log, Log{"5 Build Titles"});
  EXPECT_EQ(Shown("frmPAgeTitles.txtPrevOther"), kTemplates[1].beginning);
  Key(box, QEvent::KeyPress, Qt::Key_A);
  Key(box, QEvent::KeyRelease, Qt::Key_A);
  EXPECT_EQ(m_ui.log.size(), 2U);
}

// The title bar hides a dialog with what was typed in it; that is stored by the dialog's own button only.
TEST_F(OptionDialogs, TheTitleBarSavesNothingAndKeepsTheControls) {
  const struct {
    const char* dialog;
    const char* control;
    const char* key;
  } cases[] = {
      {"frmPAgeTitles", "txtPageTitles", "PageTitles"},
      {"frmKeywords", "txtKeyWords", "Keywords"},
      {"frmEffects", "cboSize", "cboSize"},
      {"frmLinkToMAin", "txtLinkToMain", "LinkToMain"},
      {"frmBackground", "txtImagepath", "BackImage"},
  };
  ASSERT_TRUE(Start());
  for (const auto& c : cases) {
    SCOPED_TRACE(c.dialog);
    const std::string form = std::string(c.dialog) + ".";
    Get(form).show();
    Give(form + c.control, "typed");
    Get(form).close();
    EXPECT_FALSE(IsShown(form));
    EXPECT_EQ(Shown(form + c.control), "typed");
    EXPECT_EQ(Stored(c.key), "<missing>");
    Get(form).show();
    Click(form + "cmdClose");
    EXPECT_FALSE(IsShown(form));
    EXPECT_EQ(Stored(c.key), "typed");
  }
}

TEST_F(OptionDialogs, TheLinkShowsItsAlignmentSizeAndHtml) {
  const struct {
    const char* control;
    const char* given;
    const char* key;
    const char* stored;
    Qt::AlignmentFlag alignment;
    int points;
    const char* beginning;
  } cases[] = {
      {"OLeft", "", "LCR", "1", Qt::AlignLeft, 11,
       "<br><p align=\"left\"><a href=\"index.html\"><b><font face=\"Verdana\" size=\"3\">"},
      {"ORight", "", "LCR", "3", Qt::AlignRight, 11, "<br><p align=\"right\">"},
      {"OCenter", "", "LCR", "2", Qt::AlignHCenter, 11, "<br><p align=\"center\">"},
      {"cboSize", "7", "LinkBackSize", "7", Qt::AlignHCenter, 15,
       "<br><p align=\"center\"><a href=\"index.html\"><b><font face=\"Verdana\" size=\"7\">"},
  };
  ASSERT_TRUE(Start());
  EXPECT_EQ(Shown("frmLinkToMAin.OCenter"), "1");
  EXPECT_EQ(Stored("LinkBackSize"), "3") << "the start saves it";
  Give("txthttpRoot", "index.html");
  for (const auto& c : cases) {
    SCOPED_TRACE(c.control);
    Give(std::string("frmLinkToMAin.") + c.control, c.given);
    EXPECT_EQ(Stored(c.key), c.stored);
    for (const char* box : {"frmLinkToMAin.txtLinkToMain", "frmLinkToMAin.txtLinkToMainOK"}) {
      EXPECT_TRUE(Get<QLineEdit>(box).alignment().testFlag(c.alignment)) << box;
      EXPECT_EQ(Get<QLineEdit>(box).font().pointSize(), c.points) << box;
    }
    EXPECT_TRUE(Shown("frmLinkToMAin.txtBackToString").starts_with(c.beginning));
  }
  Click("chkCSS");
  Click("frmLinkToMAin.cmdRefresh");
  EXPECT_EQ(Shown("frmLinkToMAin.txtBackToString"),
            "<br><h1 align=\"center\"><a href=\"index.html\">Main Index: Small Bible</a></h1>");
}

TEST_F(OptionDialogs, OddStoredValuesOfTheLink) {
  const struct {
    const char* key;
    const char* value;
    Log log;
    const char* beginning;  // of the link's HTML; empty for none built
    const char* size;
  } cases[] = {
      {"LCR", "0", {}, "<br><p align=\"\"", "3"},
      {"LCR", "4", {}, "<br><p align=\"\"", "3"},
      {"LCR", "x", {"13 Form Load - MAIN"}, "", ""},
      {"LinkBackSize", "-20", {}, "<br><p align=\"center\"", "-20"},
      {"LinkBackSize", "large", {"13 Form Load - MAIN"}, "", ""},
      {"LinkBackSize", "32760", {"6 Form Load - MAIN"}, "", "32760"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(std::string(c.key) + "=" + c.value);
    Remove("config/Folionet.ini");
    Store(c.key, c.value);
    ASSERT_TRUE(Start());
    EXPECT_EQ(m_ui.log, c.log);
    const std::string html = Shown("frmLinkToMAin.txtBackToString");
    EXPECT_TRUE(html.starts_with(c.beginning)) << html;
    EXPECT_EQ(html.empty(), !c.log.empty());
    EXPECT_EQ(Shown("frmLinkToMAin.cboSize"), c.size);
    EXPECT_EQ(Shown("frmLinkToMAin.txtLinkToMain"), "Main Index: %bible%");
  }
}

TEST_F(OptionDialogs, TheChosenImageIsNamedWithoutItsFolderAndSavedAtOnce) {
  ASSERT_TRUE(Start());
  const std::pair<const char*, const char*> cases[] = {
      {"C:\\Pictures\\paper.gif", "paper.gif"}, {"/my pictures/sky.gif", "sky.gif"}, {"plain.gif", "plain.gif"}};
  Click("frmBackground.cmdImageName");  // left: the path of its last use, which is none
  EXPECT_EQ(Shown("frmBackground.txtImagepath"), "");
  EXPECT_EQ(Stored("BackImage"), "");
  for (const auto& [path, name] : cases) {
    Give("frmBackground.cmdImageName", path);
    EXPECT_EQ(Shown("frmBackground.txtImagepath"), name);
    EXPECT_EQ(Stored("BackImage"), name);
  }
  for (const bool isBroken : {false, true}) {
    m_ui.isChooserBroken = isBroken;
    Give("frmBackground.txtImagepath", "typed.gif");
    Click("frmBackground.cmdImageName");
    EXPECT_EQ(Shown("frmBackground.txtImagepath"), "plain.gif");
  }
  EXPECT_EQ(m_ui.offered[0], "*.gif - Compuserve GIF|*.gif| *.bmp - Windows Bitmap| *.bmp | *.* - All Files| *.*");
  EXPECT_EQ(m_ui.log, Log{});
  Click("frmBackground.chkWaterMark");
  EXPECT_EQ(Stored("WaterMark"), "1");
}

const struct Html {
  const char* file;
  const char* opener;
  std::string form;
  std::string done;
  const char* loadReport;
  std::string PageTexts::*shared;
} kHtml[] = {
    {"program/CustomHeader.txt", "cmdCustomHeader", "frmCustomHeader.", "frmCustomHeader.Command1",
     "7 Load_Custom_Header", &PageTexts::CustomHeader},
    {"program/CustomFooter.txt", "cmdCustomFooter", "frmCustomizeFooter.", "frmCustomizeFooter.cmdDone",
     "7 Load_Custom_Footer", &PageTexts::CustomFooter},
};

TEST_F(OptionDialogs, HeaderAndFooterAreSavedAndSharedByDone) {
  for (const Html& c : kHtml) {
    SCOPED_TRACE(c.file);
    ASSERT_TRUE(Start());
    EXPECT_FALSE(m_home.Has(c.file));
    Click(c.opener);
    Give(c.form + "Text1", "<b>HELLO</b>\nyou");
    Get(c.form).close();  // saves, but does not share
    EXPECT_FALSE(IsShown(c.form));
    EXPECT_EQ(m_home.Read(c.file), "<b>HELLO</b>\r\nyou\r\n");
    EXPECT_EQ(m_state->texts.*c.shared, "");
    Click(c.opener);
    Click(c.done);
    EXPECT_FALSE(IsShown(c.form));
    EXPECT_EQ(m_state->texts.*c.shared, "<b>HELLO</b>\r\nyou");

    // What is read is what is written, whatever bytes and line ends it has, and one line break more.
    const std::string text = "one\ntwo\r\nthr\xE9\x65\t\x93quoted\x94";
    m_home.Write(c.file, text);
    ASSERT_TRUE(Start());
    EXPECT_TRUE((m_state->texts.*c.shared).starts_with("one\ntwo\r\nthr\xC3\xA9\x65"));
    Click(c.done);
    EXPECT_EQ(m_home.Read(c.file), text + "\r\n");
  }
}

TEST_F(OptionDialogs, AHeaderThatCannotBeReadIsKeptUntilOneIsTyped) {
  for (const Html& c : kHtml) {
    SCOPED_TRACE(c.file);
    std::filesystem::resize_file(m_home.Write(c.file, "x"), (std::size_t{64} << 20) + 1);  // more than is read
    ASSERT_TRUE(Start());
    EXPECT_EQ(m_ui.log, Log{c.loadReport});
    EXPECT_EQ(Shown(c.form + "Label1"), "");
    Click(c.done);
    EXPECT_EQ(m_home.Read(c.file).front(), 'x') << "an empty box does not replace it";
    Give(c.form + "Text1", "new");
    Click(c.done);
    EXPECT_EQ(m_home.Read(c.file), "new\r\n");
  }
}

TEST_F(OptionDialogs, AFailedSaveKeepsDoneOpenButLetsThePersonLeave) {
  ASSERT_TRUE(Start());
  for (const Html& c : kHtml) m_home.Write(std::string(c.file) + "/in the way", "old");
  for (const Html& c : kHtml) {
    SCOPED_TRACE(c.file);
    m_ui.log.clear();
    Click(c.opener);
    Give(c.form + "Text1", "typed");
    Click(c.done);
    EXPECT_TRUE(IsShown(c.form));
    EXPECT_EQ(m_state->texts.*c.shared, "typed");
    Get(c.form).close();
    EXPECT_FALSE(IsShown(c.form));
    ASSERT_EQ(m_ui.log.size(), 2U);
    EXPECT_TRUE(m_ui.log[0].ends_with(" Unload_Form") && m_ui.log[1] == m_ui.log[0]) << m_ui.log[0];
    EXPECT_NE(m_ui.said.back().find(c.file + std::string("program/").size()), std::string::npos) << m_ui.said.back();
    EXPECT_EQ(Shown(c.form + "Text1"), "typed");
    EXPECT_EQ(m_home.Read(std::string(c.file) + "/in the way"), "old");
  }
}

}  // namespace
}  // namespace folionet
