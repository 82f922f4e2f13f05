#include <gtest/gtest.h>

#include "Contrast.h"
#include "RolloverFont.h"
#include "Swatches.h"

namespace folionet {
namespace {

constexpr Colour Rgb(int red, int green, int blue) { return red + 256 * green + 65536 * blue; }

TEST(ContrastTest, RatiosAreThoseOfTheGuidelines) {
  const struct {
    Colour one;
    Colour other;
    double ratio;
  } cases[] = {
      {Rgb(0, 0, 0), Rgb(255, 255, 255), 21},
      {Rgb(255, 255, 255), Rgb(0, 0, 0), 21},
      {Rgb(18, 52, 86), Rgb(18, 52, 86), 1},
      {Rgb(118, 118, 118), Rgb(255, 255, 255), 4.5422},
      {Rgb(255, 0, 0), Rgb(255, 255, 255), 3.9985},
      {Rgb(0, 255, 0), Rgb(255, 255, 255), 1.3722},
      {Rgb(0, 0, 255), Rgb(255, 255, 255), 8.5925},
      {Rgb(10, 10, 10), Rgb(0, 0, 0), 1.0607},  // in the straight part of the curve
  };
  for (const auto& c : cases) EXPECT_NEAR(ContrastRatio(c.one, c.other), c.ratio, 0.0001) << c.one << " " << c.other;
}

TEST(ContrastTest, AdviceIsGivenUnderFourAndAHalf) {
  const struct {
    Colour colour;
    Colour background;
    const char* text;
  } cases[] = {
      {Rgb(0, 0, 255), Rgb(255, 255, 255), "8.59 : 1"},
      {Rgb(118, 118, 118), Rgb(255, 255, 255), "4.54 : 1"},
      {Rgb(119, 119, 119), Rgb(255, 255, 255), "4.47 : 1, hard to read: choose a darker color"},
      {Rgb(255, 0, 0), Rgb(255, 255, 255), "3.99 : 1, hard to read: choose a darker color"},
      {Rgb(0, 0, 255), Rgb(0, 0, 0), "2.44 : 1, hard to read: choose a lighter color"},
  };
  for (const auto& c : cases) EXPECT_EQ(ContrastAdvice(c.colour, c.background).toStdString(), c.text);
}

TEST(RolloverFontTest, ReadsLengthsOfStyleSheets) {
  const struct {
    const char* text;
    double points;  // 0 for none
  } cases[] = {{"12pt", 12}, {"10px", 7.5}, {"0.5in", 36}, {"1pc", 12}, {"2.54cm", 72}, {"25.4mm", 72},
               {"12", 0},    {"", 0},       {"pt", 0},     {"-3pt", 0}, {"big", 0},     {"Default Size", 0}};
  for (const auto& c : cases) EXPECT_NEAR(PointsOf(c.text).value_or(0), c.points, 1e-9) << c.text;
}

TEST(RolloverFontTest, RestylesThePagesFont) {
  const QFont page(QStringLiteral("Serif"), 12);
  EffectsOptions options;
  options.cboFont = "Default Font";
  options.cboSize = "Default Size";
  options.cboStyle = "Regular";
  QFont plain = RolloverFont(options, page);
  EXPECT_EQ(plain, page);

  options.cboFont = "Sans";
  options.cboSize = "500pt";
  options.cboStyle = "Bold Italic";
  options.chkUnderline = options.chkSmallCaps = options.chkAllCaps = true;
  const QFont font = RolloverFont(options, page);
  EXPECT_EQ(font.family().toStdString(), "Sans");
  EXPECT_EQ(font.pointSizeF(), 48) << "no more than a window can show";
  EXPECT_TRUE(font.bold() && font.italic() && font.underline());
  EXPECT_EQ(font.capitalization(), QFont::AllUppercase) << "capitals win over small ones, as in a browser";
}

}  // namespace
}  // namespace folionet
