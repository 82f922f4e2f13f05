#include "ChapterIndex.h"

#include <algorithm>
#include <array>
#include <set>
#include <utility>

#include "BuildInfo.h"
#include "Numbers.h"
#include "Paths.h"
#include "RecordReader.h"
#include "RunTimeError.h"
#include "Text.h"

namespace folionet {
namespace {

constexpr std::size_t kFields = 7;
constexpr std::size_t kBookField = 2;
constexpr std::size_t kChapterField = 3;
constexpr std::size_t kVersesField = 4;
constexpr std::int64_t kByteMax = 255;
constexpr std::size_t kByteValues = 256;

// Of an imported translation: by the books' own numbers, with the chapters that are missing.
void CountImported(ModGlob& glob, const std::string& path) {
  RecordReader records(path);
  std::array<std::string_view, kFields> fields;
  std::set<std::pair<int, int>> there;
  while (records.Next(fields)) {
    const auto book = static_cast<int>(records.Integer(fields[kBookField], 1, kBooks));
    const auto chapter = static_cast<int>(records.Integer(fields[kChapterField], 1, kByteMax));
    there.insert({book, chapter});
    std::int16_t& last = glob.ChaptersInBook[static_cast<std::size_t>(book)];
    last = std::max(last, static_cast<std::int16_t>(chapter));
  }
  for (int book = 1; book <= kBooks; ++book) {
    for (int chapter = 1; chapter < glob.ChaptersInBook[static_cast<std::size_t>(book)]; ++chapter) {
      if (!there.contains({book, chapter})) glob.missingChapters.insert({book, chapter});
    }
  }
}

void CountChapters(ModGlob& glob, const std::string& path) {
  RecordReader records(path);
  std::array<std::string_view, kFields> fields;
  std::int64_t lastBook = kInt32Min;  // stands for none
  std::size_t bookCount = 0;
  std::int16_t chapterCount = 0;
  while (records.Next(fields)) {
    const std::int64_t book = records.Integer(fields[kBookField], kInt32Min + 1, kInt32Max);
    if (book != lastBook) {
      lastBook = book;
      chapterCount = 0;
      ++bookCount;
    }
    if (bookCount > kBooks) {
      records.Lines().Fail(kSubscriptOutOfRange, "The index has more than 66 books; the 67th is " + Quoted(fields[2]));
    }
    if (chapterCount == kInt16Max) records.Lines().Fail(kOverflow, "The book has more than 32767 chapters.");
    glob.ChaptersInBook[bookCount] = ++chapterCount;
  }
}

std::uint8_t ByteOf(const RecordReader& records, std::string_view field) {
  return static_cast<std::uint8_t>(records.Integer(field, 0, kByteMax));
}

std::string LastInput(const std::array<std::string_view, kFields>& fields) {
  std::string text = "Last Input ";
  char name = 'A';
  for (const std::string_view field : fields) {
    text += "\r\n";
    text += name++;
    text += " = " + CodePage("utf-8").DecodeForDisplay(field);
  }
  return text;
}

// `lastInput` tells, after a failure, the fields that were read last.
void ReadEntries(ModGlob& glob, const std::string& path, std::string& lastInput) {
  std::array<std::string_view, kFields> fields;
  lastInput = LastInput(fields);
  RecordReader records(path);
  try {
    while (records.Next(fields)) {
      glob.ChapterIndex.back() = {ByteOf(records, fields[kBookField]), ByteOf(records, fields[kChapterField]),
                                  ByteOf(records, fields[kVersesField])};
      glob.ChapterIndex.push_back({});
    }
  } catch (const RunTimeError&) {
    lastInput = LastInput(fields);
    throw;
  }
}

}  // namespace

Outcome BooksInChapters(ModGlob& glob, std::size_t translation, const CodePage& codePage, UserInterface& ui) {
  const std::string title = kApplicationTitle;
  std::string path;
  try {
    if (translation >= glob.BibleFiles.size()) {
      throw RunTimeError(kSubscriptOutOfRange, "No translation is selected.");
    }
    path = IndexFile(glob, codePage, glob.BibleFiles[translation]);
    if (!FileExists(path)) {
      ui.ShowMessage({MessageIcon::kCritical, "INDEX File Not Found",
                      "Cannot find: " + path + ".\r\nWithout this file " + title +
                          " cannot continue.\r\nTo create this file run Versalia on '" +
                          codePage.DecodeForDisplay(glob.BibleNames[translation]) + "' first.\r\n" + title +
                          " will now close."});
      return Outcome::kEndProgram;
    }
    glob.ChaptersInBook.fill(0);
    glob.missingChapters.clear();
    if (glob.Imported.IsThere()) {
      CountImported(glob, path);
    } else {
      CountChapters(glob, path);
    }
    return Outcome::kDone;
  } catch (const RunTimeError& error) {
    ui.ShowErrorReport(error.Number(), "BooksInChapters", error.Extra());
    return Outcome::kReported;
  }
}

Outcome LoadVerseCount(ModGlob& glob, const std::string& path, UserInterface& ui) {
  std::string lastInput;
  glob.ChapterIndex.assign(1, {});
  try {
    ReadEntries(glob, path, lastInput);
    return Outcome::kDone;
  } catch (const RunTimeError& error) {
    ui.ShowErrorReport(error.Number(), "Load Verse Count", lastInput + "\r\n" + error.Extra());
  }
  ui.ShowMessage({MessageIcon::kCritical, "File not found",
                  std::string(kApplicationTitle) + " could not find the file\r\n" + path +
                      "\r\nThis file is created automatically by Versalia.\r\n"
                      "Please do a search on this Bible in Versalia to create it and try again."});
  return Outcome::kEndProgram;
}

VerseCounts::VerseCounts(const ModGlob& glob) {
  int book = 0;
  for (const std::string& title : glob.cboStartBook) m_bookOfTitle[title] = ++book;
  // The item one past the list's end reads as the empty text.
  m_bookOfTitle[{}] = ++book;
  for (const ChapterEntry& entry : glob.ChapterIndex) {
    const std::size_t bookStart = kByteValues * entry.Book;
    if (m_verses.size() <= bookStart) m_verses.resize(bookStart + kByteValues, -1);
    m_verses[bookStart + entry.Chapter] = entry.Verses;
  }
}

int VerseCounts::BookOf(std::string_view title) const {
  const auto found = m_bookOfTitle.find(std::string(title));
  return found == m_bookOfTitle.end() ? 0 : found->second;
}

std::string VerseCounts::GetVSCnt(int book, std::string_view chapter, UserInterface& ui) const {
  const auto number = LeadingInteger(chapter);
  if (!number) {
    ui.ShowErrorReport(kOverflow, "GetVSCnt",
                       "Last Book 0\r\nLast Chap " + Quoted(chapter) + "\r\nLast Index 0\r\n" +
                           "A chapter from -32768 to 32767 was expected.");
    return {};
  }
  const std::size_t place = kByteValues * static_cast<std::size_t>(book) + static_cast<std::size_t>(*number);
  if (*number < 0 || *number > kByteMax || place >= m_verses.size() || m_verses[place] < 0) return {};
  return std::to_string(m_verses[place]);
}

}  // namespace folionet
