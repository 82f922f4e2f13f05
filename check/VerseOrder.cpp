#include "VerseOrder.h"

#include <algorithm>

#include "Numbers.h"
#include "Text.h"

namespace folionet {
namespace {

struct TakenVerse {
  int number = 0;  // 0 when there was none
  std::string_view part{};
};

// Takes a number and the letter behind it off the front of `rest`.
TakenVerse TakeVerse(std::string_view& rest) {
  const std::size_t length = std::min(rest.find_first_not_of("0123456789"), rest.size());
  const IntegerReading number = ReadInteger(rest.substr(0, length), 1, kInt16Max);
  rest.remove_prefix(length);
  if (number.error != 0) return {};
  const bool hasLetter = !rest.empty() && AsciiLower(rest.front()) >= 'a' && AsciiLower(rest.front()) <= 'z';
  const std::string_view part = rest.substr(0, hasLetter ? 1 : 0);
  rest.remove_prefix(part.size());
  return {static_cast<int>(number.value), part};
}

}  // namespace

std::optional<VerseSpan> ReadVerseSpan(std::string_view field) {
  std::string_view rest = TrimBlanks(field);
  const TakenVerse first = TakeVerse(rest);
  VerseSpan span;
  span.first = first.number;
  span.last = span.first;
  span.part = first.part;
  if (span.first == 0) return std::nullopt;
  if (rest.empty()) return span;
  if (rest.front() != '-') return std::nullopt;
  rest.remove_prefix(1);
  span.last = TakeVerse(rest).number;
  if (!rest.empty() || span.last <= span.first) return std::nullopt;
  span.part.clear();
  return span;
}

void VerseOrder::Begin() {
  m_seen.clear();
  m_parts.clear();
  m_last = 0;
}

// Two parts of a verse are no doubled verse.
bool VerseOrder::IsDoubled(const VerseSpan& span) {
  bool isDoubled = false;
  for (int verse = span.first; verse <= span.last; ++verse) {
    const bool isNewPart = m_parts.insert(std::to_string(verse) + span.part).second;
    isDoubled = (!m_seen.insert(verse).second && (span.part.empty() || !isNewPart)) || isDoubled;
  }
  return isDoubled;
}

std::optional<VerseOrder::Fault> VerseOrder::Next(std::string_view field) {
  const auto span = ReadVerseSpan(field);
  if (!span) {
    return Fault{"bad-verse", {"Book %1 chapter %2: The number of a verse was expected: %3", {Quoted(field)}}};
  }
  const int before = m_last;
  m_last = std::max(m_last, span->last);
  const std::string name(TrimBlanks(field));
  if (IsDoubled(*span)) return Fault{"doubled-verse", {"Book %1 chapter %2: Verse %3 is doubled.", {name}}};
  if (span->first < before) {
    return Fault{"verse-order", {"Book %1 chapter %2: Verse %3 is out of order.", {name}}};
  }
  if (span->first <= before + 1) return std::nullopt;
  const std::string missing = std::to_string(before + 1);
  if (span->first == before + 2) return Fault{"missing-verse", {"Book %1 chapter %2: Missing: verse %3", {missing}}};
  return Fault{"missing-verse",
               {"Book %1 chapter %2: Missing: verse %3 to %4", {missing, std::to_string(span->first - 1)}}};
}

}  // namespace folionet
