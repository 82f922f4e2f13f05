#include "ContentScroll.h"

#include <QApplication>
#include <QBoxLayout>
#include <QEvent>
#include <QScreen>
#include <QScrollBar>
#include <algorithm>

namespace folionet {
namespace {

constexpr int kGap = 6;  // between the content and its scroll bar

}  // namespace

int ScrolledContent::heightForWidth(int width) const {
  return layout() == nullptr ? -1 : layout()->totalMinimumHeightForWidth(width);
}

ContentScroll::ContentScroll(QWidget* parent) : QScrollArea(parent) {
  setWidgetResizable(true);
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::NoFocus);
  viewport()->setAutoFillBackground(false);
  setBackgroundRole(QPalette::Window);
  m_moved.setSingleShot(true);
  m_moved.setInterval(0);
  connect(&m_moved, &QTimer::timeout, this, &ContentScroll::KeepFocusSeen);
  // Qt scrolls for the Tab key alone, not for an Alt key nor for a form that gives the focus.
  connect(qApp, &QApplication::focusChanged, this, &ContentScroll::KeepFocusSeen);
}

// The focus leaves the parts of it that go with it.
ContentScroll::~ContentScroll() { disconnect(qApp, nullptr, this, nullptr); }

int ContentScroll::BarRoom() const { return verticalScrollBar()->sizeHint().width() + kGap; }

// With room for the bar: texts that it made so narrow that they wrap would need it from then on.
// What changed in the content while it was hidden counts once its layout has heard of it.
QSize ContentScroll::sizeHint() const {
  if (widget() == nullptr) return {};
  if (QLayout* layout = widget()->layout()) layout->activate();
  return widget()->sizeHint() + QSize(BarRoom(), 0);
}

// As wide as the content where the screen has room for that, so that nothing is scrolled sideways without need.
QSize ContentScroll::minimumSizeHint() const {
  if (widget() == nullptr) return {};
  constexpr int kLines = 6;
  const QSize content = widget()->minimumSizeHint();
  const int widest = screen()->availableSize().width() * 9 / 10;
  const int height = std::min(content.height(), kLines * fontMetrics().lineSpacing());
  return {std::min(content.width() + BarRoom(), widest), height};
}

bool ContentScroll::eventFilter(QObject* watched, QEvent* event) {
  const bool isChanged = watched == widget() && event->type() == QEvent::LayoutRequest;
  if (isChanged) updateGeometry();
  const bool isDone = QScrollArea::eventFilter(watched, event);
  if (isChanged) KeepOffBar();
  const bool isMoved = isChanged || (watched == widget() && event->type() == QEvent::Resize);
  if (isMoved) m_moved.start();
  return isDone;
}

void ContentScroll::resizeEvent(QResizeEvent* event) {
  QScrollArea::resizeEvent(event);
  KeepOffBar();
  KeepFocusSeen();
}

void ContentScroll::showEvent(QShowEvent* event) {
  QScrollArea::showEvent(event);
  KeepFocusSeen();
}

// What a person types into is not pushed out of view by what is told elsewhere.
void ContentScroll::KeepFocusSeen() {
  QWidget* const focus = window()->focusWidget();
  if (widget() == nullptr || focus == nullptr || !widget()->isAncestorOf(focus)) return;
  constexpr int kAround = 6;
  ensureWidgetVisible(focus, kAround, kAround);
}

// By what the content needs without a bar: the gap itself could make it need one.
void ContentScroll::KeepOffBar() {
  if (widget() == nullptr) return;
  const QSize least = widget()->minimumSizeHint();
  const bool wraps = widget()->hasHeightForWidth();
  const int needed = wraps ? widget()->heightForWidth(std::max(width(), least.width())) : least.height();
  const int gap = needed > height() ? kGap : 0;
  if (viewportMargins().right() != gap) setViewportMargins(0, 0, gap, 0);
}

void ScrollAllButButtons(QDialog& dialog) {
  auto* outer = qobject_cast<QVBoxLayout*>(dialog.layout());
  if (outer == nullptr || outer->count() < 2) return;
  auto* content =
      new ScrolledContent(&dialog);  // in the same window all the time, which keeps the order of the Tab key
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
