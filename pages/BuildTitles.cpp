#include "BuildTitles.h"

#include <algorithm>

#include "RunTimeError.h"
#include "Text.h"

namespace folionet {
namespace {

constexpr int kMostReplacements = 10000;
constexpr std::size_t kLongestText = std::size_t{1} << 20;
constexpr std::size_t kLongestNumbers = 8;  // what a word of a chapter's number stands for, at most

constexpr std::string_view kBibleWord = "%bible%";
constexpr std::string_view kBookWord = "%bk%";
constexpr std::string_view kChapterWord = "%ch%";
constexpr std::string_view kVersesWord = "%vs%";

void CheckTextLength(std::size_t length) {
  if (length <= kLongestText) return;
  throw RunTimeError(kInvalidProcedureCall, "The text is longer than " + std::to_string(kLongestText) + " bytes.")
      .About(Subject::kTemplate);
}

[[noreturn]] void FailEndless(std::string_view word, std::string_view value) {
  throw RunTimeError(kInvalidProcedureCall, std::string(word),
                     "The replacement does not end. Its value: " + Quoted(value))
      .About(Subject::kTemplate);
}

// Replaces the first occurrence until there is none, those included that a value makes with what stands around it. Each
// character is looked at once, however often a text grows: the first occurrence is the one that ends first.
void ReplaceAll(std::string& text, std::string_view word, std::string_view value, int& replacements) {
  const std::size_t first = text.find(word);
  if (first == std::string::npos) return;
  // A value that brings its own word back never ends.
  if (value.find(word) != std::string_view::npos) FailEndless(word, value);
  // What is still to be looked at, the next character last.
  std::string rest(text.rbegin(), text.rend() - static_cast<std::ptrdiff_t>(first));
  text.resize(first);
  while (!rest.empty()) {
    // Up to where the word may end.
    const std::size_t end = rest.rfind(word.back());
    const std::size_t left = end == std::string::npos ? 0 : end;
    text.append(rest.rbegin(), rest.rend() - static_cast<std::ptrdiff_t>(left));
    rest.resize(left);
    if (!text.ends_with(word)) continue;
    text.resize(text.size() - word.size());
    rest.append(value.rbegin(), value.rend());
    if (++replacements > kMostReplacements) FailEndless(word, value);
    CheckTextLength(text.size() + rest.size());
  }
}

// Whether the text is a number of at most four digits: it cannot bring a word with it, nor join two halves of one.
bool IsPlainNumber(std::string_view text) {
  return !text.empty() && text.size() <= 4 && std::all_of(text.begin(), text.end(), IsDigit);
}

// In every code page of pages such a byte is no part of a letter.
bool IsAsciiControl(char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; }

}  // namespace

void PageTemplate::CutAtWords(const Stage& stage) {
  std::string_view text = stage.text;
  m_pieces.clear();
  m_namesVerses = text.find(kVersesWord) != std::string_view::npos;
  for (;;) {
    const std::size_t chapterAt = text.find(kChapterWord);
    std::string_view before = text.substr(0, chapterAt);
    for (std::size_t at = before.find(kVersesWord); at != std::string_view::npos; at = before.find(kVersesWord)) {
      m_pieces.push_back({std::string(before.substr(0, at)), Word::kVerses});
      before.remove_prefix(at + kVersesWord.size());
    }
    const bool isLast = chapterAt == std::string_view::npos;
    m_pieces.push_back({std::string(before), isLast ? Word::kNone : Word::kChapter});
    if (isLast) break;
    text.remove_prefix(chapterAt + kChapterWord.size());
  }
  m_joinedLength = stage.text.size() + m_pieces.size() * kLongestNumbers;
  m_isFarFromLimits = m_joinedLength < kLongestText &&
                      m_pieces.size() + static_cast<std::size_t>(stage.replacements) < kMostReplacements;
}

std::string PageTemplate::Joined(std::string_view chapter, const std::string& verses) const {
  std::string text;
  text.reserve(m_joinedLength);
  for (const Piece& piece : m_pieces) {
    text += piece.text;
    if (piece.wordBehind == Word::kChapter) text += chapter;
    if (piece.wordBehind == Word::kVerses) text.append("1-").append(verses);
  }
  return text;
}

std::optional<std::string> PageTemplate::Build(std::string_view book, std::string_view chapter,
                                               const VerseCounts& counts, UserInterface& ui) {
  try {
    if (!m_withBible) {
      CheckTextLength(m_pattern.size());
      Stage stage{std::string(m_pattern)};
      ReplaceAll(stage.text, kBibleWord, m_bible, stage.replacements);
      m_withBible = std::move(stage);
    }
    if (!m_withBook || m_book != book) {
      Stage stage = *m_withBible;
      ReplaceAll(stage.text, kBookWord, book, stage.replacements);
      std::replace_if(stage.text.begin(), stage.text.end(), IsAsciiControl, ' ');
      m_withBook = std::move(stage);
      m_book = book;
      m_bookNumber = counts.BookOf(book);
      CutAtWords(*m_withBook);
    }
    if (IsPlainNumber(chapter) && m_isFarFromLimits) {
      return Joined(chapter, m_namesVerses ? counts.GetVSCnt(m_bookNumber, chapter, ui) : std::string());
    }
    Stage page = *m_withBook;
    ReplaceAll(page.text, kChapterWord, chapter, page.replacements);
    if (page.text.find(kVersesWord) != std::string::npos) {
      ReplaceAll(page.text, kVersesWord, "1-" + counts.GetVSCnt(m_bookNumber, chapter, ui), page.replacements);
    }
    return std::move(page.text);
  } catch (const RunTimeError& error) {
    ui.ShowErrorReport({Procedure::kBuildTitles, error, Quoted(m_pattern) + "\r\n"});
    return std::nullopt;
  }
}

std::string_view FindWord(std::string_view text) {
  const auto isLetter = [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); };
  const auto isHexDigit = [](char c) { return HexDigit(c) >= 0; };
  for (std::size_t at = text.find('%'); at != std::string_view::npos; at = text.find('%', at + 1)) {
    const std::string_view rest = text.substr(at + 1);
    const auto end = std::find_if_not(rest.begin(), rest.end(), isLetter);
    const auto length = static_cast<std::size_t>(end - rest.begin());
    if (length == 0 || end == rest.end() || *end != '%') continue;
    // "%C3%A9" is an address.
    if (length == 2 && std::all_of(rest.begin(), end, isHexDigit)) continue;
    return text.substr(at, length + 2);
  }
  return {};
}

std::string_view FindUnknownWord(std::string_view text) {
  for (std::string_view word = FindWord(text); !word.empty(); word = FindWord(text)) {
    const bool isKnown = word == kBibleWord || word == kBookWord || word == kChapterWord || word == kVersesWord;
    if (!isKnown) return word;
    text.remove_prefix(static_cast<std::size_t>(word.data() - text.data()) + word.size());
  }
  return {};
}

std::optional<std::string> BuildTitles(std::string_view pattern, const TitleWords& words, const VerseCounts& counts,
                                       UserInterface& ui) {
  return PageTemplate(pattern, words.bible).Build(words.book, words.chapter, counts, ui);
}

}  // namespace folionet
