#include "RunGuard.h"

#include <QApplication>
#include <QEvent>

namespace folionet {

RunGuard::RunGuard(QWidget& window) : m_window(window) {
  m_window.setCursor(Qt::BusyCursor);
  qApp->installEventFilter(this);
}

RunGuard::~RunGuard() {
  QCoreApplication::processEvents();  // clicks that came during the run go with it
  qApp->removeEventFilter(this);
  m_window.unsetCursor();
}

bool RunGuard::eventFilter(QObject* watched, QEvent* event) {
  if (watched == &m_window && event->type() == QEvent::Close) {
    event->ignore();
    return true;
  }
  if (QApplication::activeModalWidget() != nullptr) return QObject::eventFilter(watched, event);
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::ContextMenu:
    case QEvent::Drop:
      return true;
    default:
      return QObject::eventFilter(watched, event);
  }
}

}  // namespace folionet
