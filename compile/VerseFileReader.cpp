#include "VerseFileReader.h"

#include <algorithm>
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

// What follows the first tab. The field before it is a few bytes: a loop finds its end sooner than a call.
std::string_view AfterTab(std::string_view line) {
  std::size_t at = 0;
  while (at < line.size() && line[at] != '\t') ++at;
  return line.substr(std::min(at + 1, line.size()));
}

// Where the verse begins, behind the tab of the chapter's field; npos when there is none.
std::size_t PlaceEnd(std::string_view rest, std::size_t bookEnd) {
  if (bookEnd == std::string_view::npos) return bookEnd;
  const std::size_t chapterEnd = rest.find('\t', bookEnd + 1);
  return chapterEnd == std::string_view::npos ? chapterEnd : chapterEnd + 1;
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

void VerseFileReader::ReadPlace(const Verse& verse) {
  const auto book = static_cast<int>(Number(verse.bookField, "book"));
  m_chapter = static_cast<std::int16_t>(Number(verse.chapterField, "chapter"));
  if (book < 1 || book > kBooks) {
    m_lines.Fail(kSubscriptOutOfRange, "A book from 1 to 66 was expected: " + Quoted(verse.bookField));
  }
  m_book = book;
}

bool VerseFileReader::Next(Verse& verse) {
  std::string_view line;
  if (!m_lines.Next(line)) return false;
  const std::string_view rest = AfterTab(line);
  // Nearly every line has the book and the chapter of the one before.
  const bool isSamePlace = m_bookLength > 0 && rest.starts_with(m_place);
  const std::size_t bookEnd = isSamePlace ? m_bookLength : rest.find('\t');
  const std::size_t placeEnd = isSamePlace ? m_place.size() : PlaceEnd(rest, bookEnd);
  const std::size_t last = FindLastTab(rest);
  if (last == std::string_view::npos || placeEnd > last) {
    verse.text = line;
    m_lines.Fail(kInvalidProcedureCall, "Five fields separated by tabs were expected: " + Quoted(line));
  }
  verse.bookField = {rest.data(), bookEnd};
  verse.chapterField = {rest.data() + bookEnd + 1, placeEnd - bookEnd - 2};
  verse.verse = {rest.data() + placeEnd, last - placeEnd};
  verse.text = {rest.data() + last + 1, rest.size() - last - 1};
  if (!isSamePlace) {
    m_bookLength = 0;
    ReadPlace(verse);
    m_place = rest.substr(0, placeEnd);
    m_bookLength = bookEnd;
  }
  verse.book = m_book;
  verse.chapter = m_chapter;
  return true;
}

}  // namespace folionet
