#pragma once

#include <QDialog>
#include <memory>

#include "AppState.h"

namespace folionet {

namespace Ui {
class frmKeywords;
}

// Edits the META keywords and descriptions of the index page and of the chapter pages. The record follows the boxes as
// typed, saved or not; previews follow every key release.
class frmKeywords : public QDialog {
  Q_OBJECT

 public:
  explicit frmKeywords(AppState& state, QWidget* parent = nullptr);
  ~frmKeywords() override;

  // Reads the four templates; the previews stay as they are. Throws RunTimeError.
  void LoadForm();

 private:
  bool RefreshTitles();
  void Close();

  AppState& m_state;
  std::unique_ptr<Ui::frmKeywords> m_ui;
};

}  // namespace folionet
