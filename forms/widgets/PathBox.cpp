#include "PathBox.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionFrame>

namespace folionet {

void PathBox::paintEvent(QPaintEvent* event) {
  constexpr int kMargin = 2;  // Qt's own, on either side of the text
  QStyleOptionFrame panel;
  initStyleOption(&panel);
  const QRect contents = style()->subElementRect(QStyle::SE_LineEditContents, &panel, this);
  const QRect room = contents.adjusted(kMargin, 0, -kMargin, 0);
  if (hasFocus() || fontMetrics().horizontalAdvance(text()) < room.width()) return QLineEdit::paintEvent(event);
  QPainter painter(this);
  style()->drawPrimitive(QStyle::PE_PanelLineEdit, &panel, &painter, this);
  painter.setPen(palette().color(QPalette::Text));
  const QString shown = fontMetrics().elidedText(text(), Qt::ElideMiddle, room.width());
  const Qt::Alignment place = QStyle::visualAlignment(layoutDirection(), alignment());
  painter.drawText(room, static_cast<int>(place) | Qt::AlignVCenter | Qt::TextForceLeftToRight, shown);
}

}  // namespace folionet
