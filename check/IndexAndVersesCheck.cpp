#include "IndexAndVersesCheck.h"

#include <array>

#include "ChapterOrder.h"
#include "CharsetCheck.h"
#include "ImportedTextFile.h"
#include "LineReader.h"
#include "Numbers.h"
#include "Paths.h"
#include "RecordReader.h"
#include "Text.h"
#include "VerseFileReader.h"
#include "VerseOrder.h"

namespace folionet {
namespace {

constexpr std::int64_t kByteMax = 255;

void CheckIndexRecord(RecordReader& records, const std::array<std::string_view, 7>& fields, ChapterOrder& order,
                      CheckedLibrary& library) {
  const std::string& path = records.Lines().Path();
  const std::size_t line = records.Lines().LineNumber();
  const auto book = static_cast<int>(records.Integer(fields[2], 0, kByteMax));
  const auto chapter = static_cast<int>(records.Integer(fields[3], 0, kByteMax));
  const auto verses = static_cast<int>(records.Integer(fields[4], 0, kByteMax));
  if (book < 1 || book > kBooks) {
    library.Add("bad-book", path, line, {"A book from 1 to 66 was expected: %1", {std::to_string(book)}});
    return;
  }
  order.Begin(book, chapter, line).verses = verses;
}

ChapterTable CheckIndex(const std::string& path, CheckedLibrary& library) {
  ChapterOrder order(path, library);
  try {
    RecordReader records(path, Subject::kChapterIndex);
    std::array<std::string_view, 7> fields;
    for (bool more = true; more;) {
      try {
        more = records.Next(fields);
        if (more) CheckIndexRecord(records, fields, order, library);
      } catch (const RunTimeError& error) {
        library.findings.Add(FindingOf(error));
        more = error.Line() != 0;
      }
    }
    order.End();
  } catch (const RunTimeError& error) {
    library.findings.Add(FindingOf(error));
  }
  return order.Chapters();
}

// Lines that are no verses are read on past, but not for ever.
constexpr std::size_t kMostMalformed = 500;

class TextReader {
 public:
  TextReader(const std::string& path, CheckedLibrary& library)
      : m_reader(path), m_order(path, library), m_library(library) {}

  ChapterTable ReadAll() {
    for (bool more = true; more;) {
      try {
        more = m_reader.Next();
        if (more) Take(m_reader.Current());
      } catch (const RunTimeError& error) {
        m_library.findings.Add(FindingOf(error));
        more = error.Line() != 0 && IsWorthReadingOn();
      }
    }
    if (!m_hasGivenUp) m_order.End();
    return m_order.Chapters();
  }

  // Whether it was not read to its end.
  bool HasGivenUp() const { return m_hasGivenUp; }

 private:
  bool IsWorthReadingOn() {
    if (++m_malformed < kMostMalformed) return true;
    m_hasGivenUp = true;
    m_library.Add("unreadable", m_reader.Lines().Path(), m_reader.Lines().LineNumber(),
                  {"The text is not read any further: %1 of its lines are malformed.", {std::to_string(m_malformed)}});
    return false;
  }

  void TakeOrder(const Verse& verse, const BiblePlace& place) {
    const auto found = m_verses.Next(verse.verse);
    if (!found) return;
    const std::string& path = m_reader.Lines().Path();
    const std::size_t line = m_reader.Lines().LineNumber();
    std::vector<std::string> texts{std::to_string(verse.book), std::to_string(verse.chapter)};
    const auto add = [&](FindingKind kind, const char* pattern, std::initializer_list<std::string> more) {
      texts.insert(texts.end(), more);
      Finding finding{.kind = kind, .file = path, .line = line, .place = place, .what = {pattern, texts}};
      if (m_library.IsImported()) {
        finding.severity = Severity::kWarning;
        finding.remedy = {"Its import has kept it; if it is not meant, correct the text and import it with --replace."};
      }
      m_library.findings.Add(std::move(finding));
    };
    switch (found->oddity) {
      case VerseOrder::Oddity::kBadNumber:
        return add("bad-verse", "Book %1 chapter %2: The number of a verse was expected: %3", {Quoted(verse.verse)});
      case VerseOrder::Oddity::kDoubled:
        return add("doubled-verse", "Book %1 chapter %2: Verse %3 is doubled.", {place.verse});
      case VerseOrder::Oddity::kOutOfOrder:
        return add("verse-order", "Book %1 chapter %2: Verse %3 is out of order.", {place.verse});
      case VerseOrder::Oddity::kMissing:
        break;
    }
    if (m_library.IsImported()) return;
    const std::string first = std::to_string(found->first);
    if (found->first == found->last) return add("missing-verse", "Book %1 chapter %2: Missing: verse %3", {first});
    add("missing-verse", "Book %1 chapter %2: Missing: verse %3 to %4", {first, std::to_string(found->last)});
  }

