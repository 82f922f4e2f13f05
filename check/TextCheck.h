#pragma once

#include <string>

#include "FaultList.h"
#include "modGlob.h"

namespace folionet {

// Names the faults of a translation's chapter index and verse file: bad records and lines, chapters and verses that are
// doubled, missing or out of order, and where index and text disagree. `stem` is in the bytes of the catalogue.
void CheckText(const ModGlob& glob, const std::string& stem, FaultList& faults);

}  // namespace folionet
