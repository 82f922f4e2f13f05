#include "Numbers.h"

#include <charconv>
#include <cmath>

#include "RunTimeError.h"

namespace folionet {

namespace {

// from_chars knows no "+".
std::optional<std::string_view> WithoutPlus(std::string_view text) {
  std::string_view digits = TrimBlanks(text);
  if (digits.empty() || digits.front() != '+') return digits;
  digits.remove_prefix(1);
  if (!digits.empty() && digits.front() == '-') return std::nullopt;
  return digits;
}

}  // namespace

IntegerReading ReadInteger(std::string_view text, std::int64_t lowest, std::int64_t highest) {
  const auto digits = WithoutPlus(text);
  if (!digits) return {0, kTypeMismatch};
  IntegerReading reading;
  const auto [end, error] = std::from_chars(digits->data(), digits->data() + digits->size(), reading.value);
  if (error == std::errc::invalid_argument || end != digits->data() + digits->size()) return {0, kTypeMismatch};
  if (error == std::errc::result_out_of_range || reading.value < lowest || reading.value > highest) {
    return {0, kOverflow};
  }
  return reading;
}

NumberReading ReadNumber(std::string_view text) {
  const auto digits = WithoutPlus(text);
  // Nor are "inf" and "nan", which from_chars takes, numbers to a person.
  if (!digits || digits->find_first_not_of("+-.0123456789eE") != std::string_view::npos) return {0, kTypeMismatch};
  NumberReading reading;
  const auto [end, error] = std::from_chars(digits->data(), digits->data() + digits->size(), reading.value);
  if (error == std::errc::invalid_argument || end != digits->data() + digits->size()) return {0, kTypeMismatch};
  if (error == std::errc::result_out_of_range) return {0, kOverflow};
  return reading;
}

// The rounding of floating numbers that every program starts with.
double RoundHalfEven(double value) { return std::nearbyint(value); }

std::optional<std::int16_t> LeadingInteger(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" \t");
  if (first == std::string_view::npos) return 0;
  text.remove_prefix(first);
  if (text.front() == '+') text.remove_prefix(1);
  if (text.substr(text.starts_with('-') ? 1 : 0, 1).find_first_of("0123456789.") == std::string_view::npos) return 0;
  // Nearly always the whole text is a small number.
  std::int16_t whole = 0;
  const auto [wholeEnd, wholeError] = std::from_chars(text.data(), text.data() + text.size(), whole);
  if (wholeError == std::errc() && wholeEnd == text.data() + text.size()) return whole;
  double value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed);
  if (error == std::errc::invalid_argument) return 0;
  if (error == std::errc::result_out_of_range) return std::nullopt;
  const double rounded = RoundHalfEven(value);
  if (!(rounded >= kInt16Min && rounded <= kInt16Max)) return std::nullopt;
  return static_cast<std::int16_t>(rounded);
}

}  // namespace folionet
