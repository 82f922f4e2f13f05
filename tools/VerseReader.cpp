#include "VerseReader.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <map>
#include <tuple>

#include "Ascii.h"
#include "BookTable.h"
#include "LibraryError.h"

namespace folionet::tools {

namespace {

// The chapter index keeps numbers and verse counts in a byte.
constexpr int kHighestNumber = 255;
constexpr std::string_view kDigits = "0123456789";

struct Line {
  std::size_t number = 0;
  std::string_view text;
};

// A line taken apart; the views look into the content.
struct RawVerse {
  Line line;
  std::size_t name = 0;  // index into the file's names
  int chapter = 0;
  int verse = 0;
  std::string_view text;
};

// One spelling of a book's name, where it comes first, and the book it stands for (0: not known).
struct BookName {
  std::string_view spelling;
  Line line;
  int book = 0;
};

std::string Title(int book) { return std::string(BookAt(book).title); }

std::string Shown(std::string_view text) {
  constexpr std::size_t kLongest = 200;
  std::string shown(text.substr(0, kLongest));
  std::ranges::replace_if(shown, IsControl, '?');
  if (text.size() > kLongest) shown += "...";
  return "\"" + shown + "\"";
}

class Reader {
 public:
  Reader(std::string_view content, const std::string& file) : m_content(content), m_file(file) {}

  std::vector<Verse> Read() {
    SplitContent();
    if (m_raw.empty()) throw LibraryError(m_file + ": no verse in it: expected lines of the form " + kForm);
    ResolveNames();
    std::vector<Verse> verses = MakeVerses();
    std::ranges::stable_sort(verses, {}, [](const Verse& v) { return std::tuple(v.book, v.chapter); });
    RefuseDuplicates(verses);
    return verses;
  }

 private:
  static constexpr const char* kForm = "BOOK CHAPTER:VERSE TEXT, such as \"Ge1:1 In the beginning\"";

  [[noreturn]] void Fail(const Line& line, const std::string& what) const {
    throw LibraryError(m_file + ":" + std::to_string(line.number) + ": " + Shown(line.text) + ": " + what);
  }

  void SplitContent() {
    std::string_view rest = m_content;
    if (rest.starts_with(kByteOrderMark)) rest.remove_prefix(kByteOrderMark.size());
    for (std::size_t number = 1; !rest.empty(); ++number) {
      const std::size_t end = rest.find('\n');
      std::string_view text = rest.substr(0, end);
      rest = end == std::string_view::npos ? std::string_view() : rest.substr(end + 1);
      if (text.ends_with('\r')) text.remove_suffix(1);
      if (text.find_first_not_of(kBlanks) != std::string_view::npos) m_raw.push_back(SplitLine({number, text}));
    }
  }

  // The reference ends at the line's first colon and the digits behind it, so a text may hold any character.
  RawVerse SplitLine(const Line& line) {
    const std::string_view text = line.text;
    const std::size_t colon = text.find(':');
    if (colon == std::string_view::npos) Fail(line, std::string("expected ") + kForm);
    const std::size_t beforeChapter = colon == 0 ? std::string_view::npos : text.find_last_not_of(kDigits, colon - 1);
    if (beforeChapter == std::string_view::npos) Fail(line, std::string("expected ") + kForm);
    const std::size_t verseEnd = std::min(text.find_first_not_of(kDigits, colon + 1), text.size());
    const std::string_view name = Trimmed(text.substr(0, beforeChapter + 1));
    std::size_t textStart = verseEnd;
    if (textStart < text.size() && text[textStart] == ':') ++textStart;
    const bool separated = textStart == text.size() || kBlanks.find(text[textStart]) != std::string_view::npos;
    if (beforeChapter + 1 == colon || verseEnd == colon + 1 || !separated ||
        name.find_first_not_of(kDigits) == std::string_view::npos) {
      Fail(line, std::string("expected ") + kForm);
    }

    RawVerse verse;
    verse.line = line;
    verse.name = NameIndex(name, line);
    verse.chapter = Number(text.substr(beforeChapter + 1, colon - beforeChapter - 1), line);
    verse.verse = Number(text.substr(colon + 1, verseEnd - colon - 1), line);
    verse.text = text.substr(std::min(text.find_first_not_of(kBlanks, textStart), text.size()));
    return verse;
  }

