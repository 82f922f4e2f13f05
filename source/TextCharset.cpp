#include "TextCharset.h"

#include <unicode/uloc.h>

#include <algorithm>
#include <array>
#include <utility>

#include "FileHandle.h"
#include "LineReader.h"
#include "Text.h"
#include "Utf8.h"
#include "WholeFile.h"

namespace folionet {
namespace {

// The charset of texts in a language that are not in UTF-8, by how its code begins.
constexpr std::array<std::pair<std::string_view, const char*>, 40> kCharsetsOfLanguages{{
    {"ar", "windows-1256 (ANSI Arabic)"},
    {"be", "windows-1251 (ANSI Cyrillic)"},
    {"bg", "windows-1251 (ANSI Cyrillic)"},
    {"bs", "windows-1250 (ANSI Central European)"},
    {"cs", "windows-1250 (ANSI Central European)"},
    {"el", "windows-1253 (ANSI Greek)"},
    {"et", "windows-1257 (ANSI Baltic)"},
    {"fa", "windows-1256 (ANSI Arabic)"},
    {"he", "windows-1255 (ANSI Hebrew)"},
    {"hr", "windows-1250 (ANSI Central European)"},
    {"hu", "windows-1250 (ANSI Central European)"},
    {"iw", "windows-1255 (ANSI Hebrew)"},
    {"ja", "shift_jis (Japanese - Shift JIS)"},
    {"kk", "windows-1251 (ANSI Cyrillic)"},
    {"ko", "euc-kr (Korean - EUC)"},
    {"ky", "windows-1251 (ANSI Cyrillic)"},
    {"lt", "windows-1257 (ANSI Baltic)"},
    {"lv", "windows-1257 (ANSI Baltic)"},
    {"mk", "windows-1251 (ANSI Cyrillic)"},
    {"mn", "windows-1251 (ANSI Cyrillic)"},
    {"pl", "windows-1250 (ANSI Central European)"},
    {"ro", "windows-1250 (ANSI Central European)"},
    {"ru", "windows-1251 (ANSI Cyrillic)"},
    {"sk", "windows-1250 (ANSI Central European)"},
    {"sl", "windows-1250 (ANSI Central European)"},
    {"sq", "windows-1250 (ANSI Central European)"},
    {"sr", "windows-1251 (ANSI Cyrillic)"},
    {"tg", "windows-1251 (ANSI Cyrillic)"},
    {"th", "windows-874 (ANSI Thai)"},
    {"tr", "windows-1254 (ANSI Turkish)"},
    {"tt", "windows-1251 (ANSI Cyrillic)"},
    {"uk", "windows-1251 (ANSI Cyrillic)"},
    {"ur", "windows-1256 (ANSI Arabic)"},
    {"uz", "windows-1251 (ANSI Cyrillic)"},
    {"vi", "windows-1258 (ANSI Vietnamese)"},
    {"yi", "windows-1255 (ANSI Hebrew)"},
    {"zh-hk", "big5 (Traditional Chinese - Big 5)"},
    {"zh-mo", "big5 (Traditional Chinese - Big 5)"},
    {"zh-tw", "big5 (Traditional Chinese - Big 5)"},
    {"zh", "gbk (Simplified Chinese - GBK)"},
}};

bool IsHigh(char c) { return (static_cast<unsigned char>(c) & 0x80) != 0; }

// Whether the letters of a text are mostly beyond ASCII, as those of no Latin alphabet are.
bool IsInOtherScript(std::string_view bytes) {
  const auto high = std::count_if(bytes.begin(), bytes.end(), IsHigh);
  const auto letters = std::count_if(bytes.begin(), bytes.end(),
                                     [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); });
  return high > letters;
}

// Whether so many bytes stand for nothing that the text is in another charset; a few are a damage.
bool IsMostlyUndecodable(std::string_view bytes, const CodePage& codePage) {
  constexpr std::size_t kMeasured = 4096;
  constexpr std::ptrdiff_t kFew = 10;
  const auto first = std::find_if(bytes.begin(), bytes.end(), IsHigh);
  bytes = bytes.substr(static_cast<std::size_t>(first - bytes.begin()), kMeasured);
  const auto high = std::count_if(bytes.begin(), bytes.end(), IsHigh);
  std::ptrdiff_t wrong = 0;
  for (std::size_t at = 0; (at = codePage.FindUndecodable(bytes)) != std::string_view::npos; ++wrong) {
    bytes.remove_prefix(at + 1);
  }
  return wrong * kFew >= high && wrong > 0;
}

// Whether a code such as "zh-tw" is that of the language "zh-tw" or "zh".
bool IsOfLanguage(std::string_view code, std::string_view language) {
  constexpr std::size_t kLongest = 16;
  if (language.find('-') != std::string_view::npos) return EqualIgnoringCase(code, language);
  std::array<char, kLongest> own{};  // "ru" of "rus" too
  UErrorCode status = U_ZERO_ERROR;
  uloc_getLanguage(std::string(code).c_str(), own.data(), kLongest, &status);
  return U_SUCCESS(status) && std::string_view(own.data()) == language;
}

// The entry that a text fits which is not in UTF-8.
std::string EntryFor(std::string_view bytes, std::string_view pageLanguage) {
  const char* entry = "windows-1252 (ANSI Latin 1)";
  bool isLatin = true;
  for (const auto& [language, charset] : kCharsetsOfLanguages) {
    if (!IsOfLanguage(pageLanguage, language)) continue;
    entry = charset;
    const std::string_view name = charset;
    isLatin = name.find("European") != std::string_view::npos || name.find("Baltic") != std::string_view::npos ||
              name.find("Turkish") != std::string_view::npos || name.find("Vietnamese") != std::string_view::npos;
    break;
  }
  if (isLatin && IsInOtherScript(bytes)) return {};
  const std::string_view name = entry;
  const CodePage codePage(name.substr(0, name.find(' ')));
  return codePage.FindUndecodable(bytes) == std::string_view::npos ? entry : std::string();
}

}  // namespace

