#pragma once

#include <QDialog>
#include <memory>

#include "AppState.h"

namespace folionet {

namespace Ui {
class frmPAgeTitles;
}

// Edits the title templates of the index page and of the chapter pages. The record follows the boxes as typed; previews
// follow every key release.
class frmPAgeTitles : public QDialog {
  Q_OBJECT

 public:
  explicit frmPAgeTitles(AppState& state, QWidget* parent = nullptr);
  ~frmPAgeTitles() override;

  // Reads both templates. Throws RunTimeError.
  void LoadForm();

 private:
  void SaveTitles();
  bool ShowPreviews();

  AppState& m_state;
  std::unique_ptr<Ui::frmPAgeTitles> m_ui;
};

}  // namespace folionet
