#include "KeyReleases.h"

#include <QEvent>
#include <QWidget>

namespace folionet {

KeyReleases::KeyReleases(QWidget& form, std::function<bool()> refresh) : QObject(&form), m_refresh(std::move(refresh)) {
  form.installEventFilter(this);
  for (QWidget* control : form.findChildren<QWidget*>()) control->installEventFilter(this);
}

// An event that a control leaves is offered to the widgets around it, one by one. The same address alone says little:
// the next event may be made in the same place.
bool KeyReleases::IsPassedOn(const QWidget* watched, const QEvent* event) {
  const bool isPassedOn = event == m_lastEvent && watched != m_lastWatched && watched->isAncestorOf(m_lastWatched);
  m_lastEvent = event;
  m_lastWatched = watched;
  return isPassedOn;
}

bool KeyReleases::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress) m_needsPress = false;
  if (event->type() == QEvent::KeyRelease && !IsPassedOn(qobject_cast<QWidget*>(watched), event) && !m_needsPress) {
    m_needsPress = !m_refresh();
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace folionet
