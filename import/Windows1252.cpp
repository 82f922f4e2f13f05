#include "Windows1252.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>

namespace folionet {
namespace {

// The characters of the bytes 0x80 to 0x9F; 0 where there is none.
constexpr std::array<std::uint32_t, 32> kUpperControls = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

// The byte of the character at `at`, which it moves behind it; -1 for none, as for all characters of four bytes.
int ByteAt(std::string_view utf8, std::size_t& at) {
  const auto byte = [&](std::size_t place) {
    return place < utf8.size() ? static_cast<std::uint32_t>(static_cast<unsigned char>(utf8[place])) : 0U;
  };
  const std::uint32_t first = byte(at);
  if (first < 0x80) {
    ++at;
    return static_cast<int>(first);
  }
  const bool isLong = first >= 0xE0;
  const std::uint32_t code = isLong ? (first & 0x0F) << 12 | (byte(at + 1) & 0x3F) << 6 | (byte(at + 2) & 0x3F)
                                    : (first & 0x1F) << 6 | (byte(at + 1) & 0x3F);
  at += isLong ? 3 : 2;
  if (first >= 0xF0) return -1;
  if (code >= 0xA0 && code <= 0xFF) return static_cast<int>(code);
  const auto found = std::find(kUpperControls.begin(), kUpperControls.end(), code);
  return found == kUpperControls.end() ? -1 : static_cast<int>(0x80 + std::distance(kUpperControls.begin(), found));
}

}  // namespace

bool FitsWindows1252(std::string_view utf8) {
  for (std::size_t at = 0; at < utf8.size();) {
    if (ByteAt(utf8, at) < 0) return false;
  }
  return true;
}

std::string ToWindows1252(std::string_view utf8) {
  std::string bytes;
  bytes.reserve(utf8.size());
  for (std::size_t at = 0; at < utf8.size();) bytes += static_cast<char>(ByteAt(utf8, at));
  return bytes;
}

}  // namespace folionet
