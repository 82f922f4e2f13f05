#pragma once

#include <string>
#include <string_view>

namespace folionet {

// The text of the one error report, lines joined by CR LF and none at the end. `appPath` is the folder that the
// program runs from.
std::string BuildErrorReport(int errorNumber, std::string_view moduleLabel, std::string_view extraInfo,
                             std::string_view appPath);

}  // namespace folionet