  void Take(const Verse& verse) {
    const std::string& path = m_reader.Lines().Path();
    const std::size_t line = m_reader.Lines().LineNumber();
    if (m_chapter == nullptr || verse.book != m_bookNumber || verse.chapter != m_chapterNumber) {
      m_chapter = &m_order.Begin(verse.book, verse.chapter, line);
      m_bookNumber = verse.book;
      m_chapterNumber = verse.chapter;
      m_verses = {};
    }
    ++m_chapter->verses;
    const BiblePlace place{verse.book, verse.chapter, std::string(TrimBlanks(verse.verse))};
    TakeOrder(verse, place);
    m_chapter->covered = m_verses.Covered();
    m_library.CheckBytes(path, line, verse.text, place);
  }

  VerseFileReader m_reader;
  ChapterOrder m_order;
  CheckedLibrary& m_library;
  VerseOrder m_verses;
  ChapterSeen* m_chapter = nullptr;
  int m_bookNumber = 0;
  int m_chapterNumber = 0;
  std::size_t m_malformed = 0;
  bool m_hasGivenUp = false;
};

void Compare(const ChapterTable& index, const ChapterTable& text, const TranslationFiles& files,
             CheckedLibrary& library) {
  for (const auto& [key, seen] : index) {
    const auto found = text.find(key);
    const BiblePlace place{key.first, key.second};
    const std::string book = std::to_string(key.first);
    const std::string chapter = std::to_string(key.second);
    if (found == text.end()) {
      library.Add("not-in-text", files.index, seen.line,
                  {"Book %1 chapter %2 stands in the index but not in the text.", {book, chapter}}, place);
    } else if (found->second.verses != seen.verses && found->second.covered != seen.verses) {
      library.Add("verse-count", files.index, seen.line,
                  {seen.verses == 1 ? "Book %1 chapter %2 has %3 verse in the index, %4 in the text."
                                    : "Book %1 chapter %2 has %3 verses in the index, %4 in the text.",
                   {book, chapter, std::to_string(seen.verses), std::to_string(found->second.verses)}},
                  place);
    }
  }
  for (const auto& [key, seen] : text) {
    if (index.contains(key)) continue;
    library.Add("not-in-index", files.text, seen.line,
                {"Book %1 chapter %2 stands in the text but not in the index.",
                 {std::to_string(key.first), std::to_string(key.second)}},
                {key.first, key.second});
  }
}

}  // namespace

void CheckIndexAndVerses(CheckedLibrary& library, const TranslationFiles& files) {
  // One that is there and cannot be read is told by its reader.
  const bool hasIndex = IsThere(files.index);
  if (!hasIndex) {
    library.Add("missing-index", files.index, 0,
                {"The chapter index is missing. Versalia makes it at the first search in this translation."});
  } else {
    library.CheckLetterCase(files.index, files.properIndex);
  }
  try {
    library.glob.Imported = ReadImportedText(files.text).value_or(ImportedText());
    CheckImportedCharset(library, files.text);
    TextReader text(files.text, library);
    const ChapterTable index = hasIndex ? CheckIndex(files.index, library) : ChapterTable();
    const ChapterTable chapters = text.ReadAll();
    if (FileExists(files.index) && !text.HasGivenUp()) Compare(index, chapters, files, library);
  } catch (const RunTimeError& error) {
    library.findings.Add(FindingOf(error));
  }
}

}  // namespace folionet
