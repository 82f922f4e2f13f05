#pragma once

#include <CLI/CLI.hpp>
#include <string>

namespace folionet {

// What is said about arguments that cannot be parsed: what is wrong, and the --help of the command that was meant.
std::string UsageText(const CLI::App* app, const CLI::Error& error);

// Refuses an empty text wherever `app` or one of its commands takes a value: a script's variable that is not set would
// otherwise pass for an option that was not given.
void RefuseEmptyValues(CLI::App& app);

}  // namespace folionet
