#pragma once

#include <memory>

#include "AppState.h"
#include "LoadedDialog.h"

namespace folionet {

namespace Ui {
class frmPAgeTitles;
}

// Edits the title templates of the index page and of the chapter pages. The record follows the boxes as typed; previews
// follow every key release.
class frmPAgeTitles : public LoadedDialog {
  Q_OBJECT

 public:
  explicit frmPAgeTitles(AppState& state, QWidget* parent = nullptr);
  ~frmPAgeTitles() override;

 private:
  // Reads both templates.
  void Load() override;
  void ShowRecord() override;

  void showEvent(QShowEvent* event) override;
  void SaveTitles();
  bool ShowPreviews();

  AppState& m_state;
  std::unique_ptr<Ui::frmPAgeTitles> m_ui;
};

}  // namespace folionet
