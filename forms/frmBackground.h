#pragma once

#include <QDialog>
#include <memory>
#include <string>

#include "AppState.h"

namespace folionet {

namespace Ui {
class frmBackground;
}

// Names the background image of the pages and says whether it stays in place as the text scrolls.
class frmBackground : public QDialog {
  Q_OBJECT

 public:
  explicit frmBackground(AppState& state, QWidget* parent = nullptr);
  ~frmBackground() override;

  // Reads both options. Throws RunTimeError for a stored value that is no number.
  void LoadForm();

 private:
  void SelectImage();
  void SaveImage();

  AppState& m_state;
  BackgroundOptions& m_record;
  std::string m_chosenPath;  // what the file chooser gave last
  std::unique_ptr<Ui::frmBackground> m_ui;
};

}  // namespace folionet
