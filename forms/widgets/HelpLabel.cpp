#include "HelpLabel.h"

#include <QEvent>
#include <QResizeEvent>
#include <algorithm>

namespace folionet {

HelpLabel::HelpLabel(QWidget* parent) : QLabel(parent) {
  setTextFormat(Qt::PlainText);
  setTextInteractionFlags(Qt::TextSelectableByMouse);
  setWordWrap(true);
  setAlignment(Qt::AlignLeading | Qt::AlignTop);
  FitWidth();
}

void HelpLabel::FitWidth() {
  constexpr int kNarrowestLine = 40;
  setMinimumWidth(kNarrowestLine * fontMetrics().averageCharWidth());
}

QSize HelpLabel::sizeHint() const {
  constexpr int kLongestLine = 110;
  const int whole = fontMetrics().size(0, text()).width() + 1;
  const int width = std::min(whole, kLongestLine * fontMetrics().averageCharWidth());
  return {width, heightForWidth(width)};
}

// Not by a minimum height, which heightForWidth would never go below again.
QSize HelpLabel::minimumSizeHint() const {
  const bool isLaidOut = testAttribute(Qt::WA_Resized);
  return {minimumWidth(), heightForWidth(isLaidOut ? width() : sizeHint().width())};
}

void HelpLabel::resizeEvent(QResizeEvent* event) {
  QLabel::resizeEvent(event);
  if (event->size().width() != event->oldSize().width()) updateGeometry();
}

void HelpLabel::changeEvent(QEvent* event) {
  QLabel::changeEvent(event);
  if (event->type() == QEvent::FontChange) FitWidth();
}

}  // namespace folionet
