#include "BuildTitles.h"

#include "LineReader.h"
#include "RunTimeError.h"

namespace folionet {
namespace {

constexpr int kMostReplacements = 10000;
constexpr std::size_t kLongestText = std::size_t{1} << 20;

// Replaces the first occurrence until there is none. The search need not start over: text before a replacement holds
// no occurrence that does not reach into it.
void ReplaceAll(std::string& text, std::string_view word, std::string_view value, int& replacements) {
  std::size_t at = text.find(word);
  while (at != std::string::npos) {
    text.replace(at, word.size(), value);
    if (++replacements > kMostReplacements || text.size() > kLongestText) {
      throw RunTimeError(kInvalidProcedureCall, std::string(word),
                         "The replacement does not end. Its value: " + Quoted(value));
    }
    at = text.find(word, at < word.size() ? 0 : at - (word.size() - 1));
  }
}

}  // namespace

std::optional<std::string> BuildTitles(std::string_view pattern, const TitleWords& words, const VerseCounts& counts,
                                       UserInterface& ui) {
  std::string text(pattern);
  int replacements = 0;
  try {
    ReplaceAll(text, "%bible%", words.bible, replacements);
    ReplaceAll(text, "%bk%", words.book, replacements);
    ReplaceAll(text, "%ch%", words.chapter, replacements);
    if (text.find("%vs%") != std::string::npos) {
      ReplaceAll(text, "%vs%", "1-" + counts.GetVSCnt(words.book, words.chapter, ui), replacements);
    }
    return text;
  } catch (const RunTimeError& error) {
    ui.ShowErrorReport(error.Number(), "Build Titles", Quoted(pattern) + "\r\n" + error.Extra());
    return std::nullopt;
  }
}

}  // namespace folionet
