#include "BuildTitles.h"

#include "LineReader.h"
#include "RunTimeError.h"

namespace folionet {
namespace {

constexpr int kMostReplacements = 10000;
constexpr std::size_t kLongestText = std::size_t{1} << 20;

[[noreturn]] void FailEndless(std::string_view word, std::string_view value) {
  throw RunTimeError(kInvalidProcedureCall, std::string(word),
                     "The replacement does not end. Its value: " + Quoted(value));
}

// Replaces the first occurrence until there is none. The search need not start over: text before a replacement holds
// no occurrence that does not reach into it.
void ReplaceAll(std::string& text, std::string_view word, std::string_view value, int& replacements) {
  std::size_t at = text.find(word);
  // A value that brings its own word back never ends; going on to the limits would only move a long text many times.
  if (at != std::string::npos && value.find(word) != std::string_view::npos) FailEndless(word, value);
  while (at != std::string::npos) {
    text.replace(at, word.size(), value);
    if (++replacements > kMostReplacements || text.size() > kLongestText) FailEndless(word, value);
    at = text.find(word, at < word.size() ? 0 : at - (word.size() - 1));
  }
}

}  // namespace

std::optional<std::string> PageTitles::Build(std::string_view book, std::string_view chapter, const VerseCounts& counts,
                                             UserInterface& ui) {
  try {
    if (!m_withBible) {
      Stage stage{std::string(m_pattern)};
      ReplaceAll(stage.text, "%bible%", m_bible, stage.replacements);
      m_withBible = std::move(stage);
    }
    if (!m_withBook || m_book != book) {
      Stage stage = *m_withBible;
      ReplaceAll(stage.text, "%bk%", book, stage.replacements);
      m_withBook = std::move(stage);
      m_book = book;
    }
    Stage page = *m_withBook;
    ReplaceAll(page.text, "%ch%", chapter, page.replacements);
    if (page.text.find("%vs%") != std::string::npos) {
      ReplaceAll(page.text, "%vs%", "1-" + counts.GetVSCnt(book, chapter, ui), page.replacements);
    }
    return std::move(page.text);
  } catch (const RunTimeError& error) {
    ui.ShowErrorReport(error.Number(), "Build Titles", Quoted(m_pattern) + "\r\n" + error.Extra());
    return std::nullopt;
  }
}

std::optional<std::string> BuildTitles(std::string_view pattern, const TitleWords& words, const VerseCounts& counts,
                                       UserInterface& ui) {
  return PageTitles(pattern, words.bible).Build(words.book, words.chapter, counts, ui);
}

}  // namespace folionet
