#include "TextCheck.h"

#include <array>
#include <filesystem>
#include <set>
#include <system_error>

#include "ChapterOrder.h"
#include "Installation.h"
#include "LineReader.h"
#include "Numbers.h"
#include "Paths.h"
#include "RecordReader.h"
#include "VerseFileReader.h"

namespace folionet {
namespace {

constexpr std::int64_t kByteMax = 255;

void CheckIndexRecord(RecordReader& records, const std::array<std::string_view, 7>& fields, ChapterOrder& order,
                      FaultList& faults) {
  const std::string& path = records.Lines().Path();
  const std::size_t line = records.Lines().LineNumber();
  const auto book = static_cast<int>(records.Integer(fields[2], 0, kByteMax));
  const auto chapter = static_cast<int>(records.Integer(fields[3], 0, kByteMax));
  const auto verses = static_cast<int>(records.Integer(fields[4], 0, kByteMax));
  if (book < 1 || book > kBooks) {
    faults.Add(path, line, "A book from 1 to 66 was expected: " + std::to_string(book));
    return;
  }
  order.Begin(book, chapter, line).verses = verses;
}

ChapterTable CheckIndex(const std::string& path, FaultList& faults) {
  ChapterOrder order(path, faults);
  try {
    RecordReader records(path);
    std::array<std::string_view, 7> fields;
    for (bool more = true; more;) {
      try {
        more = records.Next(fields);
        if (more) CheckIndexRecord(records, fields, order, faults);
      } catch (const RunTimeError& error) {
        faults.Add(error);
        more = error.Line() != 0;
      }
    }
    order.End();
  } catch (const RunTimeError& error) {
    faults.Add(error);
  }
  return order.Chapters();
}

// Follows the verses of one chapter.
class VerseOrder {
 public:
  void Begin() {
    m_seen.clear();
    m_last = 0;
  }

  // What is wrong with this verse after those before it; empty when nothing is.
  std::string Next(std::string_view field) {
    const IntegerReading verse = ReadInteger(field, 1, kInt16Max);
    if (verse.error != 0) return "The number of a verse was expected: " + Quoted(field);
    const auto number = static_cast<int>(verse.value);
    const int before = m_last;
    m_last = std::max(m_last, number);
    if (!m_seen.insert(number).second) return "Verse " + std::to_string(number) + " is doubled.";
    if (number < before) return "Verse " + std::to_string(number) + " is out of order.";
    if (number == before + 1) return {};
    const std::string missing = std::to_string(before + 1);
    return "Missing: verse " + (number == before + 2 ? missing : missing + " to " + std::to_string(number - 1));
  }

 private:
  std::set<int> m_seen;
  int m_last = 0;
};

class TextReader {
 public:
  TextReader(const std::string& path, FaultList& faults) : m_reader(path), m_order(path, faults), m_faults(faults) {}

  ChapterTable ReadAll() {
    for (bool more = true; more;) {
      try {
        more = m_reader.Next();
        if (more) Take(m_reader.Current());
      } catch (const RunTimeError& error) {
        m_faults.Add(error);
        more = error.Line() != 0;
      }
    }
    m_order.End();
    return m_order.Chapters();
  }

 private:
  void Take(const Verse& verse) {
    const std::string& path = m_reader.Lines().Path();
    const std::size_t line = m_reader.Lines().LineNumber();
    if (m_chapter == nullptr || verse.book != m_bookNumber || verse.chapter != m_chapterNumber) {
      m_chapter = &m_order.Begin(verse.book, verse.chapter, line);
      m_bookNumber = verse.book;
      m_chapterNumber = verse.chapter;
      m_verses.Begin();
    }
    ++m_chapter->verses;
    if (const std::string wrong = m_verses.Next(verse.verse); !wrong.empty()) {
      m_faults.Add(path, line, Place(verse.book, verse.chapter) + ": " + wrong);
    }
    m_faults.CheckBytes(path, line, verse.text);
  }

  VerseFileReader m_reader;
  ChapterOrder m_order;
  FaultList& m_faults;
  VerseOrder m_verses;
  ChapterSeen* m_chapter = nullptr;
  int m_bookNumber = 0;
  int m_chapterNumber = 0;
};

void Compare(const ChapterTable& index, const std::string& indexPath, const ChapterTable& text,
             const std::string& textPath, FaultList& faults) {
  for (const auto& [key, seen] : index) {
    const auto found = text.find(key);
    const std::string place = Place(key.first, key.second);
    if (found == text.end()) {
      faults.Add(indexPath, seen.line, place + " stands in the index but not in the text.");
    } else if (found->second.verses != seen.verses) {
      faults.Add(indexPath, seen.line,
                 place + " has " + std::to_string(seen.verses) + (seen.verses == 1 ? " verse" : " verses") +
                     " in the index, " + std::to_string(found->second.verses) + " in the text.");
    }
  }
  for (const auto& [key, seen] : text) {
    if (!index.contains(key)) {
      faults.Add(textPath, seen.line, Place(key.first, key.second) + " stands in the text but not in the index.");
    }
  }
}

}  // namespace

void CheckText(const ModGlob& glob, const std::string& stem, FaultList& faults) {
  const std::string indexPath = IndexFile(glob, faults.Charset(), stem);
  const std::string textPath = VerseFile(glob, faults.Charset(), stem);
  // One that is there and cannot be read is told by its reader.
  std::error_code ignored;
  const bool hasIndex = std::filesystem::exists(std::filesystem::symlink_status(indexPath, ignored));
  if (!hasIndex) {
    faults.Add(indexPath, 0,
               "The chapter index is missing. Versalia makes it at the first search in this translation.");
  } else {
    faults.CheckLetterCase(indexPath, glob.InstallPath + "Index/" + faults.Charset().Decode(stem) + ".TXT.INDEX");
  }
  try {
    TextReader text(textPath, faults);
    const ChapterTable index = hasIndex ? CheckIndex(indexPath, faults) : ChapterTable();
    const ChapterTable chapters = text.ReadAll();
    if (FileExists(indexPath)) Compare(index, indexPath, chapters, textPath, faults);
  } catch (const RunTimeError& error) {
    faults.Add(error);
  }
}

}  // namespace folionet
