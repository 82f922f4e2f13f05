#pragma once

#include <QObject>
#include <functional>

class QWidget;

namespace folionet {

// Calls `refresh` for every key release anywhere in a form, before the control gets it. `refresh` gives whether it
// succeeded. After a failure, which it told of in a box, releases without a press in the form do not count: the key
// that closes the box is released in the form and would bring the box up again without end.
class KeyReleases : public QObject {
  Q_OBJECT

 public:
  // Belongs to `form`, whose controls must all be there.
  KeyReleases(QWidget& form, std::function<bool()> refresh);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  std::function<bool()> m_refresh;
  bool m_needsPress = false;
};

}  // namespace folionet
