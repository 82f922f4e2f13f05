#pragma once

#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>

#include "FileHandle.h"
#include "RunTimeError.h"

namespace folionet {

// Reads a text file line by line, in constant memory. Lines end in CR LF or LF, or, in a file whose first line does, in
// CR alone; the last one need not end. A UTF-8 byte-order mark at the start and a Ctrl+Z at the end are skipped; every
// other byte, NUL included, is passed on as it is. A file in UTF-16 is refused.
class LineReader {
 public:
  // A longer line is refused with kOutOfMemory: one of a text, and one of a list, which is kept.
  static constexpr std::size_t kLongestLine = std::size_t{4} << 20;
  static constexpr std::size_t kLongestEntry = std::size_t{64} << 10;

  // Opens the file; throws RunTimeError when that fails or when it is no regular file. Every error is about `subject`.
  explicit LineReader(const std::string& path, Subject subject, std::size_t longest = kLongestLine);

  // Reads a text that was read from the file `path`.
  LineReader(std::string path, std::string text, Subject subject, std::size_t longest);

  // Gives the next line without its end; false at the end of the file. The line is valid until the next call. Throws
  // RunTimeError when reading fails.
  bool Next(std::string_view& line) { return NextInMemory(line) || NextFromFile(line); }

  // As Next, but false when the file has to be read on: the line before is then still valid.
  bool NextInMemory(std::string_view& line) {
    const void* found = std::memchr(m_buffer.data() + m_begin, m_lineEnd, m_end - m_begin);
    if (found == nullptr) return false;
    Take(line, static_cast<std::size_t>(static_cast<const char*>(found) - m_buffer.data()), 1);
    return true;
  }

  // As Next, passing over lines that hold nothing but blanks; a line that holds the end of another is refused.
  bool NextNotBlank(std::string_view& line);

  // Throws for a part of the line last given that holds the end of a line: of a file whose lines do not end alike,
  // several would be read as one.
  void RefuseLineEnds(std::string_view part) const;

  // Whether nothing but blanks and ends of lines follows. The line last given is not valid any more.
  bool IsRestBlank();

  const std::string& Path() const { return m_path; }
  std::size_t LineNumber() const { return m_lineNumber; }  // of the line last given, from 1

  // How many bytes of the file stand before the line that comes next.
  std::size_t NextStart() const { return m_bytesRead - (m_end - m_begin); }

  // Throws the error `number` for the line last given.
  [[noreturn]] void Fail(int number, const std::string& detail) const;

 private:
  bool NextFromFile(std::string_view& line);

  // Gives what stands up to `end`, without a CR, and goes on behind its end of so many bytes.
  void Take(std::string_view& line, std::size_t end, std::size_t endLength) {
    line = {m_buffer.data() + m_begin, end - m_begin};
    m_begin = end + endLength;
    ++m_lineNumber;
    if (line.size() > m_longest) FailTooLong();
    while (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    if (m_lineEnd == '\r' && line.starts_with('\n')) line.remove_prefix(1);
  }

  void Begin();
  void Fill();
  void CutEnd();
  void FindLineEnd();
  void SkipLine();
  [[noreturn]] void FailTooLong() const;

  std::string m_path;
  Subject m_subject;
  std::size_t m_longest;
  FileHandle m_file;
  std::string m_buffer;
  std::size_t m_begin = 0;
  std::size_t m_end = 0;
  std::size_t m_lineNumber = 0;
  std::size_t m_bytesRead = 0;  // of the text; the last of them stand in the buffer
  std::size_t m_knownText = 0;  // where in the file the rest is known to be more than blanks
  bool m_atEnd = false;
  char m_lineEnd = '\n';
};

}  // namespace folionet
