#include "TrySave.h"

#include "OptionSaving.h"
#include "RunTimeError.h"

namespace folionet {

bool TrySave(AppState& state, Procedure procedure, const std::function<void(SettingsStore&)>& save) {
  try {
    save(state.store);
    state.lastSaveFailure.reset();
    return true;
  } catch (const RunTimeError& error) {
    const bool isTold = state.lastSaveFailure && IsSameFailure(*state.lastSaveFailure, error);
    state.lastSaveFailure = error;
    if (!isTold) state.ui.ShowErrorReport({procedure, error});
    return false;
  }
}

bool TrySave(AppState& state, Procedure procedure, std::string_view key) {
  return TrySave(state, procedure, [&](SettingsStore& store) { SaveOption(store, key, state.options); });
}

bool TrySave(AppState& state, Procedure procedure, OptionPart part) {
  return TrySave(state, procedure, [&](SettingsStore& store) { SaveOptions(store, part, state.options); });
}

}  // namespace folionet
