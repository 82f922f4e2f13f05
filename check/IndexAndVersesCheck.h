#pragma once

#include "CheckedLibrary.h"

namespace folionet {

// Names the faults of a translation's chapter index and verse file: bad records and lines, chapters and verses that are
// doubled, missing or out of order, and where index and text disagree. A text of nothing but malformed lines is not
// read to its end.
void CheckIndexAndVerses(CheckedLibrary& library, const TranslationFiles& files);

}  // namespace folionet
