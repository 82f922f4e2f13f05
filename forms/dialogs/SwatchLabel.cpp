#include "SwatchLabel.h"

#include <QLocale>
#include <cmath>

#include "Contrast.h"
#include "QtText.h"

namespace folionet {
namespace {

constexpr Colour kBlack = 0;
constexpr Colour kWhite = 0xFFFFFF;

bool IsBestOnBlack(Colour colour) { return ContrastRatio(colour, kBlack) > ContrastRatio(colour, kWhite); }

}  // namespace

SwatchLabel::SwatchLabel(QWidget* parent) : QLabel(parent) {
  constexpr int kMargin = 3;
  setAutoFillBackground(true);
  setFrameShape(QFrame::StyledPanel);
  setAlignment(Qt::AlignCenter);
  setMargin(kMargin);
}

void SwatchLabel::ShowSwatch(const Swatch& swatch) {
  QPalette colours = palette();
  colours.setColor(QPalette::Window, ToQt(swatch.colour));
  colours.setColor(QPalette::WindowText, IsBestOnBlack(swatch.colour) ? Qt::black : Qt::white);
  setPalette(colours);
  constexpr int kCharacters = 12;
  setMinimumWidth(kCharacters * fontMetrics().averageCharWidth());
  setText(swatch.isDefault ? QStringLiteral("Default") : QString());
  setAccessibleDescription(ToQt(swatch.colour).name());
}

QString ContrastAdvice(Colour colour, Colour background) {
  const double ratio = ContrastRatio(colour, background);
  // Cut, not rounded: a ratio must not look readable when it is not.
  const QString text = QLocale().toString(std::floor(ratio * 100) / 100, 'f', 2) + QStringLiteral(" : 1");
  if (ratio >= kReadableContrast) return text;
  return text + (IsBestOnBlack(background) ? QObject::tr(", hard to read: choose a darker color")
                                           : QObject::tr(", hard to read: choose a lighter color"));
}

}  // namespace folionet
