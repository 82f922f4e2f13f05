#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "LineReader.h"

namespace folionet {

// Reads comma-separated records, one a line, as the companion application writes them:
//
//   1,0,"King James Version","KJV"
//
// A field may stand in double quotes, a quote inside being doubled; blanks around a field do not count. Lines that
// hold nothing but blanks are skipped.
class RecordReader {
 public:
  RecordReader(const std::string& path, Subject subject) : m_lines(path, subject, LineReader::kLongestEntry) {}

  // Of a text that was read from that file.
  RecordReader(const std::string& path, std::string text, Subject subject)
      : m_lines(path, std::move(text), subject, LineReader::kLongestEntry) {}

  // Reads the next record into `fields`, which must be as many as the record has; they are valid until the next call.
  // False at the end of the file. Throws RunTimeError: kInputPastEnd when the record has fewer fields or a quote is not
  // closed, kInvalidProcedureCall when it has more or text follows a closing quote. Fields read before the failure are
  // kept, the others are empty.
  bool Next(std::span<std::string_view> fields);

  // A field of the record last read as a whole number within limits; throws kTypeMismatch or kOverflow.
  std::int64_t Integer(std::string_view field, std::int64_t lowest, std::int64_t highest) const;

  // The same as a number that need not be whole.
  double Number(std::string_view field) const;

  const LineReader& Lines() const { return m_lines; }

 private:
  std::string_view TakeQuoted(std::string_view line, std::size_t& at);

  LineReader m_lines;
  std::string m_unquoted;  // the fields of the record that hold a quote, one behind the other
};

// The line, ended by CR LF, of a record whose fields are all quoted: "big5","(Traditional Chinese - Big 5)"
std::string QuotedRecord(std::span<const std::string> fields);

}  // namespace folionet
