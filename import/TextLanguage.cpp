#include "TextLanguage.h"

#include <unicode/uchar.h>
#include <unicode/uloc.h>
#include <unicode/uscript.h>
#include <unicode/utf8.h>

#include <algorithm>
#include <array>
#include <map>
#include <string_view>
#include <utility>

#include "TitleLanguages.h"
#include "Utf8.h"

namespace folionet {
namespace {

constexpr char32_t kPolytonicFirst = 0x1F00;  // Greek letters with the marks that only the old language has
constexpr char32_t kPolytonicLast = 0x1FFF;

// Counts the letters of a sample by their script.
class ScriptCounts {
 public:
  void Add(std::string_view text) {
    ForEachUtf8(text, [this](const Piece& piece) { AddCharacter(piece.character); });
  }

  UScriptCode Most() const {
    const auto isFewer = [](const auto& left, const auto& right) { return left.second < right.second; };
    const auto most = std::max_element(m_counts.begin(), m_counts.end(), isFewer);
    return most == m_counts.end() ? USCRIPT_LATIN : most->first;
  }

  bool Has(UScriptCode script) const { return m_counts.contains(script); }
  bool IsPolytonic() const { return m_isPolytonic; }

 private:
  void AddCharacter(UChar32 character) {
    if (u_isalpha(character) == 0) return;
    UErrorCode status = U_ZERO_ERROR;
    ++m_counts[uscript_getScript(character, &status)];
    const auto code = static_cast<char32_t>(character);
    m_isPolytonic = m_isPolytonic || (code >= kPolytonicFirst && code <= kPolytonicLast);
  }

  std::map<UScriptCode, std::size_t> m_counts;
  bool m_isPolytonic = false;
};

std::string LanguageOf(const ScriptCounts& counts) {
  constexpr std::array<std::pair<UScriptCode, const char*>, 26> kLanguages{
      {{USCRIPT_ARMENIAN, "hy"}, {USCRIPT_BENGALI, "bn"},   {USCRIPT_CHEROKEE, "chr"}, {USCRIPT_COPTIC, "cop"},
       {USCRIPT_GEORGIAN, "ka"}, {USCRIPT_GOTHIC, "got"},   {USCRIPT_GREEK, "el"},     {USCRIPT_GUJARATI, "gu"},
       {USCRIPT_GURMUKHI, "pa"}, {USCRIPT_HAN, "zh"},       {USCRIPT_HANGUL, "ko"},    {USCRIPT_HEBREW, "he"},
       {USCRIPT_HIRAGANA, "ja"}, {USCRIPT_KANNADA, "kn"},   {USCRIPT_KATAKANA, "ja"},  {USCRIPT_KHMER, "km"},
       {USCRIPT_LAO, "lo"},      {USCRIPT_MALAYALAM, "ml"}, {USCRIPT_MYANMAR, "my"},   {USCRIPT_ORIYA, "or"},
       {USCRIPT_SINHALA, "si"},  {USCRIPT_SYRIAC, "syr"},   {USCRIPT_TAMIL, "ta"},     {USCRIPT_TELUGU, "te"},
       {USCRIPT_THAI, "th"},     {USCRIPT_TIBETAN, "bo"}}};
  const UScriptCode most = counts.Most();
  if (most == USCRIPT_HAN && counts.Has(USCRIPT_HIRAGANA)) return "ja";
  if (most == USCRIPT_GREEK && counts.IsPolytonic()) return "grc";
  const auto* const found =
      std::find_if(kLanguages.begin(), kLanguages.end(), [&](const auto& row) { return row.first == most; });
  return found == kLanguages.end() ? std::string() : found->second;
}

}  // namespace

TextScript ScriptOf(const ImportedBible& bible) {
  constexpr std::size_t kSampled = 200;
  ScriptCounts counts;
  const std::size_t step = std::max<std::size_t>(1, bible.VerseCount() / kSampled);
  for (std::size_t i = 0; i < bible.VerseCount(); i += step) counts.Add(bible.VerseAt(i).text.substr(0, 1000));
  return {LanguageOf(counts), uscript_isRightToLeft(counts.Most()) != 0};
}

std::string LanguageOfTitles(const ImportedBible& bible) {
  std::string best;
  std::size_t most = 0;
  std::size_t books = 0;
  const auto nameOf = [&](std::size_t book) {
    return bible.titles[book].empty() ? bible.names[book] : bible.titles[book];
  };
  for (std::size_t book = 1; book <= kBooks; ++book) books += nameOf(book).empty() ? 0 : 1;
  for (const TitleLanguage& language : TitleLanguages()) {
    std::size_t same = 0;
    for (std::size_t book = 1; book <= kBooks; ++book) {
      if (!nameOf(book).empty() && EqualIgnoringCase(nameOf(book), language.titles[book - 1])) ++same;
    }
    if (same == most) best.clear();
    if (same > most) best = language.codes.substr(0, 2);
    most = std::max(most, same);
  }
  return 2 * most > books ? best : std::string();
}

std::string LanguageCode(const std::string& code) {
  std::array<char, ULOC_LANG_CAPACITY> main{};
  UErrorCode status = U_ZERO_ERROR;
  const std::size_t end = std::min(code.find('-'), code.size());
  // Three letters that a bibliographer uses are in no table of ICU.
  if (const TitleLanguage* const known = FindLanguage(code.substr(0, end))) {
    return std::string(known->codes.substr(0, 2)) + code.substr(end);
  }
  uloc_getLanguage(code.substr(0, end).c_str(), main.data(), static_cast<int32_t>(main.size()), &status);
  return U_FAILURE(status) || main[0] == '\0' ? code : main.data() + code.substr(end);
}

}  // namespace folionet
