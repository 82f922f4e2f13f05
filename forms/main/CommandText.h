#pragma once

#include <string>

#include "AppState.h"
#include "CompileRequest.h"

namespace folionet {

// The command that compiles what the form would compile now: "folionet-cli compile --translation KJV ...". An option is
// in it where it is not the default or not what is stored, so that the command does the same later on, too. Throws
// RunTimeError for settings that cannot be read.
std::string CompileCommandLine(const CompileRequest& request, const AppState& state);

}  // namespace folionet
