#pragma once

#include "CheckedLibrary.h"

namespace folionet {

// Names what the texts chosen for the pages hold and is perhaps not meant: the charset, the language, words that look
// dynamic. The first translation that is there tells which charset may be meant.
void CheckTypedTexts(CheckedLibrary& library);

}  // namespace folionet
