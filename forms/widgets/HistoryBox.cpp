#include "HistoryBox.h"

#include <QAction>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <algorithm>

namespace folionet {

HistoryBox::HistoryBox(QWidget* parent) : QLineEdit(parent), m_list(addAction(QIcon(), TrailingPosition)) {
  m_list->setText(tr("Last addresses"));
  connect(m_list, &QAction::triggered, this, &HistoryBox::ListAll);
  DrawButton();
}

void HistoryBox::changeEvent(QEvent* event) {
  QLineEdit::changeEvent(event);
  if (event->type() == QEvent::PaletteChange || event->type() == QEvent::LayoutDirectionChange) DrawButton();
}

// An arrow of the size, the colour and the place of a list's.
void HistoryBox::DrawButton() {
  constexpr int kSize = 64;  // is scaled down
  constexpr QSizeF kHalf(0.25, 0.14);
  constexpr qreal kOutwards = 0.19;
  constexpr int kOpacity = 160;
  QPixmap picture(kSize, kSize);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  QColor colour = palette().color(QPalette::ButtonText);
  colour.setAlpha(kOpacity);
  painter.setBrush(colour);
  painter.scale(kSize, kSize);
  painter.translate(layoutDirection() == Qt::RightToLeft ? 0.5 - kOutwards : 0.5 + kOutwards, 0.5);
  const QPointF corner(kHalf.width(), -kHalf.height());
  painter.drawPolygon(QPolygonF{QPointF(-corner.x(), corner.y()), corner, QPointF(0, kHalf.height())});
  m_list->setIcon(picture);
}

void HistoryBox::keyPressEvent(QKeyEvent* event) {
  const bool isPlain = event->modifiers() == Qt::NoModifier || event->modifiers() == Qt::KeypadModifier;
  if (isPlain && event->key() == Qt::Key_Down) return Walk(1);
  if (isPlain && event->key() == Qt::Key_Up) return Walk(-1);
  QLineEdit::keyPressEvent(event);
}

// From a text that is none of those offered to the first one.
void HistoryBox::Walk(int step) {
  if (m_offered.isEmpty()) return;
  const auto last = static_cast<int>(m_offered.size()) - 1;
  const auto at = static_cast<int>(m_offered.indexOf(text()));
  setText(m_offered[at < 0 ? 0 : std::clamp(at + step, 0, last)]);
}

void HistoryBox::ListAll() {
  QMenu menu(this);
  for (const QString& text : m_offered)
    menu.addAction(QString(text).replace(QLatin1Char('&'), QLatin1String("&&")), this, [this, text] { setText(text); });
  menu.exec(mapToGlobal(rect().bottomLeft()));
  setFocus();
}

}  // namespace folionet
