#pragma once

#include <string>

namespace folionet::test {

// The character that an escape of a data file stands for: "\n", "\r", "\t", a byte such as "\xE9", or any other
// character behind a backslash. Moves `at` from the backslash to the last character of the escape.
inline char Escaped(const std::string& text, std::size_t& at) {
  constexpr int kHexadecimal = 16;
  const char c = text.at(++at);
  if (c != 'x') return c == 'n' ? '\n' : c == 'r' ? '\r' : c == 't' ? '\t' : c;
  at += 2;
  return static_cast<char>(std::stoi(text.substr(at - 1, 2), nullptr, kHexadecimal));
}

inline std::string Unescaped(const std::string& text) {
  std::string plain;
  for (std::size_t at = 0; at < text.size(); ++at) plain += text[at] == '\\' ? Escaped(text, at) : text[at];
  return plain;
}

}  // namespace folionet::test
