#pragma once

#include <cstddef>
#include <string>
#include <utility>

#include "RunTimeError.h"
#include "Sentence.h"

namespace folionet {

// A failure of an import in words that a form can translate. Its detail is the place in the Bible, if any, and these
// words in English.
class ImportError : public RunTimeError {
 public:
  // `place` ends in a colon and a blank: "Genesis 1:2: ".
  ImportError(int number, std::string item, Sentence what, std::size_t line = 0, std::string place = {})
      : RunTimeError(number, std::move(item), place + what.InEnglish(), line),
        m_what(std::move(what)),
        m_place(std::move(place)) {}

  // Any failure; it has no such words.
  explicit ImportError(const RunTimeError& error) : RunTimeError(error) {}

  const Sentence& What() const { return m_what; }
  const std::string& Place() const { return m_place; }

 private:
  Sentence m_what;
  std::string m_place;
};

}  // namespace folionet
