#include "VerseFileReader.h"

#include <array>
#include <cstring>

#include "Numbers.h"
#include "RunTimeError.h"
#include "modGlob.h"

namespace folionet {
namespace {

std::size_t FindLastTab(std::string_view line) {
  const void* found = line.empty() ? nullptr : memrchr(line.data(), '\t', line.size());
  return found == nullptr ? std::string_view::npos
                          : static_cast<std::size_t>(static_cast<const char*>(found) - line.data());
}

}  // namespace

std::int64_t VerseFileReader::Number(std::string_view field, const char* what) const {
  const IntegerReading reading = ReadInteger(field, kInt16Min, kInt16Max);
  if (reading.error == kOverflow) {
    m_lines.Fail(kOverflow, std::string("A ") + what + " from -32768 to 32767 was expected: " + Quoted(field));
  }
  if (reading.error != 0) {
    m_lines.Fail(kTypeMismatch, std::string("The number of a ") + what + " was expected: " + Quoted(field));
  }
  return reading.value;
}

bool VerseFileReader::Next(Verse& verse) {
  std::string_view line;
  if (!m_lines.Next(line)) return false;
  // The first three fields are a few bytes each: a loop finds their ends sooner than a call.
  std::array<std::size_t, 3> tabs{};
  std::size_t at = 0;
  for (std::size_t& tab : tabs) {
    while (at < line.size() && line[at] != '\t') ++at;
    tab = at++;
  }
  const std::size_t last = FindLastTab(line);
  if (last == std::string_view::npos || tabs[2] >= last) {
    verse.text = line;
    m_lines.Fail(kInvalidProcedureCall, "Five fields separated by tabs were expected: " + Quoted(line));
  }
  verse.bookField = line.substr(tabs[0] + 1, tabs[1] - tabs[0] - 1);
  verse.chapterField = line.substr(tabs[1] + 1, tabs[2] - tabs[1] - 1);
  verse.verse = line.substr(tabs[2] + 1, last - tabs[2] - 1);
  verse.text = line.substr(last + 1);
  // Nearly every line has the book and the chapter of the one before.
  if (m_book == 0 || verse.bookField != m_bookField || verse.chapterField != m_chapterField) {
    const auto book = static_cast<int>(Number(verse.bookField, "book"));
    m_chapter = static_cast<std::int16_t>(Number(verse.chapterField, "chapter"));
    m_book = book;
    m_bookField = verse.bookField;
    m_chapterField = verse.chapterField;
  }
  if (m_book < 1 || m_book > kBooks) {
    m_lines.Fail(kSubscriptOutOfRange, "A book from 1 to 66 was expected: " + Quoted(verse.bookField));
  }
  verse.book = m_book;
  verse.chapter = m_chapter;
  return true;
}

}  // namespace folionet
