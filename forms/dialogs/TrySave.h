#pragma once

#include <functional>
#include <string_view>

#include "AppState.h"
#include "ErrorReport.h"
#include "OptionTable.h"

namespace folionet {

// Runs a routine that saves options. When it throws RunTimeError the failure is reported by that procedure, but not
// when the save just before failed for the same cause: a home that cannot be written to must not be told of at every
// click. False when it failed.
bool TrySave(AppState& state, Procedure procedure, const std::function<void(SettingsStore&)>& save);

// The same for one option, as SaveOption stores it, and for those of a part, as SaveOptions does.
bool TrySave(AppState& state, Procedure procedure, std::string_view key);
bool TrySave(AppState& state, Procedure procedure, OptionPart part);

}  // namespace folionet
