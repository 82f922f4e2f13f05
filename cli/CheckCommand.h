#pragma once

#include <string>
#include <vector>

#include "Session.h"

namespace folionet {

// Reads the catalogue, every file of book titles, and index and text of one translation (all of them when the name is
// empty) through, and prints each fault as "file:line: what is wrong", then their count. Changes nothing.
// `settings` are given for this run, as to compile: the charset and the file of titles are what counts. Gives
// kExitRefused when there are faults.
ExitStatus RunCheck(const CommonOptions& common, const std::string& translation,
                    const std::vector<std::string>& settings);

}  // namespace folionet
