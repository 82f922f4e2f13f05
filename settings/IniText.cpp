#include "IniText.h"

#include <algorithm>
#include <set>
#include <utility>
#include <vector>

#include "CodePage.h"
#include "Text.h"
#include "Utf16.h"
#include "Utf8.h"

namespace folionet {
namespace {

// An escaped character as it is written and as it reads; a backslash before any other stands for itself.
struct Escape {
  char letter;
  char character;
};
constexpr Escape kEscapes[] = {{'n', '\n'}, {'r', '\r'}, {'t', '\t'}, {'"', '"'}, {'\\', '\\'}};

constexpr std::string_view kIniBlanks = " \t\n\v\f\r";

std::string Unquoted(std::string_view inner) {
  std::string text;
  for (std::size_t i = 0; i < inner.size(); ++i) {
    char c = inner[i];
    if (c == '\\' && i + 1 < inner.size()) {
      const auto* const escape = std::find_if(std::begin(kEscapes), std::end(kEscapes),
                                              [&](const Escape& known) { return known.letter == inner[i + 1]; });
      if (escape != std::end(kEscapes)) {
        c = escape->character;
        ++i;
      }
    }
    text += c;
  }
  return text;
}

// Whether the quote that opens a value is closed by its very last character.
bool IsWholeQuoted(std::string_view value) {
  if (value.size() < 2 || value.front() != '"' || value.back() != '"') return false;
  for (std::size_t i = 1; i < value.size(); ++i) {
    if (value[i] == '\\') {
      ++i;
    } else if (value[i] == '"') {
      return i == value.size() - 1;
    }
  }
  return false;
}

// A line of an INI text. What has no name is no value.
struct IniLine {
  std::string bytes;    // with its end, if it was read
  std::string section;  // with its slash; empty before the first one
  std::string name;     // "section/key"
  std::string value;
};

void ReadLine(std::string_view line, std::string& section, IniLine& read) {
  if (line.empty() || line.front() == ';' || line.front() == '#') return;
  if (line.front() == '[' && line.back() == ']') {
    section = line.size() > 2 ? Trimmed(line.substr(1, line.size() - 2), kIniBlanks) : std::string_view();
    if (!section.empty()) section += '/';
    return;
  }
  const std::size_t equals = line.find('=');
  if (equals == 0 || equals == std::string_view::npos) return;
  const std::string_view value = Trimmed(line.substr(equals + 1), kIniBlanks);
  read.name = section + std::string(Trimmed(line.substr(0, equals), kIniBlanks));
  read.value = IsWholeQuoted(value) ? Unquoted(value.substr(1, value.size() - 2)) : std::string(value);
}

// Calls take(IniLine) for each line of a text that is no UTF-16.
template <typename Take>
void ForEachLine(std::string_view text, Take take) {
  while (text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
  std::string section;
  const char lineEnd = text.find('\n') == std::string_view::npos ? '\r' : '\n';
  while (!text.empty()) {
    const std::size_t length = std::min(text.find(lineEnd), text.size() - 1) + 1;
    const std::string_view line = Trimmed(text.substr(0, length), kIniBlanks);
    IniLine read;
    ReadLine(IsUtf8(line) ? line : std::string_view(CodePage().Decode(line)), section, read);
    read.bytes = text.substr(0, length);
    read.section = section;
    take(std::move(read));
    text.remove_prefix(length);
  }
}

std::string ValueText(std::string_view value) {
  constexpr std::string_view kNeedsQuotes("\"\r\n\0", 4);
  if (value == Trimmed(value, kIniBlanks) && value.find_first_of(kNeedsQuotes) == std::string_view::npos)
    return std::string(value);
  std::string quoted = "\"";
  for (const char c : value) {
    const auto* const escape = std::find_if(std::begin(kEscapes), std::end(kEscapes),
                                            [&](const Escape& known) { return known.character == c; });
    if (escape != std::end(kEscapes)) quoted += '\\';
    quoted += escape != std::end(kEscapes) ? escape->letter : c;
  }
  return quoted + '"';
}

// A value in that section, which its name begins with.
IniLine LineOf(const std::string& section, const std::string& name, const std::string& value) {
  return {name.substr(section.size()) + "=" + ValueText(value), section, name, value};
}

std::string SectionOf(const std::string& name) { return name.substr(0, name.find('/') + 1); }

// Puts a value into its section, which is made at the end when missing.
void Insert(std::vector<IniLine>& lines, IniLine line) {
  const auto isOfSection = [&](const IniLine& known) {
    return known.section == line.section && !Trimmed(known.bytes, kIniBlanks).empty();
  };
  const auto next = std::find_if(lines.begin(), lines.end(), [&](const IniLine& known) {
    return known.section == line.section && known.name > line.name;
  });
  const auto last = std::find_if(lines.rbegin(), lines.rend(), isOfSection);
  if (next != lines.end()) {
    lines.insert(next, std::move(line));
  } else if (last != lines.rend() || line.section.empty()) {
    lines.insert(last.base(), std::move(line));
  } else {
    const std::string header = "[" + line.section.substr(0, line.section.size() - 1) + "]";
    if (!lines.empty()) lines.push_back({{}, lines.back().section, {}, {}});
    lines.push_back({header, line.section, {}, {}});
    lines.push_back(std::move(line));
  }
}

}  // namespace

std::string IniName(std::string_view section, std::string_view key) {
  return std::string(section).append("/").append(key);
}

std::optional<std::string> FindIni(const IniValues& values, std::string_view name) {
  const auto found = values.find(name);
  return found == values.end() ? std::nullopt : std::optional(found->second);
}

IniValues ParseIni(std::string_view text, const std::string& path) {
  IniValues values;
  ForEachLine(FromUtf16(text, path), [&](IniLine line) {
    if (!line.name.empty()) values.insert_or_assign(std::move(line.name), std::move(line.value));
  });
  return values;
}

std::string EditIni(std::string_view text, const IniChanges& changes, const std::string& path) {
  const std::string plain = FromUtf16(text, path);
  const std::size_t end = plain.find('\n');
  const bool isCrLf = end != std::string::npos && end > 0 && plain[end - 1] == '\r';
  const bool isCr = end == std::string::npos && plain.find('\r') != std::string::npos;
  const std::string lineEnd = isCrLf ? "\r\n" : isCr ? "\r" : "\n";
  std::vector<IniLine> lines;
  std::set<std::string_view> done;
  ForEachLine(plain, [&](IniLine line) {
    const auto change = line.name.empty() ? changes.end() : changes.find(line.name);
    if (change != changes.end()) {
      done.insert(change->first);
      if (!change->second) return;
      if (*change->second != line.value) line = LineOf(line.section, line.name, *change->second);
    }
    lines.push_back(std::move(line));
  });
  for (const auto& [name, value] : changes) {
    if (value && !done.contains(name)) Insert(lines, LineOf(SectionOf(name), name, *value));
  }
  std::string edited;
  for (const IniLine& line : lines) {
    edited += line.bytes;
    if (line.bytes.empty() || line.bytes.back() != lineEnd.back()) edited += lineEnd;
  }
  return edited;
}

IniChanges ChangesBetween(const IniValues& from, const IniValues& to) {
  IniChanges changes;
  for (const auto& [name, value] : from) {
    if (!to.contains(name)) changes.emplace(name, std::nullopt);
  }
  for (const auto& [name, value] : to) {
    const auto was = from.find(name);
    if (was == from.end() || was->second != value) changes.insert_or_assign(name, value);
  }
  return changes;
}

}  // namespace folionet
