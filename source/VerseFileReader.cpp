#include "VerseFileReader.h"

#include <array>
#include <cstring>

#include "Numbers.h"
#include "RunTimeError.h"
#include "Text.h"
#include "modGlob.h"

namespace folionet {
namespace {

constexpr std::size_t kLongestVerse = 4;
constexpr std::size_t kLongestFirst = 16;  // often a running number

std::size_t FindLastTab(std::string_view line) {
  const void* found = line.empty() ? nullptr : memrchr(line.data(), '\t', line.size());
  return found == nullptr ? std::string_view::npos
                          : static_cast<std::size_t>(static_cast<const char*>(found) - line.data());
}

// Where the verse begins, behind the tabs of the book's and of the chapter's field; npos when they are not there.
std::size_t PlaceEnd(std::string_view rest) {
  const std::size_t bookEnd = rest.find('\t');
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

void VerseFileReader::TakePlace(std::string_view place) {
  m_isPlaceRead = false;
  m_place = place;
  const std::string_view kept = m_place;
  const std::size_t bookEnd = kept.find('\t');
  m_verse.bookField = kept.substr(0, bookEnd);
  m_verse.chapterField = kept.substr(bookEnd + 1, kept.size() - bookEnd - 2);
  const auto book = static_cast<int>(Number(m_verse.bookField, "book"));
  const auto chapter = static_cast<std::int16_t>(Number(m_verse.chapterField, "chapter"));
  if (book < 1 || book > kBooks) {
    m_lines.Fail(kSubscriptOutOfRange, "A book from 1 to 66 was expected: " + Quoted(m_verse.bookField));
  }
  m_verse.book = book;
  m_verse.chapter = chapter;
  m_isPlaceRead = true;
}

void VerseFileReader::KeepTexts() {
  m_kept = std::string(m_verse.verse).append(m_verse.text);
  const std::string_view kept = m_kept;
  m_verse.verse = kept.substr(0, m_verse.verse.size());
  m_verse.text = kept.substr(m_verse.verse.size());
}

void VerseFileReader::KeepAsLastOfPlace() {
  m_before = m_verse;
  m_beforeTexts.clear();
  const std::array<std::string_view*, 4> texts{&m_before.bookField, &m_before.chapterField, &m_before.verse,
                                               &m_before.text};
  for (const std::string_view* text : texts) m_beforeTexts += *text;
  std::string_view rest = m_beforeTexts;
  for (std::string_view* text : texts) {
    *text = rest.substr(0, text->size());
    rest.remove_prefix(text->size());
  }
}

bool VerseFileReader::Next() {
  std::string_view line;
  if (!m_lines.NextInMemory(line)) {
    KeepTexts();
    if (!m_lines.Next(line)) return false;
  }
  const std::size_t first = line.find('\t');
  const std::string_view rest = first == std::string_view::npos ? std::string_view() : line.substr(first + 1);
  // Nearly every line has the book and the chapter of the one before.
  const bool isSamePlace = m_isPlaceRead && rest.starts_with(m_place);
  const std::size_t placeEnd = isSamePlace ? m_place.size() : PlaceEnd(rest);
  const std::size_t last = FindLastTab(rest);
  if (last == std::string_view::npos || placeEnd > last) {
    const std::string shown = Quoted(line);
    if (TrimBlanks(line).empty()) {
      KeepTexts();
      if (m_lines.IsRestBlank()) return false;
      line = {};
    }
    m_verse.text = line;
    m_lines.Fail(kInvalidProcedureCall, "Five fields separated by tabs were expected: " + shown);
  }
  if (!isSamePlace) KeepAsLastOfPlace();
  m_verse.verse = rest.substr(placeEnd, last - placeEnd);
  m_verse.text = rest.substr(last + 1);
  // Where several lines were taken for one, the first field or the verse holds the ends of the others.
  if (m_verse.verse.size() > kLongestVerse) m_lines.RefuseLineEnds(m_verse.verse);
  if (first > kLongestFirst) m_lines.RefuseLineEnds(line.substr(0, first));
  if (!isSamePlace) TakePlace(rest.substr(0, placeEnd));
  return true;
}

}  // namespace folionet
