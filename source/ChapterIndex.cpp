#include "ChapterIndex.h"

#include <array>

#include "BuildInfo.h"
#include "Numbers.h"
#include "Paths.h"
#include "RecordReader.h"
#include "RunTimeError.h"

namespace folionet {
namespace {

constexpr std::size_t kFields = 7;
constexpr std::size_t kBookField = 2;
constexpr std::size_t kChapterField = 3;
constexpr std::size_t kVersesField = 4;
constexpr std::int64_t kByteMax = 255;
constexpr std::size_t kByteValues = 256;

void CountChapters(ModGlob& glob, const std::string& path) {
  RecordReader records(path);
  std::array<std::string, kFields> fields;
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

std::uint8_t ByteOf(const RecordReader& records, const std::string& field) {
  return static_cast<std::uint8_t>(records.Integer(field, 0, kByteMax));
}

void ReadEntries(ModGlob& glob, const std::string& path, std::array<std::string, kFields>& fields) {
  RecordReader records(path);
  while (records.Next(fields)) {
    glob.ChapterIndex.back() = {ByteOf(records, fields[kBookField]), ByteOf(records, fields[kChapterField]),
                                ByteOf(records, fields[kVersesField])};
    glob.ChapterIndex.push_back({});
  }
}

std::string LastInput(const std::array<std::string, kFields>& fields) {
  std::string text = "Last Input ";
  char name = 'A';
  for (const std::string& field : fields) {
    text += "\r\n";
    text += name++;
    text += " = " + CodePage("utf-8").DecodeForDisplay(field);
  }
  return text;
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
    CountChapters(glob, path);
    return Outcome::kDone;
  } catch (const RunTimeError& error) {
    ui.ShowErrorReport(error.Number(), "BooksInChapters", error.Extra());
    return Outcome::kReported;
  }
}

Outcome LoadVerseCount(ModGlob& glob, const std::string& path, UserInterface& ui) {
  std::array<std::string, kFields> fields;
  glob.ChapterIndex.assign(1, {});
  try {
    ReadEntries(glob, path, fields);
    return Outcome::kDone;
  } catch (const RunTimeError& error) {
    ui.ShowErrorReport(error.Number(), "Load Verse Count", LastInput(fields) + "\r\n" + error.Extra());
  }
  ui.ShowMessage({MessageIcon::kCritical, "File not found",
                  std::string(kApplicationTitle) + " could not find the file\r\n" + path +
                      "\r\nThis file is created automatically by Versalia.\r\n"
                      "Please do a search on this Bible in Versalia to create it and try again."});
  return Outcome::kEndProgram;
}

VerseCounts::VerseCounts(const ModGlob& glob) : m_verses(kByteValues * kByteValues, -1) {
  int book = 0;
  for (const std::string& title : glob.cboStartBook) m_bookOfTitle[title] = ++book;
  // The item one past the list's end reads as the empty text.
  m_bookOfTitle[{}] = ++book;
  for (const ChapterEntry& entry : glob.ChapterIndex) {
    m_verses[kByteValues * entry.Book + entry.Chapter] = entry.Verses;
  }
}

std::string VerseCounts::GetVSCnt(std::string_view bookTitle, std::string_view chapter, UserInterface& ui) const {
  const auto number = LeadingInteger(chapter);
  if (!number) {
    ui.ShowErrorReport(kOverflow, "GetVSCnt",
                       "Last Book 0\r\nLast Chap " + Quoted(chapter) + "\r\nLast Index 0\r\n" +
                           "A chapter from -32768 to 32767 was expected.");
    return {};
  }
  const auto found = m_bookOfTitle.find(std::string(bookTitle));
  const int book = found == m_bookOfTitle.end() ? 0 : found->second;
  if (*number < 0 || *number > kByteMax || book > kByteMax) return {};
  const std::int16_t verses =
      m_verses[kByteValues * static_cast<std::size_t>(book) + static_cast<std::size_t>(*number)];
  return verses < 0 ? std::string() : std::to_string(verses);
}

}  // namespace folionet
