#pragma once

#include <string>
#include <string_view>

namespace folionet {

// Whether windows-1252 has every character of a UTF-8 text.
bool FitsWindows1252(std::string_view utf8);

// The bytes of a text that fits.
std::string ToWindows1252(std::string_view utf8);

}  // namespace folionet
