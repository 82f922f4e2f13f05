#include "PageCharset.h"

#include <unicode/utf8.h>

#include <algorithm>
#include <array>

#include "Addresses.h"
#include "HtmlReader.h"
#include "Text.h"
#include "Utf8.h"

namespace folionet {
namespace {

// Elements that may stand in the head of a page.
constexpr std::array<std::string_view, 10> kHeadElements{"html", "head",  "title",  "meta",     "link",
                                                         "base", "style", "script", "noscript", "object"};

constexpr std::size_t kAlwaysSearched = 1024;

// The character for the byte 0 that does not decode; the others follow it. Where a page holds one of them itself, its
// bytes are taken so too, for what is written to be had back always.
constexpr UChar32 kFirstByte = 0x10FE00;
bool IsByte(UChar32 character) { return character >= kFirstByte && character < kFirstByte + 0x100; }

// What follows "charset" and "=" in a text such as "text/html; charset=utf-8".
std::string CharsetInContent(std::string_view content) {
  const std::string lower = AsciiLower(content);
  std::string_view rest = lower;
  for (std::size_t at = rest.find("charset"); at != std::string_view::npos; at = rest.find("charset")) {
    rest = TrimmedAsHtml(rest.substr(at + 7));
    if (!rest.starts_with('=')) continue;
    rest = TrimmedAsHtml(rest.substr(1));
    const bool isQuoted = rest.starts_with('"') || rest.starts_with('\'');
    const std::string_view end = isQuoted ? rest.substr(0, 1) : "; \t\r\n\f";
    if (isQuoted) rest.remove_prefix(1);
    return std::string(rest.substr(0, rest.find_first_of(end)));
  }
  return {};
}

std::string DeclaredCharset(const HtmlTag& tag) {
  const std::string* const charset = tag.Find("charset");
  if (charset != nullptr) return std::string(TrimmedAsHtml(*charset));
  const std::string* const kind = tag.Find("http-equiv");
  const std::string* const content = tag.Find("content");
  if (kind == nullptr || content == nullptr || !EqualIgnoringCase(*kind, "content-type")) return {};
  return CharsetInContent(*content);
}

}  // namespace

bool IsUtf16(std::string_view page) { return page.starts_with("\xFF\xFE") || page.starts_with("\xFE\xFF"); }

std::string FindPageCharset(std::string_view page) {
  if (page.starts_with(kByteOrderMark)) return "utf-8";
  std::string ascii(page);
  std::replace_if(
      ascii.begin(), ascii.end(), [](char c) { return static_cast<unsigned char>(c) >= 0x80; }, '?');
  std::string found;
  bool isHead = true;
  ReadHtml(ascii, [&](const HtmlTag& tag) {
    isHead = isHead && std::find(kHeadElements.begin(), kHeadElements.end(), tag.element) != kHeadElements.end();
    if (!isHead && tag.end > kAlwaysSearched) return false;
    if (tag.element == "meta") found = DeclaredCharset(tag);
    return found.empty();
  });
  if (EqualIgnoringCase(found.substr(0, 6), "utf-16")) return "utf-8";
  return found.empty() ? "windows-1252" : found;
}

std::string DecodePage(std::string_view page, const CodePage& codePage) {
  std::string text;
  ForEachUtf8(codePage.Decode(page), [&](const Piece& piece) {
    if (piece.character >= 0 && !IsByte(piece.character)) {
      text += piece.bytes;
    } else {
      for (const char byte : piece.bytes)
        AppendUtf8(text, static_cast<char32_t>(kFirstByte) + static_cast<unsigned char>(byte));
    }
  });
  return text;
}

std::string AsItIsWritten(std::string_view text) {
  std::string written;
  ForEachUtf8(text, [&](const Piece& piece) {
    if (IsByte(piece.character)) {
      written += static_cast<char>(piece.character - kFirstByte);
    } else {
      written += piece.bytes;
    }
  });
  return written;
}

std::string AsBrowsersRead(std::string_view text) {
  std::string read;
  ForEachUtf8(AsItIsWritten(text), [&](const Piece& piece) { read += piece.character < 0 ? "\uFFFD" : piece.bytes; });
  return read;
}

}  // namespace folionet
