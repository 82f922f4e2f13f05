#pragma once

#include "CodePage.h"
#include "PageOptions.h"
#include "PageTexts.h"

namespace folionet {

// The options and texts with every typed text in the bytes of the code page. `txtBibleSel` must be in those bytes
// already, for it comes from the catalogue.
PageOptions EncodePageOptions(PageOptions options, const CodePage& codePage);
PageTexts EncodePageTexts(PageTexts texts, const CodePage& codePage);

}  // namespace folionet
