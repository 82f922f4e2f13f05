#pragma once

#include <string>
#include <string_view>

#include "CodePage.h"

namespace folionet {

// The letters of a text in what an editor has made of it. `whole` is the text as it was typed; the editor had it in a
// code page, with references in the place of the letters that this lacks, and made `edited` (UTF-8) of it. Each of
// these references that stands where it was becomes its letter; references that a person typed, before or since, stay.
std::string WithLetters(std::string_view whole, const CodePage& codePage, std::string_view edited);

}  // namespace folionet
