#pragma once

#include <unicode/utf8.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace folionet {

// Texts in UTF-8 as characters of Unicode. Text.h has what only ASCII is needed for, CodePage.h the other charsets.

inline constexpr UChar32 kUndecodable = -1;

// How many characters of ASCII a text begins with; eight are looked at together.
std::size_t AsciiLength(std::string_view text);

bool IsAscii(std::string_view text);

// One character of a text, or one byte of it that is no character.
struct Piece {
  UChar32 character;  // kUndecodable for a lone byte
  std::string_view bytes;
};

// The character at the start of a text, with its length in bytes; negative for a byte that is no character.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wconversion"  // ICU's macro narrows on purpose
inline UChar32 FirstUtf8(std::string_view text, int32_t& length) {
  UChar32 character = 0;
  length = 0;
  U8_NEXT(text.data(), length, static_cast<int32_t>(text.size()), character);
  return character;
}
#pragma GCC diagnostic pop

// As much of a UTF-8 text as `longest` bytes hold, no character of it cut.
std::string_view CutToBytes(std::string_view text, std::size_t longest);

// Splits UTF-8 into characters, calling take(Piece) for each.
template <typename Take>
void ForEachUtf8(std::string_view text, Take take) {
  std::size_t at = 0;
  while (at < text.size()) {
    int32_t next = 0;
    const UChar32 character = FirstUtf8(text.substr(at, U8_MAX_LENGTH), next);
    const std::size_t length = character < 0 ? 1 : static_cast<std::size_t>(next);
    take(Piece{character < 0 ? kUndecodable : character, text.substr(at, length)});
    at += length;
  }
}

// How many bytes of well-formed UTF-8 a text begins with; and whether it is that as a whole.
std::size_t Utf8Length(std::string_view text);
bool IsUtf8(std::string_view text);

// Whether the first letter of a UTF-8 text is of a script that is written from right to left.
bool BeginsRightToLeft(std::string_view text);

// A UTF-8 text without letter case, for comparing; bytes that are not UTF-8 stay.
std::string FoldCase(std::string_view text);

// Two UTF-8 texts compared ignoring case, character by character.
bool EqualIgnoringCase(std::string_view left, std::string_view right);

}  // namespace folionet
