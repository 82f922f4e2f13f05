#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace folionet::tools {

// The windows-1252 bytes of a UTF-8 text, the encoding of Versalia's catalogue and book titles. Nothing when the text
// is not UTF-8 or has a character that windows-1252 lacks.
std::optional<std::string> ToWindows1252(std::string_view utf8);

}  // namespace folionet::tools
