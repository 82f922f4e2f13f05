#include "RecordReader.h"

#include "Numbers.h"
#include "RunTimeError.h"

namespace folionet {
namespace {

std::size_t SkipBlanks(std::string_view line, std::size_t at) {
  while (at < line.size() && (line[at] == ' ' || line[at] == '\t')) ++at;
  return at;
}

}  // namespace

// Leaves `at` on the comma that ends the field, or at the line's end.
void RecordReader::TakeField(std::string_view line, std::size_t& at, std::string& field) const {
  at = SkipBlanks(line, at);
  if (at == line.size() || line[at] != '"') {
    // Most fields are numbers of a few digits: a loop finds their ends sooner than a call.
    const std::size_t start = at;
    while (at < line.size() && line[at] != ',') ++at;
    field = TrimBlanks(line.substr(start, at - start));
    return;
  }
  for (++at;; ++at) {
    const std::size_t quote = line.find('"', at);
    if (quote == std::string_view::npos) {
      m_lines.Fail(kInputPastEnd, "A quoted field is not closed: " + Quoted(line));
    }
    field += line.substr(at, quote - at);
    at = quote + 1;
    if (at == line.size() || line[at] != '"') break;
    field += '"';
  }
  at = SkipBlanks(line, at);
  if (at < line.size() && line[at] != ',') {
    m_lines.Fail(kInvalidProcedureCall, "Text follows the closing quote of a field: " + Quoted(line));
  }
}

bool RecordReader::Next(std::span<std::string> fields) {
  std::string_view line;
  if (!m_lines.NextNotBlank(line)) return false;
  for (std::string& field : fields) field.clear();
  std::size_t at = 0;
  for (std::size_t i = 0; i < fields.size(); ++i) {
    if (i > 0) {
      if (at == line.size()) {
        m_lines.Fail(kInputPastEnd, "A record of " + std::to_string(fields.size()) + " fields was expected, " +
                                        std::to_string(i) + " found: " + Quoted(line));
      }
      ++at;
    }
    TakeField(line, at, fields[i]);
  }
  if (at < line.size()) {
    m_lines.Fail(kInvalidProcedureCall,
                 "A record of " + std::to_string(fields.size()) + " fields was expected, more found: " + Quoted(line));
  }
  return true;
}

std::int64_t RecordReader::Integer(const std::string& field, std::int64_t lowest, std::int64_t highest) const {
  const IntegerReading reading = ReadInteger(field, lowest, highest);
  if (reading.error == kOverflow) {
    m_lines.Fail(kOverflow, "A number from " + std::to_string(lowest) + " to " + std::to_string(highest) +
                                " was expected: " + Quoted(field));
  }
  if (reading.error != 0) m_lines.Fail(kTypeMismatch, "A number was expected: " + Quoted(field));
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
