#pragma once

#include <functional>
#include <string_view>

#include "AppState.h"

namespace folionet {

// Runs a routine that saves options. When it throws RunTimeError the failure is reported under `label`, but not when
// the save just before failed for the same cause: a home that cannot be written to must not be told of at every click.
// False when it failed.
bool TrySave(AppState& state, std::string_view label, const std::function<void(SettingsStore&)>& save);

}  // namespace folionet
