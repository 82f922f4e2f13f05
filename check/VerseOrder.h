#pragma once

#include <optional>
#include <set>
#include <string>
#include <string_view>

#include "Sentence.h"

namespace folionet {

// The verses that the verse field of a line names: "5"; "1-2", several in one line; "3a", a part of one.
struct VerseSpan {
  int first = 0;
  int last = 0;
  std::string part;  // the letter of a part; empty for whole verses
};

// Nothing for a field of another form.
std::optional<VerseSpan> ReadVerseSpan(std::string_view field);

// Follows the verses of one chapter, and tells those that are doubled, missing or out of order.
class VerseOrder {
 public:
  struct Fault {
    const char* kind = nullptr;
    Sentence what;  // its %1 and %2 are the book and the chapter, which whoever asks puts before its arguments
  };

  void Begin();

  // What is wrong with this verse after those before it, if anything.
  std::optional<Fault> Next(std::string_view field);

  // How many verses there were since Begin, each counted once.
  int Covered() const { return static_cast<int>(m_seen.size()); }

 private:
  bool IsDoubled(const VerseSpan& span);

  std::set<int> m_seen;
  std::set<std::string> m_parts;  // "3a"; "3" stands for a whole verse
  int m_last = 0;
};

}  // namespace folionet
