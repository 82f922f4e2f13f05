#pragma once

#include <QObject>
#include <QWidget>

namespace folionet {

// While one lives, a run holds the program: the window shows a busy pointer and takes no clicks and keys, so that
// nothing starts twice, and does not close. Boxes that the run itself shows are served.
class RunGuard : public QObject {
  Q_OBJECT

 public:
  explicit RunGuard(QWidget& window);
  ~RunGuard() override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QWidget& m_window;
};

}  // namespace folionet
