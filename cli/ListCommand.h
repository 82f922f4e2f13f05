#pragma once

#include <string>
#include <string_view>

#include "Session.h"

namespace folionet {

// Prints what `subject` names, one a line: "translations" (stem, tab, name), "languages" (file names), "books" (number,
// tab, title, tab, code), "charsets" (entries for the setting Charset), "codes" (the same for Lang) or "settings"
// (KEY=VALUE).
ExitStatus RunList(const CommonOptions& common, const std::string& subject, ConsoleUi& ui);

// Whether there is a list of that name.
bool IsListSubject(std::string_view subject);

}  // namespace folionet
