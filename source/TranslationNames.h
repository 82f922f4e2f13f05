#pragma once

#include <cstddef>
#include <string>

#include "CodePage.h"
#include "modGlob.h"

namespace folionet {

// The stem of a translation's files as a person sees and types it: in the default code page where it is not in that of
// the pages.
std::string ShownStem(const std::string& stem, const CodePage& codePage);

// The name of the translation at a place of BibleNames, in UTF-8 to be shown, and as pages have it in their bytes.
std::string ShownName(const ModGlob& glob, std::size_t place, const CodePage& codePage);
std::string PageName(const ModGlob& glob, std::size_t place, const CodePage& codePage);

}  // namespace folionet
