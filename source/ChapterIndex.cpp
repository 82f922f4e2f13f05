#include "ChapterIndex.h"

#include <algorithm>
#include <array>
#include <bitset>
#include <memory>
#include <optional>
#include <set>
#include <utility>

#include "BuildInfo.h"
#include "FileStamp.h"
#include "Installation.h"
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

std::uint8_t ByteOf(const RecordReader& records, std::string_view field) {
  return static_cast<std::uint8_t>(records.Integer(field, 0, kByteMax));
}

}  // namespace

// The tables of an index, read in one pass. Each has a failure of its own: what is no number of a verse count does not
// keep chapters from being counted. In that of an imported translation books are counted by their own numbers.
class IndexReading {
 public:
  IndexReading(const std::string& path, bool isImported)
      : lastInput(LastInput({})), m_path(path), m_isImported(isImported), m_stamp(StampOf(path)) {
    try {
      RecordReader records(path, Subject::kChapterIndex);
      Fields fields;
      while (ReadOn(records, fields)) {
      }
    } catch (const RunTimeError& error) {
      if (!countFailure) countFailure = error;
      if (!entryFailure) entryFailure = error;
    }
  }

  bool IsOf(const std::string& path, bool isImported) const {
    return path == m_path && isImported == m_isImported && m_stamp && m_stamp == StampOf(path);
  }

  // Those before a book's last one that an imported translation lacks: book and chapter.
  std::set<std::pair<int, int>> MissingChapters() const {
    std::set<std::pair<int, int>> missing;
    if (!m_isImported) return missing;
    for (int book = 1; book <= kBooks; ++book) {
      const auto row = static_cast<std::size_t>(book);
      for (int chapter = 1; chapter < chapters[row]; ++chapter) {
        if (!m_isThere[row].test(static_cast<std::size_t>(chapter))) missing.insert({book, chapter});
      }
    }
    return missing;
  }

  std::array<std::int16_t, kBooks + 1> chapters{};
  std::vector<ChapterEntry> entries{1, ChapterEntry{}};
  std::optional<RunTimeError> countFailure;
  std::optional<RunTimeError> entryFailure;
  std::string lastInput;  // the fields at which entries failed

 private:
  using Fields = std::array<std::string_view, kFields>;

  bool ReadOn(RecordReader& records, Fields& fields) {
    try {
      if (!records.Next(fields)) return false;
    } catch (const RunTimeError&) {
      if (!entryFailure) lastInput = LastInput(fields);
      throw;
    }
    if (!countFailure) Try(countFailure, [&] { Count(records, fields); });
    if (!entryFailure) {
      Try(entryFailure, [&] { Enter(records, fields); });
      if (entryFailure) lastInput = LastInput(fields);
    }
    return !countFailure || !entryFailure;
  }

  template <typename Step>
  static void Try(std::optional<RunTimeError>& failure, const Step& step) {
    try {
      step();
    } catch (const RunTimeError& error) {
      failure = error;
    }
  }

  void Count(const RecordReader& records, const Fields& fields) {
    if (m_isImported) {
      const auto book = static_cast<std::size_t>(records.Integer(fields[kBookField], 1, kBooks));
      const std::int64_t chapter = records.Integer(fields[kChapterField], 1, kByteMax);
      m_isThere[book].set(static_cast<std::size_t>(chapter));
      chapters[book] = std::max(chapters[book], static_cast<std::int16_t>(chapter));
      return;
    }
    const std::int64_t book = records.Integer(fields[kBookField], kInt32Min + 1, kInt32Max);
    if (book != m_lastBook) {
      m_lastBook = book;
      ++m_bookCount;
    }
    if (m_bookCount > kBooks) {
      records.Lines().Fail(kSubscriptOutOfRange, "The index has more than 66 books; the 67th is " + Quoted(fields[2]));
    }
    std::int16_t& count = chapters[m_bookCount];
    if (count == kInt16Max) records.Lines().Fail(kOverflow, "The book has more than 32767 chapters.");
    ++count;
  }

  void Enter(const RecordReader& records, const Fields& fields) {
    entries.back() = {ByteOf(records, fields[kBookField]), ByteOf(records, fields[kChapterField]),
                      ByteOf(records, fields[kVersesField])};
    entries.push_back({});
  }

