#pragma once

#include <string>
#include <vector>

#include "CommonOptions.h"
#include "ConsoleUi.h"

namespace folionet {

// The arguments of "folionet-cli check"; an empty text stands for one that was not given.
struct CheckArguments {
  std::string translation;            // all of them when empty
  std::vector<std::string> settings;  // for this run, as to compile: the charset and the file of titles are what counts
};

// Examines the library and prints each finding as "file:line: what is wrong", then their count. Changes nothing. Gives
// kExitRefused when there are faults.
ExitStatus RunCheck(const CommonOptions& common, const CheckArguments& arguments, ConsoleUi& ui);

}  // namespace folionet
