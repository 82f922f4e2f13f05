#pragma once

#include <QDialog>

class QTextBrowser;

namespace folionet {

// The help, in the language of the forms, in a window that stays beside the one that it was called from. Each window
// has its own, so that the help of a modal dialog can be used.
class HelpWindow : public QDialog {
  Q_OBJECT

 public:
  // Opens the help of a window at what is told about the control, or about what the control is in; at the contents for
  // one that nothing is told about.
  static void Open(QWidget& window, const QWidget* control);

  // From now on F1 in the window opens the help at what has the focus.
  static void OpenByKey(QWidget& window);

 private:
  explicit HelpWindow(QWidget* parent);
  void ShowTopic(const QString& topic);

  QTextBrowser* m_page;
};

}  // namespace folionet
