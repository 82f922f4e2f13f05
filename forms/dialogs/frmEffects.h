#pragma once

#include <memory>

#include "AppState.h"
#include "LoadedDialog.h"

namespace folionet {

namespace Ui {
class frmEffects;
}

// Sets the colours of the pages' links and the style of a link under the mouse. The shared texts RolloverStyle and
// BodyLinkTag change at load, after a rollover colour was picked, and at Close.
class frmEffects : public LoadedDialog {
  Q_OBJECT

 public:
  // A new dialog begins with a fresh record: no swatch is marked as default before LoadForm.
  explicit frmEffects(AppState& state, QWidget* parent = nullptr);
  ~frmEffects() override;

 protected:
  // Lists the fonts, reads every option and builds the shared texts.
  void Load() override;
  void ShowRecord() override;
  void showEvent(QShowEvent* event) override;

 private:
  void ConnectRecord();
  void PickColour(const char* key, Swatch& swatch);
  void RestoreDefaults();
  void SetDefaultHyperlinkColors(int ask);
  void BuildEffects();
  void Close();
  void ShowLooks();
  void ShowSample();

  AppState& m_state;
  EffectsOptions& m_record;
  std::unique_ptr<Ui::frmEffects> m_ui;
};

}  // namespace folionet
