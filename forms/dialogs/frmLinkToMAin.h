#pragma once

#include <memory>

#include "AppState.h"
#include "LoadedDialog.h"

namespace folionet {

namespace Ui {
class frmLinkToMAin;
}

// Edits the link that every chapter page carries back to the index page. Alignment and size are saved as they change,
// the text at Close.
class frmLinkToMAin : public LoadedDialog {
  Q_OBJECT

 public:
  explicit frmLinkToMAin(AppState& state, QWidget* parent = nullptr);
  ~frmLinkToMAin() override;

  // Whether the size can be chosen; with a style sheet it cannot.
  void SetSizeEnabled(bool isEnabled);

  // Shows the HTML of the link with what the main form holds now.
  void SetString();

 private:
  // Reads text, alignment and size, and builds the HTML of the link.
  void Load() override;
  void ShowRecord() override;

  void Justify(int justification);
  void ShowJustification();
  void ShowFontSize(int size);
  void SaveFontSize(int size);
  void showEvent(QShowEvent* event) override;
  void Refresh();
  void Close();

  AppState& m_state;
  LinkToMainOptions& m_record;
  std::unique_ptr<Ui::frmLinkToMAin> m_ui;
};

}  // namespace folionet
