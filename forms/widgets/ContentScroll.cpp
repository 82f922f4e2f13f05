#include "ContentScroll.h"

#include <QBoxLayout>
#include <QEvent>
#include <QScreen>
#include <QScrollBar>
#include <algorithm>

namespace folionet {

ContentScroll::ContentScroll(QWidget* parent) : QScrollArea(parent) {
  setWidgetResizable(true);
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::NoFocus);
  viewport()->setAutoFillBackground(false);
  setBackgroundRole(QPalette::Window);
}

QSize ContentScroll::sizeHint() const { return widget() == nullptr ? QSize() : widget()->sizeHint(); }

// As wide as the content where the screen has room for that, so that nothing is scrolled sideways without need.
QSize ContentScroll::minimumSizeHint() const {
  if (widget() == nullptr) return {};
  constexpr int kLines = 6;
  const QSize content = widget()->minimumSizeHint();
  const int bar = verticalScrollBar()->sizeHint().width();
  const int widest = screen()->availableSize().width() * 9 / 10;
  const int height = std::min(content.height(), kLines * fontMetrics().lineSpacing());
  return {std::min(content.width() + bar, widest), height};
}

bool ContentScroll::eventFilter(QObject* watched, QEvent* event) {
  if (watched == widget() && event->type() == QEvent::LayoutRequest) updateGeometry();
  return QScrollArea::eventFilter(watched, event);
}

void ScrollAllButButtons(QDialog& dialog) {
  auto* outer = qobject_cast<QVBoxLayout*>(dialog.layout());
  if (outer == nullptr || outer->count() < 2) return;
  auto* content = new QWidget;
  auto* inner = new QVBoxLayout(content);
  inner->setContentsMargins(0, 0, 0, 0);
  while (outer->count() > 1) {
    const int stretch = outer->stretch(0);
    QLayoutItem* item = outer->takeAt(0);
    if (QWidget* widget = item->widget()) {
      inner->addWidget(widget, stretch);
      delete item;
    } else if (QLayout* layout = item->layout()) {
      layout->setParent(nullptr);
      inner->addLayout(layout, stretch);
    } else {
      inner->addItem(item);
    }
  }
  content->setAutoFillBackground(false);
  auto* scroll = new ContentScroll(&dialog);
  scroll->setObjectName(QStringLiteral("scrContent"));
  scroll->setWidget(content);
  outer->insertWidget(0, scroll, 1);
}

}  // namespace folionet
