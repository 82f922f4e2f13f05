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
  void ShowContents() { ShowTopic({}); }

  // Opens the help at what is told about the control, or the window that it is in; at the contents for one that
  // nothing is told about.
  void ShowTopicOf(const QWidget* control);

 private:
  void ShowTopic(const QString& anchor);
  QTextBrowser* m_page;
};

}  // namespace folionet
