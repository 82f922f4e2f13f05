#include "Utf16.h"

#include <unicode/utf16.h>

#include "RunTimeError.h"
#include "Text.h"

namespace folionet {
namespace {

constexpr std::string_view kLittleMark = "\xFF\xFE";
constexpr std::string_view kBigMark = "\xFE\xFF";

bool IsBig(std::string_view bytes) { return bytes.starts_with(kBigMark) || bytes[0] == '\0'; }

}  // namespace

bool LooksUtf16(std::string_view bytes) {
  if (bytes.starts_with(kLittleMark) || bytes.starts_with(kBigMark)) return true;
  if (bytes.size() < 4) return false;
  const auto isAscii = [&](std::size_t high) {
    return bytes[high] == '\0' && bytes[high + 2] == '\0' && bytes[1 - high] != '\0' && bytes[3 - high] != '\0';
  };
  return isAscii(0) || isAscii(1);
}

std::string FromUtf16(std::string_view bytes, const std::string& path) {
  if (!LooksUtf16(bytes)) return std::string(bytes);
  const std::size_t high = IsBig(bytes) ? 0 : 1;
  if (bytes.starts_with(kLittleMark) || bytes.starts_with(kBigMark)) bytes.remove_prefix(kLittleMark.size());
  const auto fail = [&] {
    throw RunTimeError(kTypeMismatch, path, "A character of its UTF-16 is cut off. Save it as UTF-8.");
  };
  if (bytes.size() % 2 != 0) fail();
  std::u16string units;
  for (std::size_t at = 0; at < bytes.size(); at += 2) {
    units += static_cast<char16_t>(static_cast<unsigned char>(bytes[at + high]) << 8U |
                                   static_cast<unsigned char>(bytes[at + 1 - high]));
  }
  std::string text;
  for (std::size_t at = 0; at < units.size();) {
    UChar32 character = 0;
    U16_NEXT(units, at, units.size(), character);
    if (U_IS_SURROGATE(character)) fail();
    AppendUtf8(text, static_cast<char32_t>(character));
  }
  return text;
}

}  // namespace folionet
