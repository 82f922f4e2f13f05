#include <QApplication>
#include <QComboBox>
#include <QFontDatabase>
#include <QLineEdit>
#include <QMouseEvent>

#include "Contrast.h"
#include "FormTest.h"
#include "RolloverFont.h"
#include "SampleLink.h"
#include "SampleTextBox.h"
#include "Swatches.h"

namespace folionet {
namespace {

class Looks : public FormTest {
 protected:
  int ColourOf(const char* control, QPalette::ColorRole role) const {
    return FromQt(Get(control).palette().color(QPalette::Active, role));
  }
};

constexpr Colour Rgb(int red, int green, int blue) { return red + 256 * green + 65536 * blue; }

TEST_F(Looks, SampleTextNamesItsStyle) {
  const struct {
    SampleText sample;
    const char* text;
  } cases[] = {
      {{}, "Verdana]\r\n[Fontsize:3] [Format: None]\r\n[Foreground:#020280#]\r\n[Background:#FFFFFF#]"},
      {{"Arial", 10.5, true, true, 0, 8389122},
       "Arial]\r\n[Fontsize:2] Format: BoldItalic\r\n[Foreground:#020280#]\r\n[Background:#000000#]"},
      {{"Arial", 8, true, false, 0x0C0B0A, 255},
       "Arial]\r\n[Fontsize:-1] [Format: Bold]\r\n[Foreground:#FF0000#]\r\n[Background:#0A0B0C#]"},
      {{"Arial", 11.5, false, true, 255, 0},
       "Arial]\r\n[Fontsize:2] [Format: Italic]\r\n[Foreground:#000000#]\r\n[Background:#FF0000#]"},
  };
  for (const auto& c : cases) EXPECT_EQ(MakeSampleText(c.sample), std::string("Sample Text [Font:  ") + c.text);
}

TEST_F(Looks, PickersChangeTheSample) {
  ASSERT_TRUE(Start());
  Give("cmdBackColour", "255");
  Give("cmdForeColour", "65280");
  m_ui.fonts = {{"DejaVu Serif", 18, true, false, 1, 2}};  // a font has no colours
  Click("cmdFont");
  EXPECT_EQ(m_ui.offered, (Log{"16777215", "8389122", "Verdana"}));
  EXPECT_EQ(Shown("txtSample"),
            "Sample Text [Font:  DejaVu Serif]\n[Fontsize:9] [Format: Bold]\n[Foreground:#00FF00#]\n"
            "[Background:#FF0000#]");
  EXPECT_EQ(ColourOf("txtSample", QPalette::Base), 255);
  EXPECT_EQ(ColourOf("txtSample", QPalette::Text), 65280);
  const QFont font = Get("txtSample").font();
  EXPECT_EQ(FromQt(font.family()), "DejaVu Serif");
  EXPECT_EQ(font.pointSizeF(), 18);
  EXPECT_TRUE(font.bold());
}

constexpr char kDefaultStyle[] = "<style fprolloverstyle>A:hover {color: #FF0000; text-decoration: none; }</style>";

// Each colour button: which swatch it sets, and whether the pages' texts follow at once. Leaving the chooser picks the
// colour that was there until the next start.
TEST_F(Looks, ColourButtonsSetTheirSwatch) {
  const struct {
    std::string button;
    const char* swatch;
    const char* tagAtClose;
    const char* tagOfDefault;
    bool isRollover;
  } cases[] = {
      {"frmEffects.cmdHyperlink", "frmEffects.lblHyperlink", "<body link=\"#010203\"", "<body link=\"#0000FF\"", false},
      {"frmEffects.cmdActive", "frmEffects.lblActive", "<body  alink=\"#010203\"", "<body  alink=\"#FF0000\"", false},
      {"frmEffects.cmdFollowed", "frmEffects.lblFollowed", "<body  vlink=\"#010203\"", "<body  vlink=\"#7F007F\"",
       false},
      {"frmEffects.cmdRollover", "frmEffects.lblRColor", "", "", true},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.button);
    Remove("config/Folionet.ini");
    ASSERT_TRUE(Start());
    EXPECT_EQ(m_state->texts.RolloverStyle, kDefaultStyle);
    EXPECT_TRUE(Shown(c.swatch).starts_with("Default"));
    Click(c.button);
    EXPECT_TRUE(Shown(c.swatch).starts_with("#"));
    Click("frmEffects.cmdClose");
    EXPECT_EQ(m_state->texts.BodyLinkTag, c.tagOfDefault);
    ASSERT_TRUE(Start());
    EXPECT_EQ(m_state->texts.BodyLinkTag, "");
    Give(c.button, "197121");
    EXPECT_EQ(ColourOf(c.swatch, QPalette::Window), 197121);
    EXPECT_EQ(m_state->texts.RolloverStyle.find("#010203") != std::string::npos, c.isRollover);
    EXPECT_EQ(m_state->texts.BodyLinkTag, "");
    Click("frmEffects.cmdClose");
    EXPECT_EQ(m_state->texts.BodyLinkTag, c.tagAtClose);
  }
}

TEST_F(Looks, EveryEffectReachesTheStyleAtClose) {
  ASSERT_TRUE(Start());
  EXPECT_EQ(Get<QComboBox>("frmEffects.cboFont").count(), QFontDatabase::families().size());
  Give("frmEffects.cboFont", "Arial");
  Give("frmEffects.cboSize", "12pt");
  Give("frmEffects.cboStyle", "bold");
  // A list's own way is to make an entry of its out of a text that differs in letter case only.
  Key(*Get<QComboBox>("frmEffects.cboStyle").lineEdit(), QEvent::KeyPress, Qt::Key_Return);
  EXPECT_EQ(Shown("frmEffects.cboStyle"), "bold");
  Give("frmEffects.cboStyle", "Bold Italic");
  for (const char* box : {"chkSmallCaps", "chkAllCaps", "chkUnderline"}) Click(std::string("frmEffects.") + box);
  EXPECT_EQ(m_state->texts.RolloverStyle, kDefaultStyle);
  Click("frmEffects.cmdClose");
  EXPECT_EQ(m_state->texts.RolloverStyle,
            "<style fprolloverstyle>A:hover {color: #FF0000; font-family: Arial; font-size: 12pt; font-style: italic; "
            "text-transform: uppercase; text-decoration: underline; font-variant: small-caps; font-weight: bold "
            "}</style>");
  Click("frmEffects.chkRollover");
  Click("frmEffects.cmdClose");
  EXPECT_EQ(m_state->texts.RolloverStyle, "");

  m_ui.yesNo = {false, true};
  for (const bool answer : {false, true}) {
    Click("frmEffects.cmdRestoreDefaults");
    EXPECT_EQ(m_ui.log.back() + m_ui.said.back(), "Confirm Restore Defaults?Are you sure?");
    EXPECT_EQ(Shown("frmEffects.cboFont"), answer ? "Default Font" : "Arial");
    EXPECT_EQ(Shown("frmEffects.chkRollover"), answer ? "1" : "0");
    EXPECT_EQ(Stored("cboFont"), "Arial") << "saves nothing";
    EXPECT_EQ(m_state->texts.RolloverStyle, "");
  }
}

TEST_F(Looks, ABadColourLeavesWhatCameBeforeShown) {
  Store("lblHyperlink", "197121");
  Store("lblActive", "red");
  ASSERT_TRUE(Start());
  EXPECT_EQ(Shown("frmEffects.lblHyperlink"), "#010203");
  EXPECT_EQ(Shown("frmEffects.lblActive"), "#ff0000");
}

TEST_F(Looks, TheSampleLinkLooksAsInAPage) {
  ASSERT_TRUE(Start());
  Give("frmEffects.cmdRollover", "4478310");
  Give("frmEffects.cboStyle", "Bold");
  auto& link = Get<SampleLink>("frmEffects.lblSampleLink");
  const auto colour = [&] { return ColourOf("frmEffects.lblSampleLink", QPalette::WindowText); };
  const auto press = [&](QEvent::Type type) {
    QMouseEvent event(type, QPointF(1, 1), QPointF(1, 1), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&link, &event);
  };
  const QSize size = link.sizeHint();
  EXPECT_EQ(colour(), 16711680);
  press(QEvent::MouseButtonPress);
  EXPECT_EQ(colour(), 255);
  press(QEvent::MouseButtonRelease);
  EXPECT_EQ(colour(), 8323199) << "followed";
  QEnterEvent enter(QPointF(1, 1), QPointF(1, 1), QPointF(1, 1));
  QApplication::sendEvent(&link, &enter);
  EXPECT_EQ(colour(), 4478310);
  EXPECT_TRUE(link.font().bold());
  EXPECT_EQ(link.sizeHint(), size) << "nothing moves under the mouse";
  Click("frmEffects.chkRollover");
  EXPECT_EQ(colour(), 16711680);
  EXPECT_FALSE(link.font().bold());
}

TEST_F(Looks, TheContrastIsThatOfThePagesColours) {
  ASSERT_TRUE(Start());
  Give("cmdBackColour", "0");
  Give("cmdForeColour", "16777215");
  Click("cmdEffects");
  EXPECT_EQ(Shown("frmEffects.lblTextRatio"), "21.00 : 1");
  EXPECT_EQ(Shown("frmEffects.lblHyperlinkRatio"), "2.44 : 1, hard to read: choose a lighter color");

  const struct {
    Colour colour;
    Colour background;
    const char* advice;
  } cases[] = {
      {Rgb(0, 0, 255), Rgb(255, 255, 255), "8.59 : 1"},
      {Rgb(118, 118, 118), Rgb(255, 255, 255), "4.54 : 1"},
      {Rgb(119, 119, 119), Rgb(255, 255, 255), "4.47 : 1, hard to read: choose a darker color"},
      {Rgb(255, 0, 0), Rgb(255, 255, 255), "3.99 : 1, hard to read: choose a darker color"},
      {Rgb(0, 255, 0), Rgb(255, 255, 255), "1.37 : 1, hard to read: choose a darker color"},
      {Rgb(10, 10, 10), Rgb(0, 0, 0), "1.06 : 1, hard to read: choose a lighter color"},  // the curve's straight part
  };
  for (const auto& c : cases) EXPECT_EQ(FromQt(ContrastAdvice(c.colour, c.background)), c.advice);
}

TEST_F(Looks, TheRolloverFontRestylesThePages) {
  const std::pair<const char*, double> lengths[] = {{"12pt", 12},   {"10px", 7.5},  {"0.5in", 36}, {"1pc", 12},
                                                    {"2.54cm", 72}, {"25.4mm", 72}, {"12", 0},     {"", 0},
                                                    {"pt", 0},      {"-3pt", 0},    {"big", 0},    {"Default Size", 0}};
  for (const auto& [text, points] : lengths) EXPECT_NEAR(PointsOf(text).value_or(0), points, 1e-9) << text;

  const QFont page(QStringLiteral("Serif"), 12);
  EffectsOptions options;
  options.cboFont = "Default Font";
  options.cboStyle = "Regular";
  EXPECT_EQ(RolloverFont(options, page), page);
  options.cboFont = "Sans";
  options.cboSize = "500pt";
  options.cboStyle = "Bold Italic";
  options.chkUnderline = options.chkSmallCaps = options.chkAllCaps = true;
  const QFont font = RolloverFont(options, page);
  EXPECT_EQ(FromQt(font.family()), "Sans");
  EXPECT_EQ(font.pointSizeF(), 48) << "no more than a window can show";
  EXPECT_TRUE(font.bold() && font.italic() && font.underline());
  EXPECT_EQ(font.capitalization(), QFont::AllUppercase) << "capitals win over small ones, as in a browser";
}

}  // namespace
}  // namespace folionet
