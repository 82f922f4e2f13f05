#pragma once

#include "CheckedLibrary.h"

namespace folionet {

// Names the faults of the chosen file of book titles and of every other one in the folder of definitions: lines without
// three fields, fewer than 66 of them, titles that cannot be file names, two books whose pages would have the same
// name.
void CheckTitles(CheckedLibrary& library);

}  // namespace folionet
