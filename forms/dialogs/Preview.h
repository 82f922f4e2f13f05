#pragma once

#include <QString>
#include <optional>
#include <string>

#include "AppState.h"

namespace folionet {

// A template with its dynamic words filled in for chapter 1 of the start book, as a page would have it, for showing.
// Nothing when BuildTitles reported a failure.
std::optional<QString> PreviewTitle(const AppState& state, const std::string& pattern);

}  // namespace folionet
