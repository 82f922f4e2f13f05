#include "Utf16.h"

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
  constexpr char32_t kHighest = 0xD800;  // surrogates: the higher ten bits, then the lower ones
  constexpr char32_t kLowest = 0xDC00;
  constexpr char32_t kTen = 0x400;
  constexpr char32_t kBeyond = 0x10000;
  constexpr char32_t kByte = 0x100;
  std::string text;
  char32_t first = 0;
  for (std::size_t at = 0; at < bytes.size(); at += 2) {
    const char32_t unit = static_cast<unsigned char>(bytes[at + high]) * kByte +  //
                          static_cast<unsigned char>(bytes[at + 1 - high]);
    const bool isSecond = unit >= kLowest && unit < kLowest + kTen;
    if (isSecond != (first != 0)) fail();
    if (isSecond) {
      AppendUtf8(text, kBeyond + (first - kHighest) * kTen + (unit - kLowest));
      first = 0;
    } else if (unit >= kHighest && unit < kLowest) {
      first = unit;
    } else {
      AppendUtf8(text, unit);
    }
  }
  if (first != 0) fail();
  return text;
}

}  // namespace folionet
