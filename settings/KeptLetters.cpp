#include "KeptLetters.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <utility>
#include <vector>

#include "Text.h"
#include "Utf8.h"

namespace folionet {
namespace {

using Parts = std::vector<std::string_view>;

// Of a text with more changes than these, line by line and word by word, none are found.
constexpr int kMostChanges = 1000;

Parts Lines(std::string_view text) {
  Parts lines;
  while (!text.empty()) {
    const std::size_t length = std::min(text.find('\n'), text.size() - 1) + 1;
    lines.push_back(text.substr(0, length));
    text.remove_prefix(length);
  }
  return lines;
}

bool IsOfWord(char c) { return static_cast<unsigned char>(c) >= 0x80 || IsLetterOrDigit(c); }

// The length of the decimal reference that a text begins with; 0 for none.
std::size_t ReferenceLength(std::string_view text) {
  if (!text.starts_with("&#")) return 0;
  const std::size_t end = text.find_first_not_of("0123456789", 2);
  return end != std::string_view::npos && end > 2 && text[end] == ';' ? end + 1 : 0;
}

Parts Words(std::string_view text) {
  Parts words;
  while (!text.empty()) {
    std::size_t length = ReferenceLength(text);
    if (length == 0) {
      const auto end = std::find_if_not(text.begin(), text.end(), IsOfWord);
      length = std::max<std::size_t>(static_cast<std::size_t>(end - text.begin()), 1);
    }
    words.push_back(text.substr(0, length));
    text.remove_prefix(length);
  }
  return words;
}

// Two parts that are alike, by their places.
struct Match {
  std::size_t old;
  std::size_t now;
};

// The way from one list of parts to another with the fewest changes, found step by step as by Myers: furthest[k] is how
// far into the old parts a way leads that has left out k parts more of them than it has taken in.
class ShortestEdit {
 public:
  ShortestEdit(const Parts& old, const Parts& now) : m_old(old), m_now(now) {}

  // What stays, in order; nothing where too much is changed.
  std::vector<Match> Stays() {
    const int most = std::min(static_cast<int>(m_old.size() + m_now.size()), kMostChanges);
    std::vector<int> furthest(At(most, most) + 2, 0);
    std::vector<std::vector<int>> steps;
    for (int changes = 0; changes <= most; ++changes) {
      steps.push_back(furthest);
      for (int k = -changes; k <= changes; k += 2) {
        int& reached = furthest[At(k, most)];
        reached = Alike(From(furthest, changes, k, most), k);
        if (reached >= Size(m_old) && reached - k >= Size(m_now)) return WalkBack(steps, changes, most);
      }
    }
    return {};
  }

 private:
  static std::size_t At(std::ptrdiff_t k, std::ptrdiff_t most) { return static_cast<std::size_t>(k + most + 1); }
  static int Size(const Parts& parts) { return static_cast<int>(parts.size()); }

  static bool TakesIn(const std::vector<int>& furthest, int changes, int k, int most) {
    return k == -changes || (k != changes && furthest[At(k - 1, most)] < furthest[At(k + 1, most)]);
  }

  static int From(const std::vector<int>& furthest, int changes, int k, int most) {
    return TakesIn(furthest, changes, k, most) ? furthest[At(k + 1, most)] : furthest[At(k - 1, most)] + 1;
  }

  int Alike(int old, int k) const {
    while (old < Size(m_old) && old - k < Size(m_now) &&
           m_old[static_cast<std::size_t>(old)] == m_now[static_cast<std::size_t>(old - k)]) {
      ++old;
    }
    return old;
  }

  std::vector<Match> WalkBack(const std::vector<std::vector<int>>& steps, int changes, int most) const {
    std::vector<Match> stays;
    int old = Size(m_old);
    int k = old - Size(m_now);
    for (; changes >= 0; --changes) {
      const std::vector<int>& furthest = steps[static_cast<std::size_t>(changes)];
      const int start = changes == 0 ? 0 : From(furthest, changes, k, most);
      for (; old > start; --old) {
        stays.push_back({static_cast<std::size_t>(old - 1), static_cast<std::size_t>(old - 1 - k)});
      }
      const bool takesIn = TakesIn(furthest, changes, k, most);
      k += takesIn ? 1 : -1;
      old = takesIn ? start : start - 1;
    }
    std::reverse(stays.begin(), stays.end());
    return stays;
  }

  const Parts& m_old;
  const Parts& m_now;
};

class LetterKeeper {
 public:
  LetterKeeper(std::string_view whole, const CodePage& codePage) {
    ForEachUtf8(whole, [&](const Piece& letter) {
      if (!codePage.Holds(letter.bytes)) m_letters.emplace(m_shown.size(), letter.bytes);
      m_shown += codePage.Decode(codePage.Encode(letter.bytes));
    });
  }

  std::string Of(std::string_view edited) {
    Compare(Lines(m_shown), Lines(edited), true);
    return std::move(m_text);
  }

 private:
  void Compare(const Parts& old, const Parts& now, bool isByLine) {
    std::size_t nextOld = 0;
    std::size_t nextNow = 0;
    const auto change = [&](std::size_t endOld, std::size_t endNow) {
      if (isByLine) {
        Compare(Words(Span(old, nextOld, endOld)), Words(Span(now, nextNow, endNow)), false);
      } else {
        m_text += Span(now, nextNow, endNow);
      }
    };
    for (const Match& match : ShortestEdit(old, now).Stays()) {
      change(match.old, match.now);
      Keep(old[match.old]);
      nextOld = match.old + 1;
      nextNow = match.now + 1;
    }
    change(old.size(), now.size());
  }

  // The text of the parts from one to before another, which follow each other.
  static std::string_view Span(const Parts& parts, std::size_t from, std::size_t to) {
    if (from >= to) return {};
    const char* const begin = parts[from].data();
    return {begin, static_cast<std::size_t>(parts[to - 1].data() + parts[to - 1].size() - begin)};
  }

  // Adds a part of what the editor had, with its letters.
  void Keep(std::string_view part) {
    auto at = static_cast<std::size_t>(part.data() - m_shown.data());
    const std::size_t end = at + part.size();
    for (auto letter = m_letters.lower_bound(at); letter != m_letters.end() && letter->first < end; ++letter) {
      m_text.append(m_shown, at, letter->first - at).append(letter->second);
      at = letter->first + ReferenceLength(std::string_view(m_shown).substr(letter->first));
    }
    m_text.append(m_shown, at, end - at);
  }

  std::string m_shown;
  std::map<std::size_t, std::string_view> m_letters;  // by the place of its reference in what is shown
  std::string m_text;
};

}  // namespace

std::string WithLetters(std::string_view whole, const CodePage& codePage, std::string_view edited) {
  return LetterKeeper(whole, codePage).Of(edited);
}

}  // namespace folionet
