#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFontDatabase>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>

#include "DialogBench.h"
#include "QtText.h"
#include "RunTimeError.h"
#include "SampleLink.h"
#include "frmEffects.h"

namespace folionet {
namespace {

constexpr char kDefaultStyle[] = "<style fprolloverstyle>A:hover {color: #FF0000; text-decoration: none; }</style>";

std::string Caption(const frmEffects& form, const char* swatch) { return FromQt(Find<QLabel>(form, swatch).text()); }

TEST(EffectsTest, StartsWithDefaults) {
  DialogBench bench;
  frmEffects form(bench.State());
  form.LoadForm();
  EXPECT_EQ(bench.State().texts.RolloverStyle, kDefaultStyle);
  EXPECT_EQ(bench.State().texts.BodyLinkTag, "");
  for (const char* swatch : {"lblHyperlink", "lblActive", "lblFollowed", "lblRColor"}) {
    EXPECT_EQ(Caption(form, swatch), "Default") << swatch;
  }
  EXPECT_EQ(Find<QComboBox>(form, "cboFont").count(), QFontDatabase::families().size());
  EXPECT_EQ(Find<QComboBox>(form, "cboFont").currentText(), "Default Font");
  EXPECT_EQ(bench.Stored("cboFont"), "<missing>") << "loading saves nothing";
}

// Each colour button: which swatch it sets, and whether the pages' texts follow at once.
TEST(EffectsTest, ColourButtonsSetTheirSwatch) {
  const struct {
    const char* button;
    const char* swatch;
    const char* tagAtClose;
    const char* styleAtOnce;
  } cases[] = {
      {"cmdHyperlink", "lblHyperlink", "<body link=\"#010203\"", kDefaultStyle},
      {"cmdActive", "lblActive", "<body  alink=\"#010203\"", kDefaultStyle},
      {"cmdFollowed", "lblFollowed", "<body  vlink=\"#010203\"", kDefaultStyle},
      {"cmdRollover", "lblRColor", "",
       "<style fprolloverstyle>A:hover {color: #010203; text-decoration: none; }</style>"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.button);
    DialogBench bench;
    frmEffects form(bench.State());
    form.LoadForm();
    bench.ui.colours = {0x030201};
    Click(form, c.button);
    EXPECT_EQ(Caption(form, c.swatch), "");
    EXPECT_EQ(Find<QLabel>(form, c.swatch).palette().color(QPalette::Window), QColor(1, 2, 3));
    EXPECT_EQ(bench.State().texts.RolloverStyle, c.styleAtOnce);
    EXPECT_EQ(bench.State().texts.BodyLinkTag, "");
    EXPECT_EQ(bench.Stored(c.swatch), "<missing>");
    Click(form, "cmdClose");
    EXPECT_EQ(bench.State().texts.BodyLinkTag, c.tagAtClose);
    EXPECT_EQ(bench.Stored(c.swatch), "197121");
  }
}

TEST(EffectsTest, LeavingTheColourChooserPicksTheDefaultUntilTheNextStart) {
  DialogBench bench;
  {
    frmEffects form(bench.State());
    form.LoadForm();
    Click(form, "cmdHyperlink");
    Click(form, "cmdClose");
    EXPECT_EQ(bench.ui.colourInitials, std::vector<Colour>{16711680});
    EXPECT_EQ(bench.State().texts.BodyLinkTag, "<body link=\"#0000FF\"");
  }
  bench.StartAgain();
  frmEffects form(bench.State());
  form.LoadForm();
  EXPECT_EQ(bench.State().texts.BodyLinkTag, "");
}

TEST(EffectsTest, EveryOptionReachesTheStyle) {
  DialogBench bench;
  frmEffects form(bench.State());
  form.LoadForm();
  Find<QComboBox>(form, "cboFont").setEditText("Arial");
  Find<QComboBox>(form, "cboSize").setEditText("12pt");
  Find<QComboBox>(form, "cboStyle").setEditText("Bold Italic");
  for (const char* box : {"chkSmallCaps", "chkAllCaps", "chkUnderline"}) Click(form, box);
  EXPECT_EQ(bench.State().texts.RolloverStyle, kDefaultStyle) << "the texts change at Close";
  Click(form, "cmdClose");
  EXPECT_EQ(bench.State().texts.RolloverStyle,
            "<style fprolloverstyle>A:hover {color: #FF0000; font-family: Arial; font-size: 12pt; font-style: italic; "
            "text-transform: uppercase; text-decoration: underline; font-variant: small-caps; font-weight: bold "
            "}</style>");
  Click(form, "chkRollover");
  Click(form, "cmdClose");
  EXPECT_EQ(bench.State().texts.RolloverStyle, "");
}

// A list's own way is to make an entry of its out of a text that differs in letter case only.
TEST(EffectsTest, ATypedTextIsUsedAsTyped) {
  DialogBench bench;
  frmEffects form(bench.State());
  form.LoadForm();
  auto& style = Find<QComboBox>(form, "cboStyle");
  style.setEditText("bold");
  QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
  QApplication::sendEvent(style.lineEdit(), &enter);
  EXPECT_EQ(FromQt(style.currentText()), "bold");
  EXPECT_EQ(bench.State().options.frmEffects.cboStyle, "bold");
  EXPECT_EQ(style.count(), 4);
}

TEST(EffectsTest, RestoreDefaultsAsksAndSavesNothing) {
  for (const bool answer : {false, true}) {
    DialogBench bench;
    frmEffects form(bench.State());
    form.LoadForm();
    bench.ui.colours = {1};
    Click(form, "cmdActive");
    Find<QComboBox>(form, "cboFont").setEditText("Arial");
    Click(form, "chkRollover");
    Click(form, "cmdClose");
    bench.ui.yesNo = {answer};
    Click(form, "cmdRestoreDefaults");
    EXPECT_EQ(bench.ui.questions.at(0).title, "Confirm Restore Defaults");
    EXPECT_EQ(bench.ui.questions.at(0).text, "Are you sure?");
    EXPECT_EQ(Caption(form, "lblActive"), answer ? "Default" : "");
    EXPECT_EQ(FromQt(Find<QComboBox>(form, "cboFont").currentText()), answer ? "Default Font" : "Arial");
    EXPECT_EQ(Find<QCheckBox>(form, "chkRollover").isChecked(), answer);
    EXPECT_EQ(bench.Stored("cboFont"), "Arial");
    EXPECT_EQ(bench.State().texts.RolloverStyle, "") << "the texts change at Close";
  }
}

TEST(EffectsTest, ClosingByTheTitleBarSavesNothingAndKeepsTheControls) {
  DialogBench bench;
  frmEffects form(bench.State());
  form.LoadForm();
  form.show();
  Find<QComboBox>(form, "cboSize").setEditText("18pt");
  form.close();
  EXPECT_FALSE(form.isVisible());
  EXPECT_EQ(bench.Stored("cboSize"), "<missing>");
  EXPECT_EQ(bench.State().texts.RolloverStyle, kDefaultStyle);
  EXPECT_EQ(FromQt(Find<QComboBox>(form, "cboSize").currentText()), "18pt");
}

TEST(EffectsTest, ABadSettingIsThrownAndWhatCameBeforeIsShown) {
  DialogBench bench;
  bench.State().store.SaveText("lblHyperlink", "197121");
  bench.State().store.SaveText("lblActive", "red");
  frmEffects form(bench.State());
  try {
    form.LoadForm();
    FAIL() << "\"red\" is no colour";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.Number(), kTypeMismatch);
  }
  EXPECT_EQ(Caption(form, "lblHyperlink"), "");
  EXPECT_EQ(bench.State().options.frmEffects.lblHyperlink.colour, 197121);
}

TEST(EffectsTest, AFailedSaveIsReportedOnce) {
  DialogBench bench;
  frmEffects form(bench.State());
  form.LoadForm();
  bench.BlockSettings();
  form.show();
  Click(form, "cmdClose");
  form.show();
  Click(form, "cmdClose");
  EXPECT_FALSE(form.isVisible());
  EXPECT_EQ(bench.ui.log, std::vector<std::string>{"report SaveDefaultHyperlinkColors"});
}

TEST(EffectsTest, TheSampleLinkLooksAsInAPage) {
  DialogBench bench;
  frmEffects form(bench.State());
  form.LoadForm();
  bench.ui.colours = {0x445566};
  Click(form, "cmdRollover");
  Find<QComboBox>(form, "cboStyle").setEditText("Bold");
  auto& link = Find<SampleLink>(form, "lblSampleLink");
  const auto colour = [&] { return FromQt(link.palette().color(QPalette::WindowText)); };
  const auto send = [&](QEvent&& event) { QApplication::sendEvent(&link, &event); };
  const auto press = [&](QEvent::Type type) {
    send(QMouseEvent(type, QPointF(1, 1), QPointF(1, 1), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier));
  };
  const QSize size = link.sizeHint();
  EXPECT_EQ(colour(), 16711680);
  press(QEvent::MouseButtonPress);
  EXPECT_EQ(colour(), 255);
  press(QEvent::MouseButtonRelease);
  EXPECT_EQ(colour(), 8323199) << "followed";
  send(QEnterEvent(QPointF(1, 1), QPointF(1, 1), QPointF(1, 1)));
  EXPECT_EQ(colour(), 0x445566);
  EXPECT_TRUE(link.font().bold());
  EXPECT_EQ(link.sizeHint(), size) << "nothing moves under the mouse";
  Click(form, "chkRollover");
  EXPECT_EQ(colour(), 16711680);
  EXPECT_FALSE(link.font().bold());
  send(QEvent(QEvent::Leave));
  EXPECT_EQ(colour(), 16711680);
}

TEST(EffectsTest, ShowsTheContrastOnThePagesColours) {
  DialogBench bench;
  frmEffects form(bench.State());
  form.LoadForm();
  bench.State().options.txtSample.BackColor = 0;
  bench.State().options.txtSample.ForeColor = 0xFFFFFF;
  form.show();
  EXPECT_EQ(FromQt(Find<QLabel>(form, "lblTextRatio").text()), "21.00 : 1");
  EXPECT_EQ(FromQt(Find<QLabel>(form, "lblHyperlinkRatio").text()), "2.44 : 1, hard to read: choose a lighter color");
}

}  // namespace
}  // namespace folionet
