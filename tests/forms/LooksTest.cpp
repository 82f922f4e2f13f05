#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QFontDatabase>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QStyle>
#include <QTest>
#include <algorithm>

#include "Contrast.h"
#include "FormTest.h"
#include "PageFonts.h"
#include "SampleLink.h"
#include "SampleTextBox.h"
#include "SwatchLabel.h"
#include "frmMain.h"

namespace folionet {
namespace {

class Looks : public FormTest {
 protected:
  int ColourOf(const char* control, QPalette::ColorRole role) const {
    return FromQt(Get(control).palette().color(QPalette::Active, role));
  }
};

constexpr Colour Rgb(int red, int green, int blue) { return red + 256 * green + 65536 * blue; }

TEST(SampleText, NamesItsStyle) {
  const struct {
    SampleText sample;
    const char* text;
  } cases[] = {
      {{"Arial", 10.5, true, true, 0, 8389122},
       "Arial]\r\n[Fontsize:2] Format: BoldItalic\r\n[Foreground:#020280#]\r\n[Background:#000000#]"},
      {{"Arial", 8, false, true, 0x0C0B0A, 0},
       "Arial]\r\n[Fontsize:-1] [Format: Italic]\r\n[Foreground:#000000#]\r\n[Background:#0A0B0C#]"},
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
  Click("cmdEffects");
  EXPECT_TRUE(Get("frmEffects.lblSampleText").font().bold());
}

// A form that is as large as it wants to be has room for all four, whatever the height of a line of the font is.
class LooksIn : public InFont {};

TEST_P(LooksIn, TheSampleShowsItsFourLines) {
  constexpr int kMostLines = 6;
  ASSERT_TRUE(Start());
  const auto& sample = Get<SampleTextBox>("txtSample");
  for (const double points : {8.0, 10.5, 12.0, 13.5}) {
    m_ui.fonts = {{GetParam(), points, false, false, 0, 0}};
    Click("cmdFont");
    QApplication::processEvents();
    m_form->resize(m_form->sizeHint());
    QApplication::processEvents();
    EXPECT_EQ(sample.verticalScrollBar()->maximum(), 0) << points;
    EXPECT_LE(sample.height(), kMostLines * sample.fontMetrics().lineSpacing()) << points;
  }
}

INSTANTIATE_TEST_SUITE_P(Fonts, LooksIn,
                         testing::Values("DejaVu Serif", "DejaVu Math TeX Gyre", "Liberation Serif", "Noto Sans"),
                         InFont::NameOf);

// Maximised, the form is one block in the middle, whose columns end where each other does.
TEST_F(Looks, ALargeScreenKeepsTheContentTogether) {
  ASSERT_TRUE(Start());
  m_form->resize(1920, 1052);
  QApplication::processEvents();
  const auto place = [&](const char* name) {
    const QWidget& part = Get(name);
    return QRect(part.mapTo(m_form.get(), QPoint()), part.size());
  };
  EXPECT_EQ(place("frmDialogs").bottom(), place("frmOutput").bottom());
  EXPECT_NEAR(place("page").center().x(), m_form->width() / 2, 1);
  EXPECT_EQ(place("lblBibleName").width(), place("lblhttpRoot").width()) << "the labels are one column";
  // In a wide font the words need more of it.
  const int words = 200 * m_form->fontMetrics().averageCharWidth();
  EXPECT_LE(place("page").width(), std::max(m_form->width() * 9 / 10, words));
  EXPECT_LE(place("cmdLinkToMain").top() - place("cmdPageEncoding").bottom(), 2 * Get("cmdLinkToMain").height());
}

TEST_F(Looks, TheSampleLinkLooksAsInAPage) {
  ASSERT_TRUE(Start());
  Give("frmEffects.cmdRollover", "4478310");
  Click("cmdEffects");
  QCoreApplication::processEvents();
  const QSize least = Get("frmEffects.").minimumSizeHint();
  Give("frmEffects.cboSize", "36pt");
  Give("frmEffects.cboStyle", "Bold");
  QCoreApplication::processEvents();
  EXPECT_EQ(Get("frmEffects.").minimumSizeHint(), least) << "the sample has its room";
  auto& link = Get<SampleLink>("frmEffects.lblSampleLink");
  const auto colour = [&] { return ColourOf("frmEffects.lblSampleLink", QPalette::WindowText); };
  const auto press = [&](QEvent::Type type) {
    QMouseEvent event(type, QPointF(1, 1), QPointF(1, 1), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&link, &event);
  };
  EXPECT_EQ(Get<QComboBox>("frmEffects.cboFont").count(), QFontDatabase::families().size());
  EXPECT_EQ(ColourOf("frmEffects.lblRColor", QPalette::Window), 4478310);
  EXPECT_GE(Get("frmEffects.lblRColor").minimumWidth(), 12 * m_form->fontMetrics().averageCharWidth())
      << "without a word";
  const QSize size = link.sizeHint();
  EXPECT_EQ(FromQt(link.font().family()), "Verdana") << "the page's";
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
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(&link, &leave);
  EXPECT_EQ(colour(), 8323199);
  Click("frmEffects.chkRollover");
  EXPECT_EQ(colour(), 16711680);
  EXPECT_FALSE(link.font().bold());
}

// The arrow keys start at the first entry from a text that is none, and go on from one that is.
TEST_F(Looks, ArrowKeysWalkTheEffectsLists) {
  Store("cboSize", "12pt");
  ASSERT_TRUE(Start());
  auto& sizes = Get<QComboBox>("frmEffects.cboSize");
  QTest::keyClick(&sizes, Qt::Key_Down);
  EXPECT_EQ(FromQt(sizes.currentText()), "14pt");
  m_ui.yesNo = {true};
  Click("frmEffects.cmdRestoreDefaults");
  for (const char* name : {"frmEffects.cboSize", "frmEffects.cboFont"}) {
    auto& list = Get<QComboBox>(name);
    EXPECT_EQ(list.currentIndex(), -1);
    EXPECT_TRUE(list.currentText().startsWith(QStringLiteral("Default "))) << name;
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ(list.currentText(), list.itemText(0));
  }
  EXPECT_EQ(m_state->options.frmEffects.cboSize, "8pt");
}

constexpr Colour kLight = Rgb(239, 239, 239);
constexpr Colour kDark = Rgb(45, 45, 45);

// What is pressed to compile can be read on every pixel of its ground, and boxes that only show have the form's.
TEST_F(Looks, ButtonAndBoxesSuitThePalette) {
  const QPalette before = QApplication::palette();
  ASSERT_TRUE(Start());
  Get("frmKeywords.").show();
  for (const Colour window : {kLight, kDark}) {
    QApplication::setPalette(QPalette(ToQt(window)));
    QApplication::processEvents();
    auto& button = Get<QPushButton>("cmdCompile");
    button.setText(QStringLiteral("Compile"));
    const QImage captioned = button.grab().toImage();
    button.setText({});
    EXPECT_NE(button.grab().toImage(), captioned);
    const auto& wide = Get<QPushButton>("cmdRestoreAll");
    EXPECT_GE(wide.sizeHint().width(), wide.fontMetrics().horizontalAdvance(wide.text()) + 16)
        << "room beside a caption";
    double least = 100;
    for (const bool isSpecial : {false, true}) {
      button.setDefault(isSpecial);
      button.setAttribute(Qt::WA_UnderMouse, isSpecial);
      const QImage picture = button.grab().toImage();
      constexpr int kFrame = 4;
      for (int y = kFrame; y < picture.height() - kFrame; ++y) {
        const Colour ground = FromQt(picture.pixelColor(picture.width() / 4, y));
        least = std::min(least, ContrastRatio(ground, ColourOf("cmdCompile", QPalette::ButtonText)));
      }
    }
    EXPECT_GE(least, 4.5) << window;
    EXPECT_NE(ColourOf("cmdCompile", QPalette::Button), ColourOf("cmdHelp", QPalette::Button)) << "it stands out";
    for (const char* box : {"txtFilename", "frmKeywords.txtKeyWordsOK"}) {
      EXPECT_EQ(ColourOf(box, QPalette::Base), window) << box;
      EXPECT_EQ(ColourOf(box, QPalette::PlaceholderText), ColourOf(box, QPalette::Text)) << box;
      EXPECT_NEAR(Get(box).palette().color(QPalette::PlaceholderText).alphaF(), 0.6, 0.01) << box;
    }
    QApplication::setActiveWindow(m_form.get());
    Get("txthttpRoot").setFocus();
    Get("progressCompile").show();
    const auto seen = [&](const char* name, int x, int y) {
      return FromQt(Get(name).grab().toImage().pixelColor(x, y));
    };
    EXPECT_EQ(seen("txthttpRoot", 100, 4), ColourOf("txthttpRoot", QPalette::Base)) << "with the focus";
    EXPECT_EQ(seen("txtSample", 1, 20), ColourOf("txtSample", QPalette::Base)) << "up to the frame";
    const QImage arrow = Get("txthttpRoot").actions()[0]->icon().pixmap(64).toImage();
    EXPECT_NEAR(arrow.pixelColor(44, 32).lightness(),
                QColor(ToQt(ColourOf("cmdHelp", QPalette::ButtonText))).lightness(), 2);
    Get("cmdHelp").setFocus();
    EXPECT_EQ(seen("cmdHelp", 3, Get("cmdHelp").height() / 2), ColourOf("cmdHelp", QPalette::ButtonText))
        << "a ring within";
    for (const char* framed : {"frmOutput", "progressCompile"}) {
      const double contrast = ContrastRatio(seen(framed, 0, Get(framed).height() / 2), kDark);
      EXPECT_TRUE(window != kDark || (contrast > 1.6 && contrast < 3)) << framed << contrast;
    }
  }
  QApplication::setPalette(before);
}

// How well two colours can be told apart where a line of a picture goes through the mark of a box.
double MarkContrast(const QWidget& control, const QImage& picture) {
  const int end = control.style()->pixelMetric(QStyle::PM_IndicatorWidth);
  const int middle = picture.height() / 2;
  const Colour around = FromQt(control.palette().color(QPalette::Window));
  const Colour within = FromQt(picture.pixelColor(end / 2, middle));
  double best = 0;
  for (int x = 0; x < end; ++x) {
    const Colour line = FromQt(picture.pixelColor(x, middle));
    best = std::max(best, std::min(ContrastRatio(line, around), ContrastRatio(line, within)));
  }
  return best;
}

constexpr double kEnough = 3;

// The pixels of a control that tell a person that it has the focus.
int FocusSeen(QWidget& control) {
  control.window()->setFocus();
  const QImage without = control.grab().toImage();
  control.setFocus(Qt::TabFocusReason);
  const QImage with = control.grab().toImage();
  int seen = 0;
  for (int y = 0; y < with.height(); ++y) {
    for (int x = 0; x < with.width(); ++x) {
      const QRgb pixel = with.pixel(x, y);
      const QRgb before = without.pixel(x, y);
      if (pixel != before && ContrastRatio(FromQt(QColor(pixel)), FromQt(QColor(before))) >= kEnough) ++seen;
    }
  }
  return seen;
}

TEST_F(Looks, MarksAndFocusCanBeSeen) {
  constexpr int kMostNeeded = 80;  // a ring around the text of a mark
  const QPalette before = QApplication::palette();
  ASSERT_TRUE(Start());
  const QList<QWidget*> forms = AllForms();
  for (const Colour window : {kLight, kDark}) {
    QApplication::setPalette(QPalette(ToQt(window)));
    for (QWidget* form : forms) {
      form->show();
      QApplication::processEvents();
      QApplication::setActiveWindow(form);
      for (QWidget* control : form->findChildren<QWidget*>()) {
        const bool isIn = (control->focusPolicy() & Qt::TabFocus) != 0 && control->isVisible() && control->isEnabled();
        if (!isIn || control->window() != form || control->objectName().isEmpty()) continue;
        EXPECT_GE(FocusSeen(*control), std::min(control->width() + control->height(), kMostNeeded))
            << FromQt(form->objectName() + '.' + control->objectName()) << window;
      }
    }
    for (const char* mark : {"chkUse83", "OptAlignCenter"}) {
      EXPECT_GE(MarkContrast(Get(mark), Get(mark).grab().toImage()), kEnough) << mark << window;
    }
  }
  QApplication::setPalette(before);
}

// A picture of a control as a screen has it that shows three points for two of the form.
QImage PictureAtOneAndAHalf(QWidget& control) {
  constexpr qreal kScale = 1.5;
  QImage picture(control.size() * kScale, QImage::Format_RGB32);
  picture.setDevicePixelRatio(kScale);
  control.render(&picture);
  return picture;
}

TEST_F(Looks, AFrameIsWholeOnEverySide) {
  ASSERT_TRUE(Start());
  auto& box = Get("frmLinkToMAin.txtBackToString");
  Get("frmLinkToMAin.").show();
  for (int more = 0; more < 2; ++more) {
    box.setFixedSize(100 + more, 60 + more);
    const QImage picture = PictureAtOneAndAHalf(box);
    const QPoint middle = picture.rect().center();
    const QRgb ground = picture.pixel(middle);
    EXPECT_NE(picture.pixel(0, middle.y()), ground) << more;
    EXPECT_NE(picture.pixel(middle.x(), 0), ground) << more;
    EXPECT_NE(picture.pixel(picture.width() - 1, middle.y()), ground) << more;
    EXPECT_NE(picture.pixel(middle.x(), picture.height() - 1), ground) << more;
  }
}

TEST_F(Looks, TheArrowOfTheLastAddressesPointsDown) {
  ASSERT_TRUE(Start());
  const QAction& list = *Get("txthttpRoot").actions()[0];
  EXPECT_EQ(list.toolTip(), list.text());
  const QImage arrow = list.icon().pixmap(64).toImage();
  const auto row = [&](int y) {
    int seen = 0;
    for (int x = 0; x < arrow.width(); ++x) seen += qAlpha(arrow.pixel(x, y)) == 160 ? 1 : 0;
    return seen;
  };
  EXPECT_EQ(row(20) + row(44), 0);
  EXPECT_NEAR(row(24), 30, 2);
  EXPECT_NEAR(row(38), 5, 3);
  EXPECT_EQ(qAlpha(arrow.pixel(44, 32)), 160) << "at the end of the box";
}

TEST_F(Looks, APathThatIsTooLongBeginsAndEndsWithWholeLetters) {
  ASSERT_TRUE(Start());
  const QString path = '/' + QString(300, 'm') + ".TXT";
  for (const char* name : {"txtFilename", "txtOutputPath"}) {
    auto& box = Get<QLineEdit>(name);
    Get("cboLang").setFocus();
    box.setText(path);
    const QImage picture = box.grab().toImage();
    for (const int x : {0, 1, picture.width() - 1}) {  // of the margins
      for (int y = 1; y < picture.height() - 1; ++y) EXPECT_EQ(picture.pixel(x, y), picture.pixel(x, 1)) << name << y;
    }
    EXPECT_EQ(box.text(), path);
  }
}

TEST_F(Looks, AMirroredFormKeepsTheOrderOfSentences) {
  ASSERT_TRUE(Start());
  auto& button = Get("cmdBrowse");
  const QImage picture = button.grab().toImage();
  QApplication::setLayoutDirection(Qt::RightToLeft);
  QApplication::processEvents();
  EXPECT_EQ(button.layoutDirection(), Qt::RightToLeft);
  EXPECT_EQ(button.grab().toImage(), picture) << "the dots stand behind the word";
  ASSERT_TRUE(Start());
  EXPECT_TRUE(Get<QLabel>("lblWarning").alignment().testFlags(Qt::AlignRight | Qt::AlignAbsolute));
  EXPECT_TRUE(Get<QLineEdit>("txtBibleSel").alignment().testFlags(Qt::AlignRight | Qt::AlignAbsolute));
  for (const char* opener : {"cmdPageEncoding", "frmEncoding.cmdAddNew", "cmdImport"}) Click(opener);
  EXPECT_TRUE(Get<QLabel>("frmAddnew.lblLangAbbr").alignment().testFlags(Qt::AlignRight | Qt::AlignAbsolute));
  const QString hint = Get<QPlainTextEdit>("frmImport.txtFound").placeholderText();
  EXPECT_EQ(hint.back(), QChar(0x200E)) << "the full stop stands behind the last line";
  QApplication::setLayoutDirection(Qt::LeftToRight);
}

TEST(Contrast, AdvisesOnColoursThatAreHardToRead) {
  const struct {
    Colour colour;
    Colour background;
    const char* advice;
  } cases[] = {
      {Rgb(118, 118, 118), Rgb(255, 255, 255), "4.54 : 1"},
      {Rgb(119, 119, 119), Rgb(255, 255, 255), "4.47 : 1, hard to read: choose a darker color"},
      {Rgb(0, 255, 0), Rgb(255, 255, 255), "1.37 : 1, hard to read: choose a darker color"},
      {Rgb(10, 10, 10), Rgb(0, 0, 0), "1.06 : 1, hard to read: choose a lighter color"},  // the curve's straight part
  };
  for (const auto& c : cases) EXPECT_EQ(FromQt(ContrastAdvice(c.colour, c.background)), c.advice);
}

TEST(RolloverFontTest, RestylesThePagesFont) {
  const std::pair<const char*, double> lengths[] = {
      {"12pt", 12}, {"10px", 7.5}, {"0.5in", 36}, {"1pc", 12},  {"2.54cm", 72}, {"25.4mm", 72},
      {"12", -1},   {"", -1},      {"pt", -1},    {"-3pt", -1}, {"0pt", -1},    {"Default Size", -1}};
  for (const auto& [text, points] : lengths) EXPECT_NEAR(PointsOf(text).value_or(-1), points, 1e-9) << text;

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
