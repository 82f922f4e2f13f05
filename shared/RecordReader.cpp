#include "RecordReader.h"

#include <algorithm>

#include "Numbers.h"
#include "RunTimeError.h"
#include "Text.h"

namespace folionet {
namespace {

std::size_t SkipBlanks(std::string_view line, std::size_t at) {
  while (at < line.size() && IsBlank(line[at])) ++at;
  return at;
}

// Leaves `at` on the comma that ends the field, or at the line's end. Most fields are numbers of a few digits: a loop
// finds their ends sooner than a call.
std::string_view TakePlain(std::string_view line, std::size_t& at) {
  const std::size_t start = at;
  while (at < line.size() && line[at] != ',') ++at;
  return TrimBlanks(line.substr(start, at - start));
}

}  // namespace

// Begins behind the opening quote and leaves `at` behind the closing one.
std::string_view RecordReader::TakeQuoted(std::string_view line, std::size_t& at) {
  const std::size_t start = m_unquoted.size();
  for (;; ++at) {
    const std::size_t quote = line.find('"', at);
    if (quote == std::string_view::npos) {
      m_lines.Fail(kInputPastEnd, "A quoted field is not closed: " + Quoted(line));
    }
    const std::string_view part = line.substr(at, quote - at);
    at = quote + 1;
    const bool isDoubled = at < line.size() && line[at] == '"';
    if (!isDoubled && m_unquoted.size() == start) return part;
    m_unquoted += part;
    if (!isDoubled) return std::string_view(m_unquoted).substr(start);
    m_unquoted += '"';
  }
}

bool RecordReader::Next(std::span<std::string_view> fields) {
  std::ranges::fill(fields, std::string_view());
  std::string_view line;
  if (!m_lines.NextNotBlank(line)) return false;
  m_unquoted.clear();
  m_unquoted.reserve(line.size());  // so that it does not move while fields point into it
  std::size_t at = 0;
  for (std::size_t i = 0; i < fields.size(); ++i) {
    if (i > 0) {
      if (at == line.size()) {
        m_lines.Fail(kInputPastEnd, "A record of " + std::to_string(fields.size()) + " fields was expected, " +
                                        std::to_string(i) + " found: " + Quoted(line));
      }
      ++at;
    }
    at = SkipBlanks(line, at);
    if (at == line.size() || line[at] != '"') {
      fields[i] = TakePlain(line, at);
      continue;
    }
    fields[i] = TakeQuoted(line, ++at);
    at = SkipBlanks(line, at);
    if (at < line.size() && line[at] != ',') {
      m_lines.Fail(kInvalidProcedureCall, "Text follows the closing quote of a field: " + Quoted(line));
    }
  }
  if (at < line.size()) {
    m_lines.Fail(kInvalidProcedureCall,
                 "A record of " + std::to_string(fields.size()) + " fields was expected, more found: " + Quoted(line));
  }
  return true;
}

std::int64_t RecordReader::Integer(std::string_view field, std::int64_t lowest, std::int64_t highest) const {
  const IntegerReading reading = ReadInteger(field, lowest, highest);
  if (reading.error == kOverflow) {
    m_lines.Fail(kOverflow, "A number from " + std::to_string(lowest) + " to " + std::to_string(highest) +
                                " was expected: " + Quoted(field));
  }
  if (reading.error != 0) m_lines.Fail(kTypeMismatch, "A number was expected: " + Quoted(field));
  return reading.value;
}

double RecordReader::Number(std::string_view field) const {
  const NumberReading reading = ReadNumber(field);
  if (reading.error != 0) m_lines.Fail(reading.error, "A number was expected: " + Quoted(field));
  return reading.value;
}

std::string QuotedRecord(std::span<const std::string> fields) {
  std::string line;
  for (const std::string& field : fields) {
    if (!line.empty()) line += ',';
    line += '"';
    for (const char c : field) {
      if (c == '"') line += '"';
      line += c;
    }
    line += '"';
  }
  return line + "\r\n";
}

}  // namespace folionet
