#pragma once

#include <functional>
#include <memory>
#include <tuple>

#include "AppState.h"
#include "frmBackground.h"
#include "frmCustomHeader.h"
#include "frmCustomizeFooter.h"
#include "frmEffects.h"
#include "frmEncoding.h"
#include "frmKeywords.h"
#include "frmLinkToMAin.h"
#include "frmPAgeTitles.h"

namespace folionet {

// The page option dialogs, each made when it is first asked for and kept from then on.
class Dialogs {
 public:
  Dialogs(AppState& state, QWidget* owner) : m_state(state), m_owner(owner) {}

  template <typename Dialog>
  Dialog& Get() {
    auto& dialog = std::get<std::unique_ptr<Dialog>>(m_dialogs);
    if (!dialog) {
      dialog = std::make_unique<Dialog>(m_state, m_owner);
      if (whenMade) whenMade(*dialog);
    }
    return *dialog;
  }

  // Runs the dialog's loading routine while it is hidden, unless it has run. Throws RunTimeError for a setting that
  // does not convert.
  template <typename Dialog>
  void Load() {
    Dialog& dialog = Get<Dialog>();
    if (!dialog.IsRead()) dialog.LoadForm();
  }

  // Unloads the dialog, makes it anew and loads it.
  template <typename Dialog>
  void Renew() {
    std::get<std::unique_ptr<Dialog>>(m_dialogs).reset();
    Load<Dialog>();
  }

  // Shows the dialog until the person is done with it.
  template <typename Dialog>
  void Open() {
    openModal(Get<Dialog>());
  }

  std::function<void(QDialog&)> whenMade;
  std::function<void(QDialog&)> openModal = [](QDialog& dialog) { dialog.exec(); };

 private:
  AppState& m_state;
  QWidget* m_owner;
  std::tuple<std::unique_ptr<frmCustomHeader>, std::unique_ptr<frmCustomizeFooter>, std::unique_ptr<frmBackground>,
             std::unique_ptr<frmPAgeTitles>, std::unique_ptr<frmEffects>, std::unique_ptr<frmKeywords>,
             std::unique_ptr<frmLinkToMAin>, std::unique_ptr<frmEncoding>>
      m_dialogs;
};

}  // namespace folionet
