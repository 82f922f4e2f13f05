#include "FolderContent.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

namespace folionet::test {
namespace {

namespace fs = std::filesystem;

// A line with its end and its odd bytes made visible.
std::string Visible(std::string_view line) {
  std::string text;
  for (const char c : line) {
    const auto byte = static_cast<unsigned char>(c);
    if (c == '\r') {
      text += "\\r";
    } else if (c == '\n') {
      text += "\\n";
    } else if (byte < ' ' || byte >= 0x7F) {
      std::array<char, 8> hex{};
      std::snprintf(hex.data(), hex.size(), "\\x%02X", static_cast<unsigned>(byte));
      text += hex.data();
    } else {
      text += c;
    }
  }
  return "\"" + text + "\"";
}

std::vector<std::string_view> Lines(std::string_view text) {
  std::vector<std::string_view> lines;
  while (!text.empty()) {
    const std::size_t length = std::min(text.find('\n'), text.size() - 1) + 1;
    lines.push_back(text.substr(0, length));
    text.remove_prefix(length);
  }
  return lines;
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
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

void WriteFolder(const std::string& folder, const FolderContent& content) {
  fs::remove_all(folder);
  fs::create_directories(folder);
  for (const auto& [name, bytes] : content) {
    const fs::path path = fs::path(folder) / name;
    fs::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << bytes;
  }
}

std::string DescribeDifference(const std::string& name, std::string_view expected, std::string_view actual) {
  if (expected == actual) return {};
  const std::vector<std::string_view> wanted = Lines(expected);
  const std::vector<std::string_view> found = Lines(actual);
  const auto [want, find] = std::mismatch(wanted.begin(), wanted.end(), found.begin(), found.end());
  return name + ", line " + std::to_string(want - wanted.begin() + 1) +
         "\n  expected: " + (want == wanted.end() ? "no such line" : Visible(*want)) +
         "\n  found:    " + (find == found.end() ? "no such line" : Visible(*find)) + "\n";
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
