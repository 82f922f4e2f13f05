#include "IniText.h"

#include <algorithm>

#include "CodePage.h"
#include "LineReader.h"
#include "Text.h"
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

void ReadLine(std::string_view line, std::string& section, IniValues& values) {
  if (line.empty() || line.front() == ';' || line.front() == '#') return;
  if (line.front() == '[' && line.back() == ']') {
    section = line.size() > 2 ? Trimmed(line.substr(1, line.size() - 2), kIniBlanks) : std::string_view();
    if (!section.empty()) section += '/';
    return;
  }
  const std::size_t equals = line.find('=');
  if (equals == 0 || equals == std::string_view::npos) return;
  const std::string_view value = Trimmed(line.substr(equals + 1), kIniBlanks);
  values.insert_or_assign(section + std::string(Trimmed(line.substr(0, equals), kIniBlanks)),
                          IsWholeQuoted(value) ? Unquoted(value.substr(1, value.size() - 2)) : std::string(value));
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

}  // namespace

IniValues ParseIni(std::string_view text) {
  if (text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
  IniValues values;
  std::string section;
  const char lineEnd = text.find('\n') == std::string_view::npos ? '\r' : '\n';
  while (!text.empty()) {
    const std::size_t end = std::min(text.find(lineEnd), text.size());
    const std::string_view line = Trimmed(text.substr(0, end), kIniBlanks);
    ReadLine(IsUtf8(line) ? line : std::string_view(CodePage().Decode(line)), section, values);
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return values;
}

std::string BuildIni(const IniValues& values) {
  std::string text;
  std::string_view section;
  for (const auto& [name, value] : values) {
    const std::size_t slash = name.find('/');
    const std::string_view own = std::string_view(name).substr(0, slash == std::string::npos ? 0 : slash);
    if (own != section) {
      if (!text.empty()) text += '\n';
      text.append("[").append(own).append("]\n");
      section = own;
    }
    text.append(name, slash == std::string::npos ? 0 : slash + 1).append("=").append(ValueText(value)).append("\n");
  }
  return text;
}

std::string ChangedAs(std::string_view present, std::string_view from, std::string_view to) {
  const IniValues before = ParseIni(from);
  const IniValues after = ParseIni(to);
  IniValues values = ParseIni(present);
  for (const auto& [name, value] : before) {
    if (!after.contains(name)) values.erase(name);
  }
  for (const auto& [name, value] : after) {
    const auto was = before.find(name);
    if (was == before.end() || was->second != value) values.insert_or_assign(name, value);
  }
  return BuildIni(values);
}

}  // namespace folionet
