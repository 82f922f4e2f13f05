#include "SampleTextBox.h"

#include <QApplication>
#include <QPalette>
#include <QTextBlock>
#include <QTextLayout>
#include <QtMath>
#include <algorithm>

#include "Numbers.h"
#include "PageFonts.h"
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

// Of its lines as a box of that width breaks them and lays them out: with the leading, and more of it than the font's
// metrics say.
int TextHeight(const QTextDocument& text, const QFont& font, int width) {
  qreal height = 0;
  for (QTextBlock block = text.begin(); block.isValid(); block = block.next()) {
    QTextLayout layout(block.text(), font);
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
      line.setLeadingIncluded(true);
      line.setLineWidth(width);
      height += line.height();
    }
    layout.endLayout();
  }
  return qCeil(height);
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
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
}

void SampleTextBox::ShowSample(const SampleText& sample) {
  constexpr double kSmallest = 1;  // points; Qt shows nothing for less
  constexpr double kLargest = 1000;
  setFont(PageFont(sample, kSmallest, kLargest));
  // A disabled box keeps the desktop's colours, so that it looks disabled.
  QPalette colours;
  for (const auto group : {QPalette::Active, QPalette::Inactive}) {
    colours.setColor(group, QPalette::Base, ToQt(sample.BackColor));
    colours.setColor(group, QPalette::Text, ToQt(sample.ForeColor));
  }
  setPalette(colours);
  setPlainText(ToQtLines(MakeSampleText(sample)));
  constexpr int kMostLines = 6;
  setMaximumHeight(
      std::max(sizeHint().height(), std::min(kMostLines * fontMetrics().lineSpacing(), 2 * sizeHint().height())));
}

int SampleTextBox::AroundText() const {
  return 2 * frameWidth() + static_cast<int>(2 * document()->documentMargin()) + 2;
}

QSize SampleTextBox::sizeHint() const {
  constexpr int kColumns = 34;
  constexpr int kMostLines = 10;  // of the form's font, however large the page's is
  const QFontMetrics form(QApplication::font());
  const int width = kColumns * form.averageCharWidth();
  const int text = TextHeight(*document(), font(), std::max(width, viewport()->width()) - AroundText());
  return {width, std::min(text, kMostLines * form.lineSpacing()) + AroundText()};
}

QSize SampleTextBox::minimumSizeHint() const {
  constexpr int kMostLines = 6;  // of the form's font: in what there is of a usual one nothing scrolls
  const QFontMetrics form(QApplication::font());
  return {sizeHint().width(), std::min(sizeHint().height(), kMostLines * form.lineSpacing() + AroundText())};
}

}  // namespace folionet
