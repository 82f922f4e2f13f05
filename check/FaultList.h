#pragma once

#include <string>
#include <string_view>

#include "CodePage.h"
#include "RunTimeError.h"

namespace folionet {

// Prints the faults that a check finds, and counts them.
class FaultList {
 public:
  // More are counted only: nobody reads them, and a library of nothing but faults must come to an end.
  static constexpr std::size_t kMostListed = 1000;

  explicit FaultList(const CodePage& codePage) : m_codePage(codePage) {}

  // `line` is counted from 1; 0 is a fault of the file as a whole.
  void Add(const std::string& path, std::size_t line, const std::string& text);
  void Add(const RunTimeError& error);

  // Names a file that is there in another letter case than it should be.
  void CheckLetterCase(const std::string& found, const std::string& expected);

  // Names the first byte of a text that the declared charset does not hold.
  void CheckBytes(const std::string& path, std::size_t line, std::string_view bytes);

  // Prints how many there are.
  void PrintCount() const;

  std::size_t Count() const { return m_count; }
  const CodePage& Charset() const { return m_codePage; }

 private:
  const CodePage& m_codePage;
  std::size_t m_count = 0;
};

}  // namespace folionet
