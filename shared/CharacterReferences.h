#pragma once

#include <string>
#include <string_view>

namespace folionet {

// A UTF-8 text with the references that HTML writes for characters ("&amp;", "&#233;", "&#xE9;") resolved as browsers
// do in the value of an attribute: every name of HTML, those of its first versions without their ";" too where neither
// a letter, a digit nor "=" follows; every number, where one that is no character is U+FFFD, and U+0080 to U+009F are
// the bytes of windows-1252. What is no reference stays as it is.
std::string WithoutCharacterReferences(std::string_view text);

}  // namespace folionet
