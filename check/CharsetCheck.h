#pragma once

#include <cstddef>
#include <string>

#include "CheckedLibrary.h"

namespace folionet {

// Name a chosen file of book titles, and a verse file, whose bytes are in another charset than the pages, or than each
// other.
void CheckTitlesCharset(CheckedLibrary& library);
void CheckTextCharset(CheckedLibrary& library, const TranslationFiles& files);

// The same of the name of a translation, in this line of the catalogue; else a byte of it that the charset does not
// hold.
void CheckName(CheckedLibrary& library, const std::string& path, std::size_t line, const std::string& name);

// The same of the verse file of an imported translation, which is in a charset of its own.
void CheckImportedCharset(CheckedLibrary& library, const std::string& path);

}  // namespace folionet
