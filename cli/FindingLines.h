#pragma once

#include <string>

#include "Finding.h"

namespace folionet {

// A finding as a line for a person: "/lib/Bible/KJV.TXT:12: Book 1 chapter 1 is doubled"
std::string PlainLine(const Finding& finding);

// The same for programs, as a JSON object of kind, severity, file and text, and line, book, chapter, verse and remedy
// where they are known. It is UTF-8 whatever the finding's texts are.
std::string JsonLine(const Finding& finding);

}  // namespace folionet