  static std::string_view Trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
  }

  int Number(std::string_view digits, const Line& line) const {
    int number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (error != std::errc() || number < 1 || number > kHighestNumber) {
      Fail(line, "expected a chapter and a verse from 1 to " + std::to_string(kHighestNumber));
    }
    return number;
  }

  std::size_t NameIndex(std::string_view spelling, const Line& line) {
    const auto [place, isNew] = m_nameIndex.emplace(BookKey(spelling), m_names.size());
    if (isNew) m_names.push_back({spelling, line, FindBook(spelling)});
    return place->second;
  }

  void ResolveNames() {
    const auto unknown = std::ranges::find(m_names, 0, &BookName::book);
    if (unknown == m_names.end()) return;
    if (m_names.size() != kBookCount) {
      Fail(unknown->line, "unknown book " + Shown(unknown->spelling) +
                              ": expected a USFM code or an English title (names of any kind need exactly 66 of them "
                              "in the file; it has " +
                              std::to_string(m_names.size()) + ")");
    }
    for (std::size_t i = 0; i < m_names.size(); ++i) {
      BookName& name = m_names[i];
      const int place = static_cast<int>(i) + 1;
      // A known name in another place tells that the file's books are not in canonical order, so that the unknown names
      // would be taken for wrong books.
      if (name.book != 0 && name.book != place) {
        Fail(name.line, "book name " + std::to_string(place) + " of the file, but " + Title(name.book) + " is book " +
                            std::to_string(name.book) + ": expected the books in canonical order, as " +
                            Shown(unknown->spelling) + " is no USFM code or English title");
      }
      name.book = place;
    }
  }

  std::vector<Verse> MakeVerses() const {
    std::vector<Verse> verses;
    verses.reserve(m_raw.size());
    for (const RawVerse& raw : m_raw) {
      verses.push_back({m_names[raw.name].book, raw.chapter, raw.verse, std::string(raw.text), raw.line.number});
      std::ranges::replace(verses.back().text, '\t', ' ');
    }
    return verses;
  }

  void RefuseDuplicates(const std::vector<Verse>& sorted) const {
    std::array<std::size_t, kHighestNumber + 1> lineOf{};
    const Verse* last = nullptr;
    for (const Verse& verse : sorted) {
      if (last == nullptr || last->book != verse.book || last->chapter != verse.chapter) lineOf.fill(0);
      last = &verse;
      std::size_t& first = lineOf.at(static_cast<std::size_t>(verse.verse));
      if (first != 0) {
        const auto raw = std::ranges::find(m_raw, verse.line, [](const RawVerse& r) { return r.line.number; });
        Fail(raw->line, "the verse stands in line " + std::to_string(first) + " already: expected each verse once");
      }
      first = verse.line;
    }
  }

  std::string_view m_content;
  const std::string& m_file;
  std::vector<RawVerse> m_raw;
  std::vector<BookName> m_names;  // in order of appearance
  std::map<std::string, std::size_t> m_nameIndex;
};

std::string BookRange(int first, int last) {
  return first == last ? Title(first) : Title(first) + " to " + Title(last);
}

}  // namespace

std::vector<Verse> ParseVerses(std::string_view content, const std::string& file) {
  return Reader(content, file).Read();
}

std::vector<std::string> MissingParts(const std::vector<Verse>& verses) {
  std::vector<std::string> missing;
  auto verse = verses.begin();
  int gapStart = 0;  // the first book of a run of books that are not there
  for (int book = 1; book <= kBookCount + 1; ++book) {
    const bool isThere = book > kBookCount || (verse != verses.end() && verse->book == book);
    if (!isThere && gapStart == 0) gapStart = book;
    if (!isThere) continue;
    if (gapStart != 0) missing.push_back(BookRange(gapStart, book - 1));
    gapStart = 0;
    for (int chapter = 0; verse != verses.end() && verse->book == book; ++verse) {
      while (chapter + 1 < verse->chapter) missing.push_back(Title(book) + " " + std::to_string(++chapter));
      chapter = verse->chapter;
    }
  }
  return missing;
}

}  // namespace folionet::tools
