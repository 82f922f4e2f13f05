#pragma once

#include <string>

#include "FaultList.h"
#include "modGlob.h"

namespace folionet {

// Names the faults of the file of book titles `chosen` and of every other one in the folder of definitions: lines
// without three fields, fewer than 66 of them, titles that cannot be file names, two books whose pages would have the
// same name.
void CheckTitles(const ModGlob& glob, const std::string& chosen, FaultList& faults);

}  // namespace folionet
