#include "Utf8.h"

#include <unicode/uchar.h>

#include <array>
#include <cstdint>
#include <cstring>

#include "Text.h"

namespace folionet {

std::size_t AsciiLength(std::string_view text) {
  constexpr std::uint64_t kHighBits = 0x8080808080808080;
  std::size_t length = 0;
  for (std::uint64_t eight = 0; length + sizeof eight <= text.size(); length += sizeof eight) {
    std::memcpy(&eight, text.data() + length, sizeof eight);
    if ((eight & kHighBits) != 0) break;
  }
  while (length < text.size() && static_cast<unsigned char>(text[length]) < 0x80) ++length;
  return length;
}

// Many bytes at a time: nearly every text is looked at to its end.
bool IsAscii(std::string_view text) {
  std::array<std::uint64_t, 4> part{};
  std::uint64_t all = 0;
  for (; text.size() >= sizeof(part); text.remove_prefix(sizeof(part))) {
    std::memcpy(part.data(), text.data(), sizeof(part));
    all |= part[0] | part[1] | part[2] | part[3];
  }
  for (const char c : text) all |= static_cast<unsigned char>(c);
  return (all & 0x8080808080808080U) == 0;
}

std::string_view CutToBytes(std::string_view text, std::size_t longest) {
  if (text.size() <= longest) return text;
  while (longest > 0 && (static_cast<unsigned char>(text[longest]) & 0xC0) == 0x80) --longest;
  return text.substr(0, longest);
}

std::size_t Utf8Length(std::string_view text) {
  for (std::size_t done = 0;;) {
    done += AsciiLength(text.substr(done));
    int32_t length = 0;
    if (done == text.size() || FirstUtf8(text.substr(done, U8_MAX_LENGTH), length) < 0) return done;
    done += static_cast<std::size_t>(length);
  }
}

bool IsUtf8(std::string_view text) { return Utf8Length(text) == text.size(); }

bool BeginsRightToLeft(std::string_view text) {
  while (!text.empty()) {
    int32_t length = 0;
    const UChar32 character = FirstUtf8(text.substr(0, U8_MAX_LENGTH), length);
    const UCharDirection direction = u_charDirection(character);
    if (direction == U_RIGHT_TO_LEFT || direction == U_RIGHT_TO_LEFT_ARABIC) return true;
    if (direction == U_LEFT_TO_RIGHT) return false;
    text.remove_prefix(static_cast<std::size_t>(length));
  }
  return false;
}

std::string FoldCase(std::string_view text) {
  std::string folded;
  ForEachUtf8(text, [&](const Piece& piece) {
    if (piece.character == kUndecodable) {
      folded += piece.bytes;
    } else {
      AppendUtf8(folded, static_cast<char32_t>(u_foldCase(piece.character, U_FOLD_CASE_DEFAULT)));
    }
  });
  return folded;
}

bool EqualIgnoringCase(std::string_view left, std::string_view right) {
  return left == right || FoldCase(left) == FoldCase(right);
}

}  // namespace folionet
