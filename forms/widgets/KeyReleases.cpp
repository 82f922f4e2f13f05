#include "KeyReleases.h"

#include <QEvent>
#include <QWidget>

namespace folionet {

KeyReleases::KeyReleases(QWidget& form, std::function<bool()> refresh) : QObject(&form), m_refresh(std::move(refresh)) {
  form.installEventFilter(this);
  for (QWidget* control : form.findChildren<QWidget*>()) control->installEventFilter(this);
}

// A release that a control leaves comes again from the widgets around it, and shows the same once more.
bool KeyReleases::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress) m_needsPress = false;
  if (event->type() == QEvent::KeyRelease && !m_needsPress) {
    m_needsPress = !m_refresh();
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace folionet
