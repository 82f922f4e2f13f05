#include "HistoryBox.h"

#include <QAction>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <algorithm>

namespace folionet {

HistoryBox::HistoryBox(QWidget* parent) : QLineEdit(parent), m_list(addAction(QIcon(), TrailingPosition)) {
  m_list->setText(tr("Last addresses"));
  m_list->setToolTip(m_list->text());
  connect(m_list, &QAction::triggered, this, &HistoryBox::ListAll);
  DrawButton();
}

void HistoryBox::changeEvent(QEvent* event) {
  QLineEdit::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) DrawButton();
}

// An arrow as that of a list, in the colour of the text.
void HistoryBox::DrawButton() {
  constexpr int kSize = 64;  // is scaled down
  QPixmap picture(kSize, kSize);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(palette().color(QPalette::Text));
  painter.drawPolygon(QPolygonF{QPointF(0.22, 0.38) * kSize, QPointF(0.78, 0.38) * kSize, QPointF(0.5, 0.68) * kSize});
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
