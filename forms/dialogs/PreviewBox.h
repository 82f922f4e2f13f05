#pragma once

#include <string>

#include "AppState.h"

class QLineEdit;

namespace folionet {

class TextBox;

// Shows a template's preview in a box. After a failure, which was reported, the box keeps its text. False when it
// failed.
bool ShowPreview(const AppState& state, const std::string& pattern, QLineEdit& box);
bool ShowPreview(const AppState& state, const std::string& pattern, TextBox& box);

}  // namespace folionet
