#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ChapterIndex.h"
#include "UserInterface.h"

namespace folionet {

// What the dynamic words of a template stand for, in the bytes of the page's code page.
struct TitleWords {
  std::string_view bible;    // %bible%: the display name of the chosen translation
  std::string_view book;     // %bk%: the book's title
  std::string_view chapter;  // %ch%; %vs% is "1-" and the verse count of that chapter
};

// The template with every dynamic word replaced, %bible% first, then %bk%, %ch% and %vs%; a later word is also looked
// for in what an earlier one put in. It is one line: a blank stands for each control character of a name. A text that
// passes 10,000 replacements or 1 MiB, as one does whose value holds its own word, is reported under "Build Titles" and
// gives nothing.
std::optional<std::string> BuildTitles(std::string_view pattern, const TitleWords& words, const VerseCounts& counts,
                                       UserInterface& ui);

// The first thing in a text that looks like a dynamic word, "%verse%", and is none; empty for none. Letter case counts.
std::string_view FindUnknownWord(std::string_view text);

// The first thing in a text that looks like a dynamic word, known or not; empty for none.
std::string_view FindWord(std::string_view text);

// BuildTitles for the many pages of one translation: what pages, or the pages of a book, have in common is put in once.
// (A plain number cannot bring a word with it: for chapters that are one, what is left is cut up once a book.)
class PageTemplate {
 public:
  // `pattern` and `bible` must outlive this.
  PageTemplate(std::string_view pattern, std::string_view bible) : m_pattern(pattern), m_bible(bible) {}

  // As BuildTitles with this pattern and translation.
  std::optional<std::string> Build(std::string_view book, std::string_view chapter, const VerseCounts& counts,
                                   UserInterface& ui);

 private:
  // A text on its way, with the replacements that it took.
  struct Stage {
    std::string text;
    int replacements = 0;
  };

  enum class Word { kNone, kChapter, kVerses };

  // A part of a text that holds no word, and the word behind it.
  struct Piece {
    std::string text;
    Word wordBehind;
  };

  void CutAtWords(const Stage& stage);
  std::string Joined(std::string_view chapter, const std::string& verses) const;

  std::string_view m_pattern;
  std::string_view m_bible;
  std::optional<Stage> m_withBible;
  std::optional<Stage> m_withBook;
  std::string m_book;              // of m_withBook
  int m_bookNumber = 0;            // as `counts` knows it
  std::vector<Piece> m_pieces;     // of m_withBook, for pages whose chapter is a plain number
  std::size_t m_joinedLength = 0;  // at most
  bool m_namesVerses = false;
  bool m_isFarFromLimits = false;
};

}  // namespace folionet
