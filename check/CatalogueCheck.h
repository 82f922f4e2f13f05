#pragma once

#include "CheckedLibrary.h"

namespace folionet {

// Names the faults of the catalogue of translations: bad records, stems that are no file names, texts that are missing.
// Fills the lists of translations with those whose text is there, whatever else is wrong.
void CheckCatalogue(CheckedLibrary& library);

}  // namespace folionet
