#pragma once

#include <memory>
#include <string>

#include "AppState.h"
#include "LoadedDialog.h"

namespace folionet {

namespace Ui {
class frmBackground;
}

// Names the background image of the pages and says whether it stays in place as the text scrolls.
class frmBackground : public LoadedDialog {
  Q_OBJECT

 public:
  explicit frmBackground(AppState& state, QWidget* parent = nullptr);
  ~frmBackground() override;

 private:
  void Load() override;
  void ShowRecord() override;

  void SelectImage();
  void SaveImage();

  AppState& m_state;
  BackgroundOptions& m_record;
  std::string m_chosenPath;  // what the file chooser gave last
  std::unique_ptr<Ui::frmBackground> m_ui;
};

}  // namespace folionet
