#pragma once

#include <bitset>
#include <cstddef>
#include <optional>
#include <set>
#include <string_view>
#include <utility>

namespace folionet {

// Follows the verses of one chapter by the verse fields of its lines: "5"; "1-2", several in one line; "3a", a part of
// one; "0", a title.
class VerseOrder {
 public:
  enum class Oddity { kBadNumber, kDoubled, kOutOfOrder, kMissing };
  struct Found {
    Oddity oddity = Oddity::kBadNumber;
    int first = 0;  // the verses that are missing before this one
    int last = 0;
  };

  // What is odd with this verse after those before it, if anything.
  std::optional<Found> Next(std::string_view field);

  // How many verses there were, each counted once.
  int Covered() const { return static_cast<int>(m_seen.count()); }

 private:
  static constexpr std::size_t kNumbers = 1000;

  // The verses that a field names.
  struct Span {
    int first = 0;
    int last = 0;
    char part = '\0';  // the letter of a part; none for whole verses
  };

  static std::optional<Span> ReadSpan(std::string_view field);
  bool IsDoubled(const Span& span);

  std::bitset<kNumbers> m_seen;
  std::set<std::pair<int, char>> m_parts;
  int m_last = 0;
};

}  // namespace folionet
