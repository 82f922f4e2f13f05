#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "FlowingText.h"
#include "ImportedBible.h"
#include "VerseOrder.h"

namespace folionet {

// Where a text gives the title of a book; the first kind that is there wins.
enum class TitleKind { kShort, kMiddle, kLong };

// Puts a Bible together from what the reader of a form meets, in the order in which it meets it. Every routine may
// throw RunTimeError, which names file, line and place.
class BibleBuilder {
 public:
  // The file and the line that are being read, for messages.
  void SetFile(const std::string& file);
  void SetLine(std::size_t line) { m_line = line; }

  // What the text tells of itself; the first that tells it wins.
  void SetName(std::string_view name);
  void SetLanguage(std::string_view code);

  // A book begins, by a code or name, or by its number from 1. One that is none of the 66 is left out, with all that
  // follows up to the next book.
  void BeginBook(std::string_view name);
  void BeginBookNumber(int number, std::string_view name);
  void AddTitle(TitleKind kind, std::string_view title);

  // Books that are named in a way that we do not know are the 66 in their order, when the names are exactly as many.
  void LetNamesBeInOrder() { m_mayNamesBeInOrder = true; }

  void BeginChapter(std::string_view number);
  void BeginVerse(std::string_view field);
  void EndVerse();
  void GoOnWithVerse() { m_isInVerse = m_hasVerse; }

  // Text counts where a verse or a canonical title is open, and is passed over elsewhere.
  void AddText(std::string_view text);
  void AddBreak();

  // A canonical title stands before the text of the verse that follows it in its chapter; after the last verse of a
  // chapter, behind that.
  void BeginCanonicalTitle();
  void EndCanonicalTitle();

  bool IsInVerse() const { return m_isInVerse; }

  // Something that was passed over or put up with, told once for each `about`.
  void Note(FindingKind kind, const char* pattern, const std::string& about);

  // What has not quite its form at the line at hand, and is put up with: a warning for each file and `about`, which
  // is %1. Where there are several it has the words `many`, whose %2 is the number of those after the first.
  struct Misfit {
    FindingKind kind;
    const char* one = "";
    const char* many = "";
  };
  void NoteMisfit(const Misfit& misfit, const std::string& about);

  // A file is none of the text, as it has this form and the others have another.
  void NoteLeftOutFile(const std::string& file, const std::string& form);

  // The file has another mistake than those above: throws, with the place at hand.
  [[noreturn]] void Fail(Sentence what) const;

  // Ends a file.
  void EndFile();

  // Ends the text and gives it, sorted, with what was found. Throws when there is no verse of the 66 books.
  ImportedBible Finish();

 private:
  void OpenBook(int number);
  void TellMisfits();
  void CloseVerse();
  void CloseChapter();
  int OutsideBook(std::string_view name);
  void NameOddities();
  void UseNamesInOrder();
  void FindMissing();
  void CheckCounts() const;
  std::string Place() const;

  ImportedBible m_bible;
  std::string m_file;
  std::size_t m_line = 0;

  int m_book = 0;  // 1 to 66; above, a book that is left out; 0 for none
  int m_chapter = 0;
  std::string m_field;
  std::size_t m_verseLine = 0;
  FlowingText m_verse;
  FlowingText m_title;  // a canonical title that waits for its verse
  bool m_hasVerse = false;
  bool m_isInVerse = false;
  bool m_isInTitle = false;

  std::vector<LeftOutBook> m_outside;  // the book 67 is the first
  std::map<std::string, int, std::less<>> m_outsideByName;
  std::vector<int> m_order;  // the books in the order of their first appearance
  bool m_mayNamesBeInOrder = false;
  std::set<std::string> m_noted;
  struct NotedMisfits {
    Misfit misfit;
    std::size_t line = 0;  // of the first
    std::size_t more = 0;
  };
  std::map<std::pair<std::string, std::string>, NotedMisfits> m_misfits;  // of the file, by kind and `about`
  std::map<std::pair<int, int>, VerseOrder> m_verseOrders;                // by book and chapter
  VerseOrder* m_verseOrder = nullptr;  // of the chapter at hand; null when that is not known yet
  Findings m_ofOutside;                // in books that may turn out to be some of the 66
  std::array<int, kBooks + 1> m_titleRank{};
};

}  // namespace folionet
