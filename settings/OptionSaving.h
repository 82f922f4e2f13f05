#pragma once

#include <string_view>

#include "OptionTable.h"
#include "SettingsStore.h"

namespace folionet {

// A routine stores all that it is to store or, when it throws RunTimeError, nothing. What one of the first three could
// not store is noted in the record, and stored at exit.

// Stores one option, whatever was stored for it before: a person has just chosen it.
void SaveOption(SettingsStore& store, std::string_view key, PageOptions& options);

// The same with another text than the option's field gives.
void SaveOption(SettingsStore& store, std::string_view key, std::string_view text, PageOptions& options);

// Stores the options of a part that are saved together, but what could not be read and was not changed since.
void SaveOptions(SettingsStore& store, OptionPart part, PageOptions& options);

// In the same way the options that are stored at exit, and those whose own saving was refused.
void SaveDefaults(SettingsStore& store, PageOptions& options);

}  // namespace folionet
