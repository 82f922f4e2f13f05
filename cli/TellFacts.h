#pragma once

#include <vector>

#include "ConsoleUi.h"
#include "Finding.h"

namespace folionet {

// Tells what a run will do before it is run: warnings as such, what is only good to know unless little is to be said.
void TellFacts(const std::vector<Finding>& facts, ConsoleUi& ui);

// The same of a plan, which has what will be removed in it in any case.
void TellPlannedFacts(const std::vector<Finding>& facts, ConsoleUi& ui);

}  // namespace folionet
