#include "Text.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "CodePage.h"
#include "Utf8.h"

namespace folionet {

std::string_view Trimmed(std::string_view text, std::string_view blanks) {
  const std::size_t first = text.find_first_not_of(blanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::vector<std::string_view> SplitAt(std::string_view text, std::string_view separator) {
  std::vector<std::string_view> parts;
  if (text.empty()) return parts;
  for (std::size_t end = text.find(separator); end != std::string_view::npos; end = text.find(separator)) {
    parts.push_back(text.substr(0, end));
    text.remove_prefix(end + separator.size());
  }
  parts.push_back(text);
  return parts;
}

bool IsOneOf(std::string_view text, std::initializer_list<std::string_view> texts) {
  return std::find(texts.begin(), texts.end(), text) != texts.end();
}

std::string AsciiLower(std::string_view text) {
  std::string lower(text);
  std::transform(lower.begin(), lower.end(), lower.begin(), [](char c) { return AsciiLower(c); });
  return lower;
}

int HexDigit(char c) {
  if (IsDigit(c)) return c - '0';
  const char lower = AsciiLower(c);
  return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

std::string TwoHexDigits(unsigned char value) {
  constexpr char kDigits[] = "0123456789ABCDEF";
  return {kDigits[value >> 4U], kDigits[value & 15U]};
}

void AppendUtf8(std::string& text, char32_t character) {
  if (character > 0x10FFFF || U_IS_SURROGATE(character)) character = 0xFFFD;
  std::array<char, U8_MAX_LENGTH> bytes{};
  std::size_t length = 0;
  U8_APPEND_UNSAFE(bytes.data(), length, character);
  text.append(bytes.data(), length);
}

bool IsControl(std::string_view text, std::size_t at) {
  const auto byte = static_cast<unsigned char>(text[at]);
  const auto next = static_cast<unsigned char>(at + 1 < text.size() ? text[at + 1] : 0);
  return byte < 0x20 || byte == 0x7F || (byte == 0xC2 && next >= 0x80 && next <= 0x9F);
}

std::string InOneLine(std::string_view text) {
  constexpr std::string_view kSeparators[] = {"\u2028", "\u2029"};  // of lines and of paragraphs
  std::string line;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const std::string_view rest = text.substr(i);
    if (rest.starts_with(kSeparators[0]) || rest.starts_with(kSeparators[1])) {
      line += ' ';
      i += kSeparators[0].size() - 1;
    } else if (IsControl(text, i)) {
      line += ' ';
      if (text[i] == '\xC2' || rest.starts_with("\r\n")) ++i;
    } else {
      line += text[i];
    }
  }
  return line;
}

namespace {

// What turns the order of the letters behind it, parts lines or is not seen.
bool IsFormat(std::int32_t character) {
  return (character >= 0x2028 && character <= 0x202E) || (character >= 0x2066 && character <= 0x2069) ||
         character == 0xFEFF;
}

}  // namespace

std::string Escaped(std::string_view text, std::string_view kept) {
  std::string shown;
  for (std::size_t i = 0; i < text.size();) {
    int32_t length = 0;
    const std::int32_t character = FirstUtf8(text.substr(i, U8_MAX_LENGTH), length);
    const bool isCharacter = character >= 0;
    const std::size_t size = isCharacter ? static_cast<std::size_t>(length) : 1;
    // A terminal that knows no UTF-8 obeys the bytes from 0x80 on too.
    const auto byte = static_cast<unsigned char>(text[i]);
    const bool isObeyed = IsControl(text, i) || (!isCharacter && byte >= 0x80 && byte <= 0x9F);
    const std::string_view piece = text.substr(i, size);
    i += size;
    if (IsFormat(character)) {
      shown += "\\u" + TwoHexDigits(static_cast<unsigned char>(character >> 8)) +
               TwoHexDigits(static_cast<unsigned char>(character & 0xFF));
      continue;
    }
    if (!isObeyed || kept.find(piece[0]) != std::string_view::npos) {
      shown += piece;
      continue;
    }
    switch (piece.back()) {
      case '\n':
        shown += "\\n";
        break;
      case '\r':
        shown += "\\r";
        break;
      case '\t':
        shown += "\\t";
        break;
      default:
        shown += "\\x" + TwoHexDigits(static_cast<unsigned char>(piece.back()));
    }
  }
  return shown;
}

std::string Quoted(std::string_view text) {
  constexpr std::size_t kShown = 60;
  const std::string_view part = CutToBytes(text, kShown);
  const std::string shown = IsUtf8(part) ? std::string(part) : CodePage().DecodeForDisplay(text.substr(0, kShown));
  return "\"" + Escaped(shown) + (text.size() > kShown ? "..." : "") + "\"";
}

}  // namespace folionet
