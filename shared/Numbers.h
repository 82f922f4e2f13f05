#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace folionet {

// A text read as a whole number: `error` is 0 and `value` holds, or `error` is kTypeMismatch (not a decimal integer)
// or kOverflow (one outside the limits).
struct IntegerReading {
  std::int64_t value = 0;
  int error = 0;
};

// Reads a decimal integer with an optional sign and optional blanks around it.
IntegerReading ReadInteger(std::string_view text, std::int64_t lowest, std::int64_t highest);

// A text read as a number that need not be whole, with the same errors.
struct NumberReading {
  double value = 0;
  int error = 0;
};

// Reads a decimal number with an optional sign, optional blanks around it and an optional power of ten: "+1.5", "1e3".
NumberReading ReadNumber(std::string_view text);

inline constexpr std::int64_t kInt16Min = -32768;
inline constexpr std::int64_t kInt16Max = 32767;
inline constexpr std::int64_t kInt32Min = -2147483647 - 1;
inline constexpr std::int64_t kInt32Max = 2147483647;

// The nearest whole number; a half goes to the even neighbour (1.5 and 2.5 both give 2).
double RoundHalfEven(double value);

// The number that a text begins with, after blanks: "12abc" gives 12, "x" gives 0, "12.5" gives 12 (rounded as
// RoundHalfEven does). Nothing when it does not fit 16 bits.
std::optional<std::int16_t> LeadingInteger(std::string_view text);

inline bool IsBlank(char c) { return c == ' ' || c == '\t'; }

// `text` without the blanks and tabs around it.
inline std::string_view TrimBlanks(std::string_view text) {
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
  return text;
}

}  // namespace folionet
