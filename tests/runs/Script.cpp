#include "Script.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string_view>

#include "CodePage.h"
#include "Escapes.h"
#include "FolderContent.h"

namespace folionet::test {
namespace {

namespace fs = std::filesystem;

std::string Visible(const std::string& line) {
  const bool isText = IsUtf8(line);
  std::string text;
  for (const char c : line) {
    const auto byte = static_cast<unsigned char>(c);
    std::array<char, 8> hex{};
    std::snprintf(hex.data(), hex.size(), "\\x%02X", static_cast<unsigned>(byte));
    const bool isPlain = (byte >= ' ' && byte < 0x7F) || (byte >= 0x80 && isText);
    text += c == '\t' ? "\\t" : c == '\r' ? "\\r" : isPlain ? std::string(1, c) : hex.data();
  }
  return text;
}

void WriteTimes(const std::string& path, const std::string& text, std::size_t times, bool append) {
  std::ofstream file(path, append ? std::ios::binary | std::ios::app : std::ios::binary);
  // Together, so that a large file is soon written.
  const std::size_t together = std::min(times, std::size_t{1} << 16);
  std::string block;
  for (std::size_t i = 0; i < together; ++i) block += text;
  for (; times >= together && times > 0; times -= together) file << block;
  for (; times > 0; --times) file << text;
}

}  // namespace

std::vector<ScriptCase> ReadScript(const std::string& path) {
  std::istringstream script(ReadFile(path));
  std::vector<ScriptCase> cases;
  std::string before;
  for (std::string line; std::getline(script, line);) {
    if (line.empty() || line[0] == '#' || line[0] == '=') {
      before += line + "\n";
      if (line[0] != '=') continue;
      cases.push_back({before, line.substr(2), {}, {}});
      before.clear();
    } else {
      if (std::string_view("|!?+~-").find(line[0]) == std::string_view::npos) cases.back().lines.push_back(line);
      cases.back().text += line + "\n";
    }
  }
  return cases;
}

std::vector<std::string> ScriptNames(const std::string& folder) {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(folder)) {
    if (entry.path().extension() == ".runs") names.push_back(entry.path().stem());
  }
  std::sort(names.begin(), names.end());
  return names;
}

std::vector<std::string> SplitWords(const std::string& line) {
  std::vector<std::string> words;
  bool isQuoted = false;
  bool isWord = false;
  for (std::size_t at = 0; at < line.size(); ++at) {
    if (!isQuoted && line[at] == ' ') {
      isWord = false;
      continue;
    }
    if (!isWord) words.emplace_back();
    isWord = true;
    if (line[at] == '"') {
      isQuoted = !isQuoted;
    } else {
      words.back() += isQuoted && line[at] == '\\' ? Escaped(line, at) : line[at];
    }
  }
  return words;
}

std::string MarkLines(const std::string& mark, const std::string& text) {
  constexpr std::size_t kMost = 50;
  constexpr std::size_t kShown = 3;
  std::vector<std::string> marked;
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) marked.push_back(mark + Visible(line) + "\n");
  if (marked.size() > kMost) {
    marked[kShown] = mark + "(" + std::to_string(marked.size() - 2 * kShown) + " lines more)\n";
    marked.erase(marked.begin() + kShown + 1, marked.end() - kShown);
  }
  std::string all;
  for (const std::string& line : marked) all += line;
  if (!text.empty() && text.back() != '\n') all += "(no line break at the end)\n";
  return all;
}

void Replace(std::string& text, const std::string& old, const std::string& by) {
  for (std::size_t at = text.find(old); at != std::string::npos; at = text.find(old, at + by.size())) {
    text.replace(at, old.size(), by);
  }
}

bool Arrange(const std::string& home, const std::vector<std::string>& words) {
  const std::string& verb = words.at(0);
  const std::string path = home + words.at(1);
  fs::create_directories(fs::path(path).parent_path());
  if (verb == "write" || verb == "append") {
    WriteTimes(path, words.at(2), 1, verb == "append");
    for (std::size_t i = 3; i + 1 < words.size(); i += 2) WriteTimes(path, words.at(i + 1), std::stoul(words[i]), true);
  } else if (verb == "replace") {
    std::string bytes = ReadFile(path);
    const std::size_t at = bytes.find(words.at(2));
    EXPECT_NE(at, std::string::npos) << words[2] << " is not in " << words[1];
    if (at != std::string::npos) bytes.replace(at, words[2].size(), words.at(3));
    WriteTimes(path, bytes, 1, false);
  } else if (verb == "remove") {
    fs::remove_all(path);
  } else if (verb == "rename") {
    fs::rename(path, home + words.at(2));
  } else if (verb == "folder") {
    fs::remove_all(path);
    fs::create_directory(path);
  } else if (verb == "hardlink") {
    fs::create_hard_link(home + words.at(2), path);
  } else if (verb == "pipe" || verb == "link") {
    fs::remove(path);
    if (verb == "link") fs::create_symlink(words.at(2), path);
    EXPECT_TRUE(verb == "link" || mkfifo(path.c_str(), 0600) == 0);
  } else {
    return false;
  }
  return true;
}

}  // namespace folionet::test
