#pragma once

#include <string>
#include <string_view>

namespace folionet {

// The text between double quotes, as an attribute's value stands. Nothing is escaped.
inline std::string InQuotes(std::string_view text) {
  std::string quoted;
  quoted.reserve(text.size() + 2);
  quoted += '"';
  quoted += text;
  quoted += '"';
  return quoted;
}

}  // namespace folionet
