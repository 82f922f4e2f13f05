#pragma once

#include <cstddef>
#include <exception>
#include <string>
#include <utility>

#include "Sentence.h"

namespace folionet {

// What is wrong with the bytes of a file, before it is known where in the Bible that is.
class TextFault : public std::exception {
 public:
  TextFault(Sentence what, std::size_t line) : m_what(std::move(what)), m_text(m_what.InEnglish()), m_line(line) {}

  const char* what() const noexcept override { return m_text.c_str(); }
  const Sentence& What() const { return m_what; }
  std::size_t Line() const { return m_line; }

 private:
  Sentence m_what;
  std::string m_text;
  std::size_t m_line;
};

}  // namespace folionet
