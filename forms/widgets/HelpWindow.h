#pragma once

#include <QDialog>

class QTextBrowser;

namespace folionet {

// The help, in the language of the forms, in a window that stays beside the one that it was called from. Each window
// has its own, so that the help of a modal dialog can be used.
class HelpWindow : public QDialog {
  Q_OBJECT

 public:
  // Opens the help of a window at that topic, the contents for an empty one.
  static void Open(QWidget& window, const QString& topic);

 private:
  explicit HelpWindow(QWidget* parent);
  void ShowTopic(const QString& topic);

  QTextBrowser* m_page;
};

}  // namespace folionet
