#include "HelpLabel.h"

#include <QEvent>
#include <QResizeEvent>

namespace folionet {

HelpLabel::HelpLabel(QWidget* parent) : QLabel(parent) {
  setTextFormat(Qt::PlainText);
  setTextInteractionFlags(Qt::TextSelectableByMouse);
  setWordWrap(true);
  FitWidth();
}

void HelpLabel::FitWidth() {
  constexpr int kNarrowestLine = 40;
  setMinimumWidth(kNarrowestLine * fontMetrics().averageCharWidth());
}

void HelpLabel::resizeEvent(QResizeEvent* event) {
  QLabel::resizeEvent(event);
  setMinimumHeight(heightForWidth(width()));
}

void HelpLabel::changeEvent(QEvent* event) {
  QLabel::changeEvent(event);
  if (event->type() != QEvent::FontChange) return;
  FitWidth();
  setMinimumHeight(heightForWidth(width()));
}

}  // namespace folionet
