#include "VerseOrder.h"

#include <algorithm>

#include "Numbers.h"
#include "Text.h"

namespace folionet {
namespace {

struct TakenVerse {
  int number = 0;
  char part = '\0';
};

// Takes a number up to `highest` and the letter behind it off the front of `rest`.
std::optional<TakenVerse> TakeVerse(std::string_view& rest, int highest) {
  const std::size_t length = std::min(rest.find_first_not_of("0123456789"), rest.size());
  const IntegerReading number = ReadInteger(rest.substr(0, length), 0, highest);
  rest.remove_prefix(length);
  if (number.error != 0) return std::nullopt;
  TakenVerse verse{static_cast<int>(number.value)};
  if (!rest.empty() && AsciiLower(rest.front()) >= 'a' && AsciiLower(rest.front()) <= 'z') {
    verse.part = rest.front();
    rest.remove_prefix(1);
  }
  return verse;
}

}  // namespace

std::optional<VerseOrder::Span> VerseOrder::ReadSpan(std::string_view field) {
  constexpr int kHighest = kNumbers - 1;
  std::string_view rest = TrimBlanks(field);
  const auto first = TakeVerse(rest, kHighest);
  if (!first) return std::nullopt;
  if (rest.empty()) return Span{first->number, first->number, first->part};
  if (rest.front() != '-') return std::nullopt;
  rest.remove_prefix(1);
  const auto last = TakeVerse(rest, kHighest);
  if (!last || !rest.empty() || last->number <= first->number) return std::nullopt;
  return Span{first->number, last->number};
}

// Two parts of a verse are no doubled verse.
bool VerseOrder::IsDoubled(const Span& span) {
  bool isDoubled = false;
  for (int verse = span.first; verse <= span.last; ++verse) {
    const bool isNewPart = span.part != '\0' && m_parts.emplace(verse, span.part).second;
    const auto place = static_cast<std::size_t>(verse);
    isDoubled = isDoubled || (m_seen[place] && !isNewPart);
    m_seen[place] = true;
  }
  return isDoubled;
}

std::optional<VerseOrder::Found> VerseOrder::Next(std::string_view field) {
  const auto span = ReadSpan(field);
  if (!span) return Found{Oddity::kBadNumber};
  const int before = m_last;
  m_last = std::max(m_last, span->last);
  if (IsDoubled(*span)) return Found{Oddity::kDoubled};
  if (span->first < before) return Found{Oddity::kOutOfOrder};
  if (span->first <= before + 1) return std::nullopt;
  return Found{Oddity::kMissing, before + 1, span->first - 1};
}

}  // namespace folionet
