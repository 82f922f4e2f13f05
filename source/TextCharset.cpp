#include "TextCharset.h"

#include <unicode/uloc.h>

#include <algorithm>
#include <array>
#include <utility>

#include "FileHandle.h"
#include "Text.h"
#include "Utf8.h"
#include "WholeFile.h"

namespace folionet {
namespace {

// A charset of texts that are not in UTF-8.
struct LanguageCharset {
  std::string_view entry;
  std::string_view languages;  // that are written in it: their codes, lower case, a blank around each
  bool isLatin = false;        // whether their letters are
};

constexpr std::array<LanguageCharset, 13> kCharsets{{
    {"windows-1250 (ANSI Central European)", " bs cs hr hu pl ro sk sl sq ", true},
    {"windows-1251 (ANSI Cyrillic)", " be bg kk ky mk mn ru sr tg tt uk uz "},
    {"windows-1253 (ANSI Greek)", " el "},
    {"windows-1254 (ANSI Turkish)", " tr ", true},
    {"windows-1255 (ANSI Hebrew)", " he iw yi "},
    {"windows-1256 (ANSI Arabic)", " ar fa ur "},
    {"windows-1257 (ANSI Baltic)", " et lt lv ", true},
    {"windows-1258 (ANSI Vietnamese)", " vi ", true},
    {"windows-874 (ANSI Thai)", " th "},
    {"shift_jis (Japanese - Shift JIS)", " ja "},
    {"euc-kr (Korean - EUC)", " ko "},
    {"big5 (Traditional Chinese - Big 5)", " zh-hk zh-mo zh-tw "},
    {"gbk (Simplified Chinese - GBK)", " zh "},
}};
constexpr LanguageCharset kOtherLanguages{"windows-1252 (ANSI Latin 1)", {}, true};

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

// Of the language of a code such as "zh-tw", or of "zh".
const LanguageCharset& CharsetOf(std::string_view code) {
  constexpr std::size_t kLongest = 16;
  std::array<char, kLongest> own{};  // "ru" of "rus" too
  UErrorCode status = U_ZERO_ERROR;
  uloc_getLanguage(std::string(code).c_str(), own.data(), kLongest, &status);
  const std::string whole = " " + AsciiLower(code) + " ";
  const std::string language = U_SUCCESS(status) ? " " + std::string(own.data()) + " " : whole;
  const auto* const found = std::find_if(kCharsets.begin(), kCharsets.end(), [&](const LanguageCharset& charset) {
    return charset.languages.find(whole) != std::string_view::npos ||
           charset.languages.find(language) != std::string_view::npos;
  });
  return found == kCharsets.end() ? kOtherLanguages : *found;
}

// The entry that a text fits which is not in UTF-8.
std::string EntryFor(std::string_view bytes, std::string_view pageLanguage) {
  const LanguageCharset& charset = CharsetOf(pageLanguage);
  if (charset.isLatin && IsInOtherScript(bytes)) return {};
  const CodePage codePage(charset.entry.substr(0, charset.entry.find(' ')));
  return codePage.FindUndecodable(bytes) == std::string_view::npos ? std::string(charset.entry) : std::string();
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
