#include "TrySave.h"

#include "RunTimeError.h"

namespace folionet {

bool TrySave(AppState& state, Procedure procedure, const std::function<void(SettingsStore&)>& save) {
  try {
    save(state.store);
    state.lastSaveFailure.clear();
    return true;
  } catch (const RunTimeError& error) {
    if (state.lastSaveFailure != error.what()) {
      state.lastSaveFailure = error.what();
      state.ui.ShowErrorReport({procedure, error});
    }
    return false;
  }
}

}  // namespace folionet
