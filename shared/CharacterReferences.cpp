#include "CharacterReferences.h"

#include <unicode/utf8.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>

namespace folionet {
namespace {

constexpr UChar32 kFirstOfLatin1 = 0xA0;

constexpr std::array<std::string_view, 96> kLatin1Names{
    "nbsp",   "iexcl",  "cent",   "pound",  "curren", "yen",    "brvbar", "sect",   "uml",    "copy",   "ordf",
    "laquo",  "not",    "shy",    "reg",    "macr",   "deg",    "plusmn", "sup2",   "sup3",   "acute",  "micro",
    "para",   "middot", "cedil",  "sup1",   "ordm",   "raquo",  "frac14", "frac12", "frac34", "iquest", "Agrave",
    "Aacute", "Acirc",  "Atilde", "Auml",   "Aring",  "AElig",  "Ccedil", "Egrave", "Eacute", "Ecirc",  "Euml",
    "Igrave", "Iacute", "Icirc",  "Iuml",   "ETH",    "Ntilde", "Ograve", "Oacute", "Ocirc",  "Otilde", "Ouml",
    "times",  "Oslash", "Ugrave", "Uacute", "Ucirc",  "Uuml",   "Yacute", "THORN",  "szlig",  "agrave", "aacute",
    "acirc",  "atilde", "auml",   "aring",  "aelig",  "ccedil", "egrave", "eacute", "ecirc",  "euml",   "igrave",
    "iacute", "icirc",  "iuml",   "eth",    "ntilde", "ograve", "oacute", "ocirc",  "otilde", "ouml",   "divide",
    "oslash", "ugrave", "uacute", "ucirc",  "uuml",   "yacute", "thorn",  "yuml"};

std::optional<UChar32> NumberedCharacter(std::string_view digits) {
  const bool hex = digits.starts_with('x') || digits.starts_with('X');
  if (hex) digits.remove_prefix(1);
  std::uint32_t number = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number, hex ? 16 : 10);
  const bool isCharacter = number > 0 && number <= 0x10FFFF && !U_IS_SURROGATE(number);
  if (error != std::errc() || end != digits.data() + digits.size() || !isCharacter) return std::nullopt;
  return static_cast<UChar32>(number);
}

// The character that stands between "&" and ";" as `reference`.
std::optional<UChar32> ReferredCharacter(std::string_view reference) {
  if (reference.starts_with('#')) return NumberedCharacter(reference.substr(1));
  if (reference == "amp") return '&';
  if (reference == "lt") return '<';
  if (reference == "gt") return '>';
  if (reference == "quot") return '"';
  if (reference == "apos") return '\'';
  const auto* const found = std::find(kLatin1Names.begin(), kLatin1Names.end(), reference);
  if (found == kLatin1Names.end()) return std::nullopt;
  return kFirstOfLatin1 + static_cast<UChar32>(found - kLatin1Names.begin());
}

}  // namespace

std::string WithoutCharacterReferences(std::string_view text) {
  std::string resolved;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const std::size_t end = text[at] == '&' ? text.find(';', at) : std::string_view::npos;
    const auto character =
        end == std::string_view::npos ? std::nullopt : ReferredCharacter(text.substr(at + 1, end - at - 1));
    if (!character) {
      resolved += text[at];
      continue;
    }
    std::array<char, U8_MAX_LENGTH> bytes{};
    std::size_t length = 0;
    U8_APPEND_UNSAFE(bytes.data(), length, *character);
    resolved.append(bytes.data(), length);
    at = end;
  }
  return resolved;
}

}  // namespace folionet
