#pragma once

#include <functional>
#include <optional>

#include "AppState.h"
#include "CompileRequest.h"

class QWidget;

namespace folionet {

// Offers to put the command that does what Compile would do on the clipboard: in that button's menu, and by a key of
// its form. `gather` gives what would be compiled now; nothing when that cannot be told, which it has said.
void OfferCommandCopy(AppState& state, QWidget& button, std::function<std::optional<CompileRequest>()> gather);

}  // namespace folionet
