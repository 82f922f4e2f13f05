#pragma once

#include <memory>

#include "AppState.h"
#include "LoadedDialog.h"

namespace folionet {

namespace Ui {
class frmKeywords;
}

// Edits the META keywords and descriptions of the index page and of the chapter pages. The record follows the boxes as
// typed, saved or not; previews follow every key release.
class frmKeywords : public LoadedDialog {
  Q_OBJECT

 public:
  explicit frmKeywords(AppState& state, QWidget* parent = nullptr);
  ~frmKeywords() override;

 private:
  // Reads the four templates; the previews stay as they are.
  void Load() override;
  void ShowRecord() override;

  void showEvent(QShowEvent* event) override;
  bool RefreshTitles();
  void Close();

  AppState& m_state;
  std::unique_ptr<Ui::frmKeywords> m_ui;
};

}  // namespace folionet
