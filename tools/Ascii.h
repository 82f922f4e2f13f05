#pragma once

#include <algorithm>
#include <string_view>

namespace folionet::tools {

inline constexpr std::string_view kBlanks = " \t";

// Of UTF-8, at a file's start.
inline constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

inline char LowerAscii(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

inline bool IsControl(char c) { return (c >= 0 && c < ' ') || c == 0x7F; }

// True when the texts differ in the case of ASCII letters at most.
inline bool SameIgnoringCase(std::string_view left, std::string_view right) {
  return std::ranges::equal(left, right, {}, LowerAscii, LowerAscii);
}

}  // namespace folionet::tools
