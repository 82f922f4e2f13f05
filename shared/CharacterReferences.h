#pragma once

#include <string>
#include <string_view>

namespace folionet {

// A UTF-8 text with the references that HTML writes for characters ("&amp;", "&#233;", "&#xE9;") resolved: numbers, the
// names of HTML 4, and apos. Any other stays as it is. A number is one without the ";" too, as in browsers.
std::string WithoutCharacterReferences(std::string_view text);

}  // namespace folionet
