#include "CharacterReferences.h"

#include <unicode/utf8.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <iterator>
#include <optional>
#include <utility>

#include "Text.h"

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

// The other characters of HTML 4 that have a name.
constexpr std::pair<std::string_view, char16_t> kNames[] = {
    {"Alpha", 0x0391},   {"Beta", 0x0392},    {"Chi", 0x03A7},     {"Dagger", 0x2021},  {"Delta", 0x0394},
    {"Epsilon", 0x0395}, {"Eta", 0x0397},     {"Gamma", 0x0393},   {"Iota", 0x0399},    {"Kappa", 0x039A},
    {"Lambda", 0x039B},  {"Mu", 0x039C},      {"Nu", 0x039D},      {"OElig", 0x0152},   {"Omega", 0x03A9},
    {"Omicron", 0x039F}, {"Phi", 0x03A6},     {"Pi", 0x03A0},      {"Prime", 0x2033},   {"Psi", 0x03A8},
    {"Rho", 0x03A1},     {"Scaron", 0x0160},  {"Sigma", 0x03A3},   {"Tau", 0x03A4},     {"Theta", 0x0398},
    {"Upsilon", 0x03A5}, {"Xi", 0x039E},      {"Yuml", 0x0178},    {"Zeta", 0x0396},    {"alefsym", 0x2135},
    {"alpha", 0x03B1},   {"and", 0x2227},     {"ang", 0x2220},     {"asymp", 0x2248},   {"bdquo", 0x201E},
    {"beta", 0x03B2},    {"bull", 0x2022},    {"cap", 0x2229},     {"chi", 0x03C7},     {"circ", 0x02C6},
    {"clubs", 0x2663},   {"cong", 0x2245},    {"crarr", 0x21B5},   {"cup", 0x222A},     {"dArr", 0x21D3},
    {"dagger", 0x2020},  {"darr", 0x2193},    {"delta", 0x03B4},   {"diams", 0x2666},   {"empty", 0x2205},
    {"emsp", 0x2003},    {"ensp", 0x2002},    {"epsilon", 0x03B5}, {"equiv", 0x2261},   {"eta", 0x03B7},
    {"euro", 0x20AC},    {"exist", 0x2203},   {"fnof", 0x0192},    {"forall", 0x2200},  {"frasl", 0x2044},
    {"gamma", 0x03B3},   {"ge", 0x2265},      {"hArr", 0x21D4},    {"harr", 0x2194},    {"hearts", 0x2665},
    {"hellip", 0x2026},  {"image", 0x2111},   {"infin", 0x221E},   {"int", 0x222B},     {"iota", 0x03B9},
    {"isin", 0x2208},    {"kappa", 0x03BA},   {"lArr", 0x21D0},    {"lambda", 0x03BB},  {"lang", 0x2329},
    {"larr", 0x2190},    {"lceil", 0x2308},   {"ldquo", 0x201C},   {"le", 0x2264},      {"lfloor", 0x230A},
    {"lowast", 0x2217},  {"loz", 0x25CA},     {"lrm", 0x200E},     {"lsaquo", 0x2039},  {"lsquo", 0x2018},
    {"mdash", 0x2014},   {"minus", 0x2212},   {"mu", 0x03BC},      {"nabla", 0x2207},   {"ndash", 0x2013},
    {"ne", 0x2260},      {"ni", 0x220B},      {"notin", 0x2209},   {"nsub", 0x2284},    {"nu", 0x03BD},
    {"oelig", 0x0153},   {"oline", 0x203E},   {"omega", 0x03C9},   {"omicron", 0x03BF}, {"oplus", 0x2295},
    {"or", 0x2228},      {"otimes", 0x2297},  {"part", 0x2202},    {"permil", 0x2030},  {"perp", 0x22A5},
    {"phi", 0x03C6},     {"pi", 0x03C0},      {"piv", 0x03D6},     {"prime", 0x2032},   {"prod", 0x220F},
    {"prop", 0x221D},    {"psi", 0x03C8},     {"rArr", 0x21D2},    {"radic", 0x221A},   {"rang", 0x232A},
    {"rarr", 0x2192},    {"rceil", 0x2309},   {"rdquo", 0x201D},   {"real", 0x211C},    {"rfloor", 0x230B},
    {"rho", 0x03C1},     {"rlm", 0x200F},     {"rsaquo", 0x203A},  {"rsquo", 0x2019},   {"sbquo", 0x201A},
    {"scaron", 0x0161},  {"sdot", 0x22C5},    {"sigma", 0x03C3},   {"sigmaf", 0x03C2},  {"sim", 0x223C},
    {"spades", 0x2660},  {"sub", 0x2282},     {"sube", 0x2286},    {"sum", 0x2211},     {"sup", 0x2283},
    {"supe", 0x2287},    {"tau", 0x03C4},     {"there4", 0x2234},  {"theta", 0x03B8},   {"thetasym", 0x03D1},
    {"thinsp", 0x2009},  {"tilde", 0x02DC},   {"trade", 0x2122},   {"uArr", 0x21D1},    {"uarr", 0x2191},
    {"upsih", 0x03D2},   {"upsilon", 0x03C5}, {"weierp", 0x2118},  {"xi", 0x03BE},      {"zeta", 0x03B6},
    {"zwj", 0x200D},     {"zwnj", 0x200C},
};

