#include <gtest/gtest.h>

#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>

#include "DialogBench.h"
#include "QtText.h"
#include "RunTimeError.h"
#include "TextBox.h"
#include "TextCombo.h"
#include "frmLinkToMAin.h"

namespace folionet {
namespace {

std::string Html(const frmLinkToMAin& form) { return Find<TextBox>(form, "txtBackToString").Text(); }

TEST(LinkToMainTest, LoadingBuildsTheLinkAndSavesTheSize) {
  DialogBench bench;
  frmLinkToMAin form(bench.State());
  form.LoadForm();
  EXPECT_EQ(Html(form),
            "<br><p align=\"center\"><a href=\"index.html\"><b><font face=\"Verdana\" size=\"3\">Main Index: Small "
            "Bible</font></b></a></p>");
  EXPECT_TRUE(Find<QRadioButton>(form, "OCenter").isChecked());
  EXPECT_EQ(bench.Stored("LinkBackSize"), "3");
  EXPECT_EQ(bench.Stored("LCR"), "<missing>");
  EXPECT_EQ(Find<QLineEdit>(form, "txtLinkToMain").font().pointSize(), 11);
  EXPECT_EQ(Find<QLineEdit>(form, "txtLinkToMainOK").text(), "");
}

TEST(LinkToMainTest, AlignmentIsSavedAtOnce) {
  const struct {
    const char* option;
    const char* stored;
    Qt::AlignmentFlag shown;
    const char* word;
  } cases[] = {{"OLeft", "1", Qt::AlignLeft, "left"},
               {"ORight", "3", Qt::AlignRight, "right"},
               {"OCenter", "2", Qt::AlignHCenter, "center"}};
  DialogBench bench;
  frmLinkToMAin form(bench.State());
  form.LoadForm();
  for (const auto& c : cases) {
    Click(form, c.option);
    EXPECT_EQ(bench.Stored("LCR"), c.stored);
    for (const char* box : {"txtLinkToMain", "txtLinkToMainOK"}) {
      EXPECT_TRUE(Find<QLineEdit>(form, box).alignment().testFlag(c.shown)) << c.option << " " << box;
    }
    EXPECT_EQ(Html(form).rfind(std::string("<br><p align=\"") + c.word + "\"", 0), 0U) << Html(form);
  }
}

TEST(LinkToMainTest, SizeIsSavedAtOnce) {
  DialogBench bench;
  frmLinkToMAin form(bench.State());
  form.LoadForm();
  auto& size = Find<QComboBox>(form, "cboSize");
  size.setCurrentIndex(6);
  emit size.textActivated(size.currentText());
  EXPECT_EQ(bench.Stored("LinkBackSize"), "7");
  EXPECT_EQ(Find<QLineEdit>(form, "txtLinkToMainOK").font().pointSize(), 15);
  EXPECT_NE(Html(form).find("size=\"7\""), std::string::npos);
  form.SetSizeEnabled(false);
  EXPECT_FALSE(size.isEnabled());
}

TEST(LinkToMainTest, TextIsSavedAtCloseOnly) {
  DialogBench bench;
  frmLinkToMAin form(bench.State());
  form.LoadForm();
  form.show();
  Find<QLineEdit>(form, "txtLinkToMain").setText("%bk% %ch%");
  EXPECT_EQ(bench.State().options.frmLinkToMAin.txtLinkToMain, "%bk% %ch%");
  Click(form, "cmdRefresh");
  EXPECT_EQ(FromQt(Find<QLineEdit>(form, "txtLinkToMainOK").text()), "Book1 1");
  EXPECT_NE(Html(form).find(">1 1</font>"), std::string::npos) << Html(form);
  form.close();
  EXPECT_EQ(bench.Stored("LinkToMain"), "<missing>");
  form.show();
  Click(form, "cmdClose");
  EXPECT_EQ(bench.Stored("LinkToMain"), "%bk% %ch%");
  EXPECT_FALSE(form.isVisible());
}

TEST(LinkToMainTest, AStyleSheetTakesFontAndSizeAway) {
  DialogBench bench;
  bench.State().options.chkCSS = true;
  frmLinkToMAin form(bench.State());
  form.LoadForm();
  EXPECT_EQ(Html(form), "<br><h1 align=\"center\"><a href=\"index.html\">Main Index: Small Bible</a></h1>");
}

TEST(LinkToMainTest, OddStoredValues) {
  const struct {
    const char* key;
    const char* value;
    int error;
    const char* beginning;  // of the link's HTML; empty for none built
    const char* size;
  } cases[] = {
      {"LCR", "0", 0, "<br><p align=\"\"", "3"},
      {"LCR", "4", 0, "<br><p align=\"\"", "3"},
      {"LCR", "x", kTypeMismatch, "", ""},
      {"LinkBackSize", "12", 0, "<br><p align=\"center\"", "12"},
      {"LinkBackSize", "-20", 0, "<br><p align=\"center\"", "-20"},
      {"LinkBackSize", "large", kTypeMismatch, "", ""},
      {"LinkBackSize", "32760", kOverflow, "", "32760"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(std::string(c.key) + "=" + c.value);
    DialogBench bench;
    bench.State().store.SaveText(c.key, c.value);
    frmLinkToMAin form(bench.State());
    int error = 0;
    try {
      form.LoadForm();
    } catch (const RunTimeError& failure) {
      error = failure.Number();
    }
    EXPECT_EQ(error, c.error);
    EXPECT_EQ(Html(form).substr(0, std::string(c.beginning).size()), c.beginning);
    EXPECT_EQ(Html(form).empty(), c.error != 0);
    EXPECT_EQ(FromQt(Find<TextCombo>(form, "cboSize").Text()), c.size);
    EXPECT_EQ(FromQt(Find<QLineEdit>(form, "txtLinkToMain").text()), "Main Index: %bible%");
  }
}

TEST(LinkToMainTest, SettingsThatCannotBeWrittenDoNotStopTheLoading) {
  DialogBench bench;
  bench.BlockSettings();
  frmLinkToMAin form(bench.State());
  form.LoadForm();
  EXPECT_EQ(bench.ui.log, std::vector<std::string>{"report SetFontSize"});
  EXPECT_NE(Html(form), "");
}

}  // namespace
}  // namespace folionet
