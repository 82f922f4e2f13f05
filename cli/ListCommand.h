#pragma once

#include <string>

#include "Session.h"

namespace folionet {

// Prints what `subject` names, one a line: "translations" (stem, tab, name), "languages" (file names), "books" (number,
// tab, title) or "settings" (KEY=VALUE).
ExitStatus RunList(const CommonOptions& common, const std::string& subject, ConsoleUi& ui);

}  // namespace folionet
