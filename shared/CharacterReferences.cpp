#include "CharacterReferences.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <iterator>

#include "CodePage.h"
#include "Text.h"

namespace folionet {
namespace {

// Without pointers, so that a start of the program has nothing to do for it.
struct HtmlName {
  char name[32];
  char letters[8];
  bool isWithoutSemicolon;
};

constexpr HtmlName kHtmlNames[] = {
#include "HtmlNames.inc"
};

// `rest` stands behind "&#". Adds the character and gives the length of its number; 0 for none.
std::size_t AddNumbered(std::string_view rest, std::string& text) {
  const std::size_t prefix = rest.starts_with('x') || rest.starts_with('X') ? 1 : 0;
  const auto isOfNumber = [&](char c) { return prefix == 1 ? HexDigit(c) >= 0 : IsDigit(c); };
  const auto* const end = std::find_if_not(rest.begin() + prefix, rest.end(), isOfNumber);
  const auto length = static_cast<std::size_t>(end - rest.begin());
  if (length == prefix) return 0;
  std::uint32_t number = 0;
  const auto [last, error] = std::from_chars(rest.data() + prefix, rest.data() + length, number, prefix == 1 ? 16 : 10);
  if (error != std::errc() || number == 0) number = 0xFFFD;
  if (number >= 0x80 && number < 0xA0) {
    thread_local const CodePage windows1252;
    text += windows1252.Decode(std::string(1, static_cast<char>(number)));
  } else {
    AppendUtf8(text, number);
  }
  return length;
}

// `rest` stands behind "&". Adds the letters and gives the length of their name; 0 for none.
std::size_t AddNamed(std::string_view rest, std::string& text) {
  const auto* const end = std::find_if_not(rest.begin(), rest.end(), IsLetterOrDigit);
  const std::string_view name(rest.begin(), static_cast<std::size_t>(end - rest.begin()));
  const auto* const found =
      std::lower_bound(std::begin(kHtmlNames), std::end(kHtmlNames), name,
                       [](const HtmlName& row, std::string_view wanted) { return row.name < wanted; });
  if (found == std::end(kHtmlNames) || found->name != name) return 0;
  const char next = end == rest.end() ? '\0' : *end;
  if (next != ';' && (next == '=' || !found->isWithoutSemicolon)) return 0;
  text += found->letters;
  return name.size();
}

}  // namespace

std::string WithoutCharacterReferences(std::string_view text) {
  std::string resolved;
  while (!text.empty()) {
    const std::size_t at = text.find('&');
    resolved += text.substr(0, at);
    if (at == std::string_view::npos) break;
    text.remove_prefix(at + 1);
    const bool isNumber = text.starts_with('#');
    const std::size_t length = isNumber ? AddNumbered(text.substr(1), resolved) : AddNamed(text, resolved);
    if (length == 0) {
      resolved += '&';
      continue;
    }
    text.remove_prefix(length + (isNumber ? 1 : 0));
    if (text.starts_with(';')) text.remove_prefix(1);
  }
  return resolved;
}

}  // namespace folionet