  std::string m_path;
  bool m_isImported;
  std::optional<FileStamp> m_stamp;
  std::array<std::bitset<kByteValues>, kBooks + 1> m_isThere;
  std::int64_t m_lastBook = kInt32Min;  // stands for none
  std::size_t m_bookCount = 0;
};

namespace {

const IndexReading& ReadingOf(ModGlob& glob, const std::string& path) {
  const bool isImported = glob.Imported.IsThere();
  if (glob.indexReading == nullptr || !glob.indexReading->IsOf(path, isImported)) {
    glob.indexReading = std::make_shared<const IndexReading>(path, isImported);
  }
  return *glob.indexReading;
}

}  // namespace

Outcome BooksInChapters(ModGlob& glob, std::size_t translation, const CodePage& codePage, UserInterface& ui) {
  const std::string title = kApplicationTitle;
  std::string path;
  try {
    if (translation >= glob.BibleFiles.size()) {
      throw RunTimeError(kSubscriptOutOfRange, "No translation is selected.").About(Subject::kCatalogue);
    }
    path = IndexFile(glob, codePage, glob.BibleFiles[translation]);
    if (!FileExists(path)) {
      ui.ShowMessage({MessageIcon::kCritical, "INDEX File Not Found",
                      "Cannot find: " + path + ".\r\nWithout this file " + title +
                          " cannot continue.\r\nTo create this file run Versalia on '" +
                          codePage.DecodeForDisplay(glob.BibleNames[translation]) + "' first.\r\n" + title +
                          " will now close.",
                      Topic::kNoChapterIndex});
      return Outcome::kEndProgram;
    }
    const IndexReading& reading = ReadingOf(glob, path);
    glob.ChaptersInBook = reading.chapters;
    glob.missingChapters = reading.MissingChapters();
    if (reading.countFailure) throw RunTimeError(*reading.countFailure);
    return Outcome::kDone;
  } catch (const RunTimeError& error) {
    ui.ShowErrorReport({Procedure::kBooksInChapters, error});
    return Outcome::kReported;
  }
}

Outcome LoadVerseCount(ModGlob& glob, const std::string& path, UserInterface& ui) {
  const IndexReading& reading = ReadingOf(glob, path);
  glob.ChapterIndex = reading.entries;
  if (!reading.entryFailure) return Outcome::kDone;
  const RunTimeError& error = *reading.entryFailure;
  ui.ShowErrorReport({Procedure::kLoadVerseCount, error, reading.lastInput + "\r\n"});
  ui.ShowMessage({MessageIcon::kCritical, "File not found",
                  std::string(kApplicationTitle) + " could not find the file\r\n" + path +
                      "\r\nThis file is created automatically by Versalia.\r\n"
                      "Please do a search on this Bible in Versalia to create it and try again.",
                  Topic::kBadChapterIndex});
  return Outcome::kEndProgram;
}

ChapterCounts CountChapters(const ModGlob& glob) {
  ChapterCounts counts{};
  if (glob.Imported.IsThere()) {
    std::copy(glob.ChaptersInBook.begin(), glob.ChaptersInBook.end(), counts.begin());
    return counts;
  }
  std::size_t book = 0;
  for (std::size_t i = 0; i + 1 < glob.ChapterIndex.size(); ++i) {
    if (i == 0 || glob.ChapterIndex[i].Book != glob.ChapterIndex[i - 1].Book) ++book;
    if (book > kBooks) break;
    ++counts[book];
  }
  return counts;
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
    ui.ShowErrorReport({Procedure::kGetVSCnt, kOverflow,
                        "Last Book 0\r\nLast Chap " + Quoted(chapter) + "\r\nLast Index 0\r\n" +
                            "A chapter from -32768 to 32767 was expected."});
    return {};
  }
  const std::size_t place = kByteValues * static_cast<std::size_t>(book) + static_cast<std::size_t>(*number);
  if (*number < 0 || *number > kByteMax || place >= m_verses.size() || m_verses[place] < 0) return {};
  return std::to_string(m_verses[place]);
}

}  // namespace folionet
