#pragma once

#include "CheckedLibrary.h"

namespace folionet {

// Name a chosen file of book titles, and a verse file, whose bytes are in another charset than the pages.
void CheckTitlesCharset(CheckedLibrary& library);
void CheckTextCharset(CheckedLibrary& library, const TranslationFiles& files);

// The same of the verse file of an imported translation, which is in a charset of its own.
void CheckImportedCharset(CheckedLibrary& library, const std::string& path);

}  // namespace folionet
