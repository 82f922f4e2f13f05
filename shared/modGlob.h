#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace folionet {

inline constexpr int kBooks = 66;

// One record of the chapter index.
struct ChapterEntry {
  std::uint8_t Book = 0;
  std::uint8_t Chapter = 0;
  std::uint8_t Verses = 0;
};

// What is known of a translation that was imported beside what Versalia's files can say, as source/ImportedTextFile.h
// reads it; all UTF-8.
struct ImportedText {
  std::string name;       // display name
  std::string language;   // code, such as "en"; empty when the text did not tell
  std::string charset;    // that its text and its file of book titles are in: "windows-1252" or "utf-8"
  std::string titles;     // name of its file of book titles
  std::string direction;  // "rtl" for a text that is written from right to left; else empty

  // Whether there is such a translation: Versalia's own are none.
  bool IsThere() const { return !charset.empty(); }

  friend bool operator==(const ImportedText& left, const ImportedText& right) = default;
};

class IndexReading;

// The values that the whole program shares, made once and handed down by reference. Names and titles are the bytes
// of Versalia's files; folders are paths.
struct ModGlob {
  std::string InstallPath;  // Versalia's folder, ending in a separator as Versalia stores it
  std::string ModulesPath;  // holds "Bible"
  std::string SysdefsPath;  // holds the catalogue and the book titles

  // Parallel, with one spare element at their end, whoever fills them; empty before.
  std::vector<std::string> BibleNames;  // display names
  std::vector<std::string> BibleFiles;  // file stems
  std::vector<ImportedText> BibleImports;

  std::array<std::string, kBooks + 1> BookCodes;              // element 0 is unused
  std::array<std::int16_t, kBooks + 1> ChaptersInBook{};      // by order of appearance; element 0 is unused
  std::vector<ChapterEntry> ChapterIndex{1, ChapterEntry{}};  // the last element is all zero

  // Of the chosen translation, when it was imported: its books have their own numbers in ChaptersInBook, which then
  // tells the last chapter, and of the chapters (book, chapter) before that some may be missing.
  ImportedText Imported;
  std::set<std::pair<int, int>> missingChapters;

  std::shared_ptr<const IndexReading> indexReading;  // the index file read last, which both tables come from

  int listedTranslations = 0;                // records of the catalogue that count, whether their text is there or not
  std::string firstText;                     // where the text of the first of them was looked for, when it is not there
  std::vector<std::string> unreadableTexts;  // verse files of the catalogue that are there and cannot be read

  // The items of the lists. A translation's place in cboBibleName is its place in BibleNames, unless the catalogue was
  // read again: see TranslationAt.
  std::vector<std::string> cboBibleName;
  std::vector<std::string> cboBibleFile;  // the file stem of each item of cboBibleName
  std::vector<std::string> cboLang;       // file names (UTF-8)
  std::vector<std::string> cboStartBook;  // item i is the title of book i + 1
  std::vector<std::string> cboEndBook;

  std::string OutputFolder;  // ends in the folder separator
};

// Calls take(chapter) for each chapter of a book that has a page, `chapters` being the last one.
template <typename Take>
void ForEachChapter(const ModGlob& glob, int book, int chapters, Take take) {
  for (int chapter = 1; chapter <= chapters; ++chapter) {
    if (glob.missingChapters.empty() || !glob.missingChapters.contains({book, chapter})) take(chapter);
  }
}

}  // namespace folionet
