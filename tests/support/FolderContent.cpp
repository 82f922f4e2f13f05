#include "FolderContent.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace folionet::test {
namespace {

namespace fs = std::filesystem;

// The line of a text that a place in it belongs to, with its end and its odd bytes made visible.
std::string LineAt(std::string_view text, std::size_t place) {
  const std::size_t begin = place == 0 ? 0 : text.rfind('\n', place - 1) + 1;
  if (begin == text.size()) return "no such line";
  return testing::PrintToString(std::string(text.substr(begin, text.find('\n', begin) - begin + 1)));
}

}  // namespace

FolderContent ReadFolder(const std::string& folder) {
  FolderContent content;
  if (!fs::is_directory(folder)) return content;
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder)) {
    if (entry.is_regular_file()) content[entry.path().lexically_relative(folder).string()] = ReadFile(entry.path());
  }
  return content;
}

std::string ReadFile(const std::string& path) {
  const std::ifstream file(path, std::ios::binary);
  std::ostringstream bytes;
  bytes << file.rdbuf();
  return bytes.str();
}

std::string DescribeDifference(const std::string& name, std::string_view expected, std::string_view actual) {
  if (expected == actual) return {};
  const auto different = std::mismatch(expected.begin(), expected.end(), actual.begin(), actual.end()).first;
  const auto place = static_cast<std::size_t>(different - expected.begin());
  return name + ", line " + std::to_string(std::count(expected.begin(), different, '\n') + 1) +
         "\n  expected: " + LineAt(expected, place) + "\n  found:    " + LineAt(actual, place) + "\n";
}

std::string DescribeDifference(const FolderContent& expected, const FolderContent& actual) {
  std::string text;
  for (const auto& [name, bytes] : expected) {
    const auto found = actual.find(name);
    text += found == actual.end() ? name + " is missing\n" : DescribeDifference(name, bytes, found->second);
  }
  for (const auto& [name, bytes] : actual) {
    if (expected.count(name) == 0) text += name + " is one file too many\n";
  }
  return text;
}

}  // namespace folionet::test
