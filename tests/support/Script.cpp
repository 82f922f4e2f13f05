#include "Script.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <iomanip>
#include <iterator>
#include <sstream>
#include <stdexcept>
#include <string_view>
#include <utility>

#include "Escapes.h"
#include "FolderContent.h"
#include "Utf8.h"

namespace folionet::test {
namespace {

namespace fs = std::filesystem;

using Lines = std::vector<std::string>;

constexpr std::string_view kAndSoOn = "...";
constexpr std::string_view kMarks = "|!+~->";
constexpr std::string_view kThen = " // ";        // between what stands on one line
constexpr std::string_view kMarksBehind = "|!>";  // of the one line that comes of a step, on its line

Lines SplitLine(const std::string& line) {
  Lines parts;
  std::size_t from = 0;
  for (std::size_t at = line.find(kThen); at != std::string::npos; at = line.find(kThen, from)) {
    parts.push_back(line.substr(from, at - from));
    from = at + kThen.size();
  }
  parts.push_back(line.substr(from));
  return parts;
}

ScriptStep StepOf(const std::string& part, int number, bool isBehind) {
  for (std::size_t at = part.find(' '); at != std::string::npos; at = part.find(' ', at + 1)) {
    const bool isMark = at + 2 < part.size() && kMarksBehind.find(part[at + 1]) != std::string_view::npos;
    if (isMark && part[at + 2] == ' ') return {number, isBehind, part.substr(0, at), {part.substr(at + 1)}};
  }
  return {number, isBehind, part, {}};
}

std::vector<ScriptCase> ReadScript(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  std::vector<ScriptCase> cases;
  int number = 0;
  for (std::string line; std::getline(file, line);) {
    ++number;
    if (line.empty() || line[0] == '#') continue;
    if (line[0] == '=') {
      const std::string name = line.substr(2);
      const auto isSame = [&](const ScriptCase& script) { return script.name == name; };
      if (std::any_of(cases.begin(), cases.end(), isSame)) throw std::runtime_error(path.string() + " has two " + name);
      cases.push_back({path, path.stem(), name, number, {}});
    } else if (kMarks.find(line[0]) != std::string_view::npos) {
      for (const std::string& part : SplitLine(line.substr(2))) {
        cases.back().steps.back().outcome.push_back(line.substr(0, 2) + part);
      }
    } else {
      bool isBehind = false;
      for (const std::string& part : SplitLine(line)) {
        cases.back().steps.push_back(StepOf(part, number, std::exchange(isBehind, true)));
      }
    }
  }
  return cases;
}

// How many lines a line such as "> (16 lines more)" stands for; 0 for any other line.
std::size_t LinesMeant(const std::string& line) {
  const bool isShort = line.find(" (") == 1 && line.ends_with(" lines more)");
  return isShort ? std::strtoul(line.c_str() + 3, nullptr, 10) : 0;
}

// What came, with each line that the expected one shortens in its form.
Lines Folded(const Lines& expected, Lines actual) {
  for (std::size_t i = 0; i < std::min(expected.size(), actual.size()); ++i) {
    const std::size_t meant = LinesMeant(expected[i]);
    if (meant > 1 && i + meant <= actual.size()) {
      actual.erase(actual.begin() + static_cast<std::ptrdiff_t>(i) + 1,
                   actual.begin() + static_cast<std::ptrdiff_t>(i + meant));
      actual[i] = expected[i];
    }
    if (Holds(expected[i], actual[i])) actual[i] = expected[i];
  }
  return actual;
}

std::string Joined(const Lines& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + "\n";
  return text;
}

// A step with its outcome as they stand in a file: short lines of one mark together.
std::string Written(const ScriptStep& step) {
  constexpr std::size_t kWidest = 120;
  std::string text = step.line;
  const bool isOne = step.outcome.size() == 1 && kMarksBehind.find(step.outcome[0][0]) != std::string_view::npos;
  if (isOne && text.size() + 1 + step.outcome[0].size() <= kWidest) return text + " " + step.outcome[0];
  char last = '\0';
  for (const std::string& line : step.outcome) {
    const std::size_t width = text.size() - (text.rfind('\n') + 1) + line.size() + 2;
    text += last == line[0] && width <= kWidest ? std::string(kThen) + line.substr(2) : "\n" + line;
    last = line[0];
  }
  return text;
}

// Puts what came into the case's place; comments within it go.
void Rewrite(const ScriptCase& script, const std::vector<ScriptStep>& actual) {
  std::string all;
  bool canFollow = false;
  for (const ScriptStep& step : actual) {
    if (step.isBehind && canFollow) all.replace(all.size() - 1, 1, kThen);
    const std::string written = Written(step);
    all += written + "\n";
    canFollow = written.find('\n') == std::string::npos;
  }
  std::string text = ReadFile(script.file);
  const std::string title = "= " + script.name + "\n";
  const std::size_t from = ("\n" + text).find("\n" + title) + title.size();
  std::size_t to = std::min(text.find("\n= ", from), text.size());
  to = std::min(text.find("\n#", from), to);
  while (to > from && text[to - 2] == '\n') --to;
  std::ofstream(script.file, std::ios::binary) << text.replace(from, to - from, all);
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

std::vector<ScriptCase> ReadScripts(Drives what) {
  std::vector<fs::path> paths;
  for (const auto& entry : fs::directory_iterator(RUNS_FOLDER)) {
    const bool drivesForms = entry.path().filename().string().starts_with("form_");
    if (entry.path().extension() == ".runs" && drivesForms == (what == Drives::kForms)) paths.push_back(entry.path());
  }
  std::sort(paths.begin(), paths.end());
  std::vector<ScriptCase> cases;
  for (const fs::path& path : paths) {
    std::ranges::move(ReadScript(path), std::back_inserter(cases));
  }
  return cases;
}

void RunScript(const ScriptCase& script, const StepRunner& runner) {
  bool isDifferent = false;
  std::vector<ScriptStep> actual;
  for (const ScriptStep& step : script.steps) {
    Lines expected = step.outcome;
    expected.insert(expected.begin(), step.line);
    const Lines found = Folded(expected, runner(step.line));
    actual.push_back({step.number, step.isBehind, found[0], {found.begin() + 1, found.end()}});
    if (found == expected) continue;
    isDifferent = true;
    ADD_FAILURE_AT(script.file.c_str(), step.number)
        << DescribeDifference(step.line, Joined(expected), Joined(found)) << "what came:\n"
        << Joined(found);
  }
  const char* rewrite = std::getenv("FOLIONET_REWRITE_EXPECTED");
  if (isDifferent && rewrite != nullptr && *rewrite == '1') Rewrite(script, actual);
}

bool Holds(const std::string& expected, const std::string& actual) {
  return actual == expected ||
         (expected.ends_with(kAndSoOn) && actual.starts_with(expected.substr(0, expected.size() - kAndSoOn.size())));
}

std::string Visible(const std::string& text) {
  const bool isText = IsUtf8(text);
  std::string visible;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    std::array<char, 8> hex{};
    std::snprintf(hex.data(), hex.size(), "\\x%02X", static_cast<unsigned>(byte));
    const bool isPlain = (byte >= ' ' && byte < 0x7F) || (byte >= 0x80 && isText);
    visible += c == '\\'   ? "\\\\"
               : c == '\t' ? "\\t"
               : c == '\r' ? "\\r"
               : c == '\n' ? "\\n"
               : isPlain   ? std::string(1, c)
                           : hex.data();
  }
  return visible;
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

std::vector<std::string> MarkLines(const std::string& mark, const std::string& text) {
  constexpr std::size_t kMost = 50;
  constexpr std::size_t kShown = 3;
  Lines marked;
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) marked.push_back(mark + Visible(line));
  if (marked.size() > kMost) {
    marked[kShown] = mark + "(" + std::to_string(marked.size() - 2 * kShown) + " lines more)";
    marked.erase(marked.begin() + kShown + 1, marked.end() - kShown);
  }
  if (!text.empty() && text.back() != '\n') marked.back() += "(no line break at the end)";
  return marked;
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
    for (std::size_t i = 1; i < words.size(); ++i) fs::remove_all(home + words[i]);
  } else if (verb == "rename") {
    fs::rename(path, home + words.at(2));
  } else if (verb == "folder") {
    fs::remove_all(path);
    fs::create_directory(path);
  } else if (verb == "dated") {
    std::tm day{};
    std::istringstream(words.at(2)) >> std::get_time(&day, "%Y-%m-%d");
    const struct timespec times[] = {{timegm(&day), 0}, {timegm(&day), 0}};
    EXPECT_EQ(utimensat(AT_FDCWD, path.c_str(), times, 0), 0);
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
