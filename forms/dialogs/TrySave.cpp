#include "TrySave.h"

#include "RunTimeError.h"

namespace folionet {

bool TrySave(AppState& state, std::string_view label, const std::function<void(SettingsStore&)>& save) {
  try {
    save(state.store);
    state.lastSaveFailure.clear();
    return true;
  } catch (const RunTimeError& error) {
    if (state.lastSaveFailure != error.what()) {
      state.lastSaveFailure = error.what();
      state.ui.ShowErrorReport(error.Number(), label, error.Extra());
    }
    return false;
  }
}

}  // namespace folionet
