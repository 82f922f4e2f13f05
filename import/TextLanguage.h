#pragma once

#include <string>

#include "ImportedBible.h"

namespace folionet {

// What the letters of a text tell of it, by a sample from all of its books.
struct TextScript {
  std::string language;  // of a script that is written by one language alone, or nearly so; else empty
  bool isRightToLeft = false;
};

TextScript ScriptOf(const ImportedBible& bible);

// The language in which most of the titles or names that a text has for its books are delivered ones; empty where there
// is none, or several.
std::string LanguageOfTitles(const ImportedBible& bible);

// A language's code as pages declare it: "eng" is "en".
std::string LanguageCode(const std::string& code);

}  // namespace folionet