// Browsers read the numbers of control characters as the bytes of windows-1252.
constexpr char16_t kWindows1252[] = {0x20AC, 0x81,   0x201A, 0x192,  0x201E, 0x2026, 0x2020, 0x2021,
                                     0x2C6,  0x2030, 0x160,  0x2039, 0x152,  0x8D,   0x17D,  0x8F,
                                     0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                     0x2DC,  0x2122, 0x161,  0x203A, 0x153,  0x9D,   0x17E,  0x178};

std::optional<UChar32> NumberedCharacter(std::string_view digits) {
  const bool hex = digits.starts_with('x') || digits.starts_with('X');
  if (hex) digits.remove_prefix(1);
  std::uint32_t number = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number, hex ? 16 : 10);
  const bool isCharacter = number > 0 && number <= 0x10FFFF && !U_IS_SURROGATE(number);
  if (error != std::errc() || end != digits.data() + digits.size() || !isCharacter) return std::nullopt;
  if (number >= 0x80 && number < kFirstOfLatin1) return kWindows1252[number - 0x80];
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
  if (found == kLatin1Names.end()) {
    const auto* const other =
        std::find_if(std::begin(kNames), std::end(kNames), [&](const auto& row) { return row.first == reference; });
    return other == std::end(kNames) ? std::nullopt : std::optional<UChar32>(other->second);
  }
  return kFirstOfLatin1 + static_cast<UChar32>(found - kLatin1Names.begin());
}

// Where the reference that begins at `at` ends, its ";" not counted. A number needs none in browsers: what is no digit
// ends it.
std::size_t ReferenceEnd(std::string_view text, std::size_t at) {
  if (!text.substr(at).starts_with("&#")) return text.find(';', at);
  const bool hex = text.substr(at).starts_with("&#x") || text.substr(at).starts_with("&#X");
  const std::size_t digits = at + (hex ? 3 : 2);
  return std::min(text.find_first_not_of(hex ? "0123456789abcdefABCDEF" : "0123456789", digits), text.size());
}

}  // namespace

std::string WithoutCharacterReferences(std::string_view text) {
  std::string resolved;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const std::size_t end = text[at] == '&' ? ReferenceEnd(text, at) : std::string_view::npos;
    const auto character =
        end == std::string_view::npos ? std::nullopt : ReferredCharacter(text.substr(at + 1, end - at - 1));
    if (!character) {
      resolved += text[at];
      continue;
    }
    AppendUtf8(resolved, static_cast<char32_t>(*character));
    at = text.substr(end).starts_with(';') ? end : end - 1;
  }
  return resolved;
}

}  // namespace folionet
