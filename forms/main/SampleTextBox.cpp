#include "SampleTextBox.h"

#include <QPalette>
#include <algorithm>

#include "Numbers.h"
#include "QtText.h"

namespace folionet {
namespace {

std::string FormatText(const SampleText& sample) {
  if (sample.FontBold && sample.FontItalic) return " Format: BoldItalic";  // without brackets, unlike the others
  if (sample.FontBold) return " [Format: Bold]";
  if (sample.FontItalic) return " [Format: Italic]";
  return " [Format: None]";
}

std::string ColourText(Colour colour) {
  std::string red;
  std::string green;
  std::string blue;
  SeperateRGB(colour, red, green, blue);
  return "#" + red + green + blue + "#]";
}

}  // namespace

std::string MakeSampleText(const SampleText& sample) {
  const auto size = static_cast<long long>(RoundHalfEven(sample.FontSize - 9));
  return "Sample Text [Font:  " + sample.FontName + "]\r\n[Fontsize:" + std::to_string(size) + "]" +
         FormatText(sample) + "\r\n[Foreground:" + ColourText(sample.ForeColor) +
         "\r\n[Background:" + ColourText(sample.BackColor);
}

SampleTextBox::SampleTextBox(QWidget* parent) : QPlainTextEdit(parent) {
  setReadOnly(true);
  setTabChangesFocus(true);
}

void SampleTextBox::ShowSample(const SampleText& sample) {
  constexpr double kSmallest = 1;  // points; Qt shows nothing for less
  constexpr double kLargest = 1000;
  QFont font(ToQt(sample.FontName));
  font.setPointSizeF(std::clamp(sample.FontSize, kSmallest, kLargest));
  font.setBold(sample.FontBold);
  font.setItalic(sample.FontItalic);
  setFont(font);
  // A disabled box keeps the desktop's colours, so that it looks disabled.
  QPalette colours;
  for (const auto group : {QPalette::Active, QPalette::Inactive}) {
    colours.setColor(group, QPalette::Base, ToQt(sample.BackColor));
    colours.setColor(group, QPalette::Text, ToQt(sample.ForeColor));
  }
  setPalette(colours);
  setPlainText(ToQtLines(MakeSampleText(sample)));
}

}  // namespace folionet
