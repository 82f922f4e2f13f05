#pragma once

#include <string>
#include <string_view>

namespace folionet {

// Encloses the value of an attribute.
inline constexpr char kQuote = '"';

// The text between double quotes, as an attribute's value stands. Nothing is escaped.
inline std::string InQuotes(std::string_view text) {
  std::string quoted;
  quoted.reserve(text.size() + 2);
  quoted += kQuote;
  quoted += text;
  quoted += kQuote;
  return quoted;
}

}  // namespace folionet
