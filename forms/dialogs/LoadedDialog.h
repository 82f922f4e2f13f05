#pragma once

#include <QDialog>

#include "UserInterface.h"

namespace folionet {

// A dialog that is loaded once, hidden, as the program starts. One that a failed start left unloaded loads when it is
// first shown: else its empty controls would be saved over what is stored.
class LoadedDialog : public QDialog {
  Q_OBJECT

 public:
  // Reads settings and files into the record and the controls. Throws RunTimeError for a setting that does not convert;
  // what was read by then is shown.
  void LoadForm();

  void setVisible(bool isVisible) override;

  bool IsLoaded() const { return m_isLoaded; }

  // Whether it was loaded without a failure.
  bool IsRead() const { return m_isRead; }

 protected:
  LoadedDialog(UserInterface& ui, QWidget* parent);

  // All but the buttons scrolls from the first showing on. To lay out what is hidden would cost a start-up dearly.
  void LetContentScroll() { m_isToScroll = true; }

  virtual void Load() = 0;
  virtual void ShowRecord() {}  // gives the controls what Load has read, all of it or less
  void showEvent(QShowEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  UserInterface& m_reports;
  bool m_isLoaded = false;
  bool m_isRead = false;
  bool m_isToScroll = false;
};

}  // namespace folionet
