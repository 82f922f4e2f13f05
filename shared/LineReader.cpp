#include "LineReader.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <utility>

#include "Numbers.h"
#include "RunTimeError.h"
#include "Text.h"
#include "Utf16.h"
#include "WholeFile.h"

namespace folionet {
namespace {

#ifdef FUZZING_BUILD_MODE_UNSAFE_FOR_PRODUCTION
constexpr std::size_t kChunk = 64;  // so that small inputs are read in parts
#else
constexpr std::size_t kChunk = std::size_t{64} << 10;
#endif

}  // namespace

LineReader::LineReader(const std::string& path, Subject subject, std::size_t longest)
    // A pipe in the place of a file must not block the opening.
    : m_path(path),
      m_subject(subject),
      m_longest(longest),
      m_file(FileHandle::Open(path.c_str(), O_RDONLY | O_NONBLOCK)) {
  const struct stat status = WorkAbout(subject, [&] { return RegularStatus(m_file, path); });
  // One byte more than the file has shows its end in the first fill.
  m_buffer.resize(std::min(kChunk, static_cast<std::size_t>(status.st_size) + 1));
  Fill();
  Begin();
}

LineReader::LineReader(std::string path, std::string text, Subject subject, std::size_t longest)
    : m_path(std::move(path)),
      m_subject(subject),
      m_longest(longest),
      m_buffer(std::move(text)),
      m_end(m_buffer.size()),
      m_bytesRead(m_end),
      m_atEnd(true) {
  CutEnd();
  Begin();
}

void LineReader::Begin() {
  const std::string_view head(m_buffer.data(), m_end);
  if (LooksUtf16(head)) {
    throw RunTimeError(kTypeMismatch, m_path, "It is UTF-16, which editors call Unicode. Save it as UTF-8.")
        .About(m_subject);
  }
  if (head.starts_with(kByteOrderMark)) m_begin = kByteOrderMark.size();
  FindLineEnd();
}

// A CR that no LF follows, however many CRs stand between, ends the first line of a file only where all lines end so.
void LineReader::FindLineEnd() {
  for (;;) {
    const std::string_view text(m_buffer.data() + m_begin, m_end - m_begin);
    const std::size_t first = text.find_first_of("\r\n");
    const std::size_t next = first == std::string_view::npos ? first : text.find_first_not_of('\r', first);
    if (next != std::string_view::npos || m_atEnd || text.size() > m_longest) {
      if (first != std::string_view::npos && (next == std::string_view::npos || text[next] != '\n')) m_lineEnd = '\r';
      return;
    }
    Fill();
  }
}

void LineReader::Fill() {
  if (m_begin > 0) {
    std::memmove(m_buffer.data(), m_buffer.data() + m_begin, m_end - m_begin);
    m_end -= m_begin;
    m_begin = 0;
  }
  if (m_end == m_buffer.size()) m_buffer.resize(m_buffer.size() * 2);
  while (m_end < m_buffer.size()) {
    const ssize_t count = read(m_file.Get(), m_buffer.data() + m_end, m_buffer.size() - m_end);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) throw RunTimeError::FromErrno(errno, m_path).About(m_subject);
    if (count == 0) {
      m_atEnd = true;
      CutEnd();
      break;
    }
    m_end += static_cast<std::size_t>(count);
    m_bytesRead += static_cast<std::size_t>(count);
  }
}

void LineReader::CutEnd() {
  while (m_end > m_begin && m_buffer[m_end - 1] == kCtrlZ) {
    --m_end;
    --m_bytesRead;
  }
}

bool LineReader::NextFromFile(std::string_view& line) {
  for (;;) {
    const std::size_t pending = m_end - m_begin;
    if (pending > m_longest) {
      SkipLine();
      ++m_lineNumber;
      FailTooLong();
    }
    if (m_atEnd) {
      const bool isLastLf = m_lineEnd == '\r' && pending == 1 && m_buffer[m_begin] == '\n';
      if (pending == 0 || isLastLf) return false;
      Take(line, m_end, 0);
      return true;
    }
    Fill();
    // What was cut off at the end of the file may reach back into what was searched.
    const std::size_t searched = std::min(pending, m_end);
    if (const void* found = std::memchr(m_buffer.data() + searched, m_lineEnd, m_end - searched)) {
      Take(line, static_cast<std::size_t>(static_cast<const char*>(found) - m_buffer.data()), 1);
      return true;
    }
  }
}

// So that one who goes on reading finds the line behind it.
void LineReader::SkipLine() {
  for (;;) {
    if (const void* found = std::memchr(m_buffer.data() + m_begin, m_lineEnd, m_end - m_begin)) {
      m_begin = static_cast<std::size_t>(static_cast<const char*>(found) - m_buffer.data()) + 1;
      return;
    }
    m_begin = m_end;
    if (m_atEnd) return;
    Fill();
  }
}

void LineReader::FailTooLong() const {
  Fail(kOutOfMemory, "The line is longer than " + std::to_string(m_longest) + " bytes.");
}

bool LineReader::NextNotBlank(std::string_view& line) {
  while (Next(line)) {
    if (TrimBlanks(line).empty()) continue;
    RefuseLineEnds(line);
    return true;
  }
  return false;
}

void LineReader::RefuseLineEnds(std::string_view part) const {
  if (part.find(m_lineEnd == '\n' ? '\r' : '\n') == std::string_view::npos) return;
  Fail(kInvalidProcedureCall, m_lineEnd == '\n'
                                  ? "A CR alone stands in the line, where others end in LF: let all lines end alike."
                                  : "An LF stands in the line, where others end in CR alone: let all lines end alike.");
}

bool LineReader::IsRestBlank() {
  // What was found the last time holds until it is reached: many blank lines are not looked through again for each.
  if (NextStart() < m_knownText) return false;
  for (;;) {
    const std::string_view rest(m_buffer.data() + m_begin, m_end - m_begin);
    const std::size_t text = std::min(rest.find_first_not_of(" \t\r\n"), rest.size());
    if (text < rest.size() || rest.size() > m_longest) {
      m_knownText = m_bytesRead - (rest.size() - text);
      return false;
    }
    if (m_atEnd) return true;
    Fill();
  }
}

void LineReader::Fail(int number, const std::string& detail) const {
  throw RunTimeError(number, m_path, detail, m_lineNumber).About(m_subject);
}

}  // namespace folionet
