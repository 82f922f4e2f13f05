#include "FlowingText.h"

#include <array>
#include <cstdint>
#include <cstring>

#include "Text.h"

namespace folionet {
namespace {

constexpr unsigned char kBomStart = 0xEF;

// The bytes that are not simply passed on.
constexpr std::array<bool, 256> MakeSpecial() {
  std::array<bool, 256> special{};
  for (std::size_t c = 0; c <= ' '; ++c) special[c] = true;
  special['&'] = special['<'] = special['>'] = special[0x7F] = special[kBomStart] = true;
  return special;
}
constexpr std::array<bool, 256> kSpecial = MakeSpecial();

bool IsSpecial(char c) { return kSpecial[static_cast<unsigned char>(c)]; }

// Sixteen bytes that are looked at together.
using Wide = unsigned char __attribute__((vector_size(16)));

// Whether one of the sixteen bytes from `text` on is special, a blank only when a special one or another blank follows.
// Reads seventeen.
bool HasSpecial(const char* text) {
  Wide here{};
  Wide next{};
  std::memcpy(&here, text, sizeof here);
  std::memcpy(&next, text + 1, sizeof next);
  const auto isBlank = (here == ' ') & ((next <= ' ') | (next == 0x7F) | (next == kBomStart));
  const auto isOther = (here < ' ') | (here == 0x7F) | (here == kBomStart);
  const auto isMarkup = (here == '&') | (here == '<') | (here == '>');
  const auto found = isBlank | isOther | isMarkup;
  std::array<std::uint64_t, 2> halves{};
  std::memcpy(halves.data(), &found, sizeof halves);
  return (halves[0] | halves[1]) != 0;
}

// Where the next byte is that is not simply passed on: a single blank between others is.
std::size_t FindSpecial(std::string_view text, std::size_t at) {
  while (at + sizeof(Wide) < text.size() && !HasSpecial(text.data() + at)) at += sizeof(Wide);
  for (; at < text.size(); ++at) {
    if (!IsSpecial(text[at])) continue;
    if (text[at] != ' ' || at + 1 == text.size() || IsSpecial(text[at + 1])) break;
  }
  return at;
}

std::string_view Reference(char c) { return c == '&' ? "&amp;" : c == '<' ? "&lt;" : "&gt;"; }

}  // namespace

bool FlowingText::Add(std::string_view piece) {
  std::size_t at = 0;
  while (at < piece.size()) {
    std::size_t end = IsSpecial(piece[at]) ? at : FindSpecial(piece, at);
    const char c = end < piece.size() ? piece[end] : ' ';
    const bool isReference = c == '&' || c == '<' || c == '>';
    const bool isOther =
        static_cast<unsigned char>(c) == kBomStart && piece.substr(end, kByteOrderMark.size()) != kByteOrderMark;
    if (end > at || isReference || isOther) {
      if (m_isBlankDue && !m_text.empty()) m_text += ' ';
      m_isBlankDue = false;
      m_text.append(piece, at, end - at);
    }
    if (end == piece.size()) break;
    if (isReference) {
      m_text += Reference(c);
    } else if (isOther) {
      m_text += c;
    } else if (static_cast<unsigned char>(c) == kBomStart) {
      end += kByteOrderMark.size() - 1;
    } else {
      m_isBlankDue = true;
    }
    at = end + 1;
  }
  return m_text.size() <= kLongest;
}

std::string WithSingleBlanks(std::string_view text) {
  std::string result;
  bool isBlankDue = false;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte <= ' ' || byte == 0x7F) {
      isBlankDue = true;
      continue;
    }
    if (isBlankDue && !result.empty()) result += ' ';
    isBlankDue = false;
    result += c;
  }
  return result;
}

}  // namespace folionet
