#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "TemporaryFolder.h"

namespace folionet::test {

// What a line of a case does outside the forms: arranges files, runs the programs, looks at what they left.
class Case {
 public:
  // Works in this folder, which stays the caller's.
  explicit Case(const TemporaryFolder& home) : m_home(home) {}

  // Does what a line says, and gives it with the lines that come of it.
  std::vector<std::string> Do(const std::string& line) const;

  // A text with the places that differ from run to run named: "@/" is the case's folder, "@bin" that of the programs.
  std::string Named(std::string text) const;

 private:
  using Lines = std::vector<std::string>;
  using Stamps = std::map<std::string, std::pair<std::uintmax_t, std::filesystem::file_time_type>>;

  Lines Outcome(const Lines& words) const;
  Lines Run(const std::string& line, const Lines& words) const;
  Stamps Outside() const;
  void TakeLibrary(const std::string& name) const;

  const TemporaryFolder& m_home;
};

}  // namespace folionet::test
