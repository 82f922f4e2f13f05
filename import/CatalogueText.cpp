#include "CatalogueText.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <set>
#include <vector>

#include "CodePage.h"
#include "LineReader.h"
#include "Numbers.h"
#include "RunTimeError.h"
#include "Text.h"

namespace folionet {

namespace {

constexpr int kFirstOtherNumber = 1000;
constexpr std::size_t kFieldCount = 4;
constexpr std::string_view kFieldBlanks = " \t";

void SkipBlanks(std::string_view& text) {
  text.remove_prefix(std::min(text.find_first_not_of(kFieldBlanks), text.size()));
}

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
      fields.emplace_back(field.substr(0, field.find_last_not_of(kFieldBlanks) + 1));
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

std::string InQuotes(std::string_view text) {
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
  throw RunTimeError(kOverflow, file, "A free number from 1 to 999 was expected for the translation.");
}

// One line of a catalogue: `whole` with its end, and its fields; none for a blank line.
struct CatalogueLine {
  std::string_view whole;
  std::vector<std::string> fields;
  int number = 0;
};

// Takes the next line off a catalogue; throws for a record that cannot be read.
CatalogueLine TakeLine(std::string_view& content, const std::string& file, std::size_t lineNumber) {
  CatalogueLine line;
  line.whole = content.substr(0, std::min(content.find('\n'), content.size() - 1) + 1);
  content.remove_prefix(line.whole.size());
  const std::string_view record = line.whole.substr(0, line.whole.find_last_not_of("\r\n") + 1);
  if (TrimBlanks(record).empty()) return line;
  auto fields = SplitRecord(record);
  std::optional<int> number;
  if (fields && fields->size() == kFieldCount && ReadNumber((*fields)[1])) number = ReadNumber((*fields)[0]);
  if (!fields || !number) {
    throw RunTimeError(kInvalidProcedureCall, file,
                       "A record number,integer,\"name\",\"stem\" was expected: " + Quoted(record), lineNumber);
  }
  line.fields = *std::move(fields);
  line.number = *number;
  return line;
}

std::string_view WithoutMark(std::string_view content) {
  if (content.starts_with(kByteOrderMark)) content.remove_prefix(kByteOrderMark.size());
  return content;
}

}  // namespace

std::vector<CatalogueEntry> CatalogueEntries(std::string_view content, const std::string& file) {
  std::vector<CatalogueEntry> entries;
  content = WithoutMark(content);
  for (std::size_t number = 1; !content.empty(); ++number) {
    const CatalogueLine line = TakeLine(content, file, number);
    if (!line.fields.empty() && line.number < kFirstOtherNumber) entries.push_back({line.fields[2], line.fields[3]});
  }
  return entries;
}

std::string WithTranslation(std::string_view content, const std::string& file, const CatalogueEntry& entry) {
  const std::string tail = InQuotes(entry.name) + "," + InQuotes(entry.stem) + "\r\n";
  std::string text(content.substr(0, content.size() - WithoutMark(content).size()));
  std::set<int> taken;
  bool placed = false;
  content = WithoutMark(content);
  for (std::size_t number = 1; !content.empty(); ++number) {
    const CatalogueLine line = TakeLine(content, file, number);
    if (line.fields.empty()) {
      text += line.whole;
      continue;
    }
    taken.insert(line.number);
    if (line.number < kFirstOtherNumber && EqualIgnoringCase(line.fields[3], entry.stem)) {
      // A second record of the stem would list the translation twice.
      if (!placed) text += line.fields[0] + "," + line.fields[1] + "," + tail;
      placed = true;
    } else {
      text += line.whole;
      if (!line.whole.ends_with('\n')) text += "\r\n";
    }
  }
  if (!placed) text += std::to_string(LowestFree(taken, file)) + ",0," + tail;
  return text;
}

}  // namespace folionet