TextSample SampleOf(std::string_view text) {
  if (IsAscii(text)) return {};
  return {IsUtf8(text) ? TextKind::kUtf8 : TextKind::kOther, std::string(text)};
}

TextSample SampleOfFile(const std::string& path) {
  constexpr std::size_t kChunk = std::size_t{64} << 10;
  const FileHandle file = FileHandle::Open(path.c_str(), O_RDONLY | O_NONBLOCK);
  std::string bytes;
  for (std::size_t at = 0; file.IsOpen(); at += bytes.size()) {
    if (!ReadAll(file.Get(), bytes, kChunk, at) || bytes.empty()) break;
    if (at == 0 && bytes.starts_with(kByteOrderMark)) std::fill_n(bytes.begin(), kByteOrderMark.size(), ' ');
    if (IsAscii(bytes)) continue;
    // A character that the part cuts in two shows nothing: whole lines do.
    const bool isLast = bytes.size() < kChunk;
    const std::size_t end = isLast ? bytes.size() : bytes.find_last_of("\r\n") + 1;
    if (end == 0) break;
    TextSample sample = SampleOf(std::string_view(bytes).substr(0, end));
    if (sample.kind != TextKind::kAscii) return sample;
    if (!isLast) bytes.resize(end);
  }
  return {};
}

std::optional<CharsetMismatch> FindMismatch(const TextSample& sample, const CodePage& codePage,
                                            std::string_view pageLanguage) {
  const bool isUtf8Page = codePage.Name() == "utf-8";
  if (sample.kind == TextKind::kUtf8 && !isUtf8Page) return CharsetMismatch{TextKind::kUtf8, kUtf8Entry};
  if (sample.kind != TextKind::kOther) return std::nullopt;
  if (isUtf8Page) return CharsetMismatch{TextKind::kOther, EntryFor(sample.bytes, pageLanguage)};
  if (!IsMostlyUndecodable(sample.bytes, codePage)) return std::nullopt;
  std::string entry = EntryFor(sample.bytes, pageLanguage);
  return entry.empty() ? std::nullopt : std::optional(CharsetMismatch{TextKind::kOther, std::move(entry)});
}

std::string EntryOf(const TextSample& sample, std::string_view pageLanguage) {
  return sample.kind == TextKind::kOther ? EntryFor(sample.bytes, pageLanguage) : kUtf8Entry;
}

}  // namespace folionet
