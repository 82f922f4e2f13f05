#pragma once

#include <cstddef>
#include <exception>
#include <string>
#include <utility>

namespace folionet {

// What is wrong with the bytes of a file, before it is known where in the Bible that is.
class TextFault : public std::exception {
 public:
  TextFault(std::string what, std::size_t line) : m_text(std::move(what)), m_line(line) {}

  const char* what() const noexcept override { return m_text.c_str(); }
  std::size_t Line() const { return m_line; }

 private:
  std::string m_text;
  std::size_t m_line;
};

}  // namespace folionet
