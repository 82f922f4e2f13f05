#include "Windows1252.h"

#include <QString>
#include <algorithm>
#include <array>
#include <iterator>

namespace folionet::tools {

namespace {

// The characters of the bytes 0x80 to 0x9F; 0 where there is none.
constexpr std::array<char16_t, 32> kUpperControls = {0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                     0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,
                                                     0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                     0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

}  // namespace

std::optional<std::string> ToWindows1252(std::string_view utf8) {
  // Bytes that are no UTF-8 become a replacement character here, which windows-1252 lacks.
  const QString text = QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
  std::string bytes;
  for (const QChar character : text) {
    const char16_t code = character.unicode();
    if (code < 0x80 || (code >= 0xA0 && code <= 0xFF)) {
      bytes += static_cast<char>(code);
      continue;
    }
    const auto found = std::ranges::find(kUpperControls, code);
    if (found == kUpperControls.end()) return std::nullopt;
    bytes += static_cast<char>(0x80 + std::distance(kUpperControls.begin(), found));
  }
  return bytes;
}

}  // namespace folionet::tools
