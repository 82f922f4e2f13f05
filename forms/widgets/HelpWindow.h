#pragma once

#include <QDialog>

class QTextBrowser;

namespace folionet {

// The help, in a window that stays beside the form.
class HelpWindow : public QDialog {
  Q_OBJECT

 public:
  explicit HelpWindow(QWidget* parent = nullptr);

  // Shows the window at the contents.
  void ShowContents();

 private:
  QTextBrowser* m_page;
};

}  // namespace folionet
