#include "Catalogue.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <set>
#include <vector>

#include "Ascii.h"
#include "LibraryError.h"

namespace folionet::tools {

namespace {

constexpr int kFirstOtherNumber = 1000;
constexpr std::size_t kFieldCount = 4;

void SkipBlanks(std::string_view& text) { text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size())); }

// Takes a quoted text off the front of `rest`; nothing when its closing quote is missing.
std::optional<std::string> TakeQuoted(std::string_view& rest) {
  std::string text;
  for (std::size_t i = 1; i < rest.size(); ++i) {
    if (rest[i] == '"') {
      if (i + 1 == rest.size() || rest[i + 1] != '"') {
        rest.remove_prefix(i + 1);
        return text;
      }
      ++i;
    }
    text += rest[i];
  }
  return std::nullopt;
}

std::optional<std::vector<std::string>> SplitRecord(std::string_view rest) {
  std::vector<std::string> fields;
  for (;;) {
    SkipBlanks(rest);
    if (rest.starts_with('"')) {
      auto text = TakeQuoted(rest);
      if (!text) return std::nullopt;
      fields.push_back(std::move(*text));
      SkipBlanks(rest);
    } else {
      const std::string_view field = rest.substr(0, rest.find(','));
      rest.remove_prefix(field.size());
      fields.emplace_back(field.substr(0, field.find_last_not_of(kBlanks) + 1));
    }
    if (rest.empty()) return fields;
    if (rest.front() != ',') return std::nullopt;
    rest.remove_prefix(1);
  }
}

std::optional<int> ReadNumber(std::string_view text) {
  int number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return number;
}

std::string Quoted(std::string_view text) {
  std::string quoted = "\"";
  for (const char c : text) {
    if (c == '"') quoted += '"';
    quoted += c;
  }
  return quoted + '"';
}

int LowestFree(const std::set<int>& taken, const std::string& file) {
  for (int number = 1; number < kFirstOtherNumber; ++number) {
    if (!taken.contains(number)) return number;
  }
  throw LibraryError(file + ": every number from 1 to 999 is taken: expected a free one for the translation");
}

}  // namespace

std::string WithTranslation(std::string_view content, const std::string& file, std::string_view name,
                            std::string_view stem) {
  const std::string tail = Quoted(name) + "," + Quoted(stem) + "\r\n";
  std::string text;
  std::set<int> taken;
  bool placed = false;
  if (content.starts_with(kByteOrderMark)) {
    text = kByteOrderMark;
    content.remove_prefix(kByteOrderMark.size());
  }
  for (std::size_t number = 1; !content.empty(); ++number) {
    const std::size_t length = std::min(content.find('\n'), content.size() - 1) + 1;
    const std::string_view whole = content.substr(0, length);
    content.remove_prefix(length);
    const std::string_view record = whole.substr(0, whole.find_last_not_of("\r\n") + 1);
    if (record.find_first_not_of(kBlanks) == std::string_view::npos) {
      text += whole;
      continue;
    }
    const std::vector<std::string> fields = SplitRecord(record).value_or(std::vector<std::string>());
    const auto id = fields.size() == kFieldCount ? ReadNumber(fields[0]) : std::nullopt;
    if (!id || !ReadNumber(fields[1])) {
      throw LibraryError(file + ":" + std::to_string(number) + ": \"" + std::string(record) +
                         "\": expected number,integer,\"name\",\"stem\"");
    }
    taken.insert(*id);
    if (*id < kFirstOtherNumber && SameIgnoringCase(fields[3], stem)) {
      // A second record of the stem would list the translation twice.
      if (!placed) text += fields[0] + "," + fields[1] + "," + tail;
      placed = true;
    } else {
      text += whole;
      if (!whole.ends_with('\n')) text += "\r\n";
    }
  }
  if (!placed) text += std::to_string(LowestFree(taken, file)) + ",0," + tail;
  return text;
}

}  // namespace folionet::tools
