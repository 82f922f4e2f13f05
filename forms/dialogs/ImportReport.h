#pragma once

#include <QString>

#include "ImportError.h"
#include "LibraryWriter.h"

namespace folionet {

// What was found in a text, a line each, in the desktop's language: what becomes of it, and what is doubled, empty,
// missing or left out.
QString FoundInText(const LibraryPlan& plan);

// Why it cannot be read or written: file and line, and what was expected.
QString WhyNoImport(const ImportError& error);

}  // namespace folionet
