#include "BibleBuilder.h"

#include <algorithm>

#include "BookTable.h"
#include "ImportError.h"
#include "LineReader.h"
#include "Numbers.h"
#include "Text.h"
#include "Utf8.h"

namespace folionet {
namespace {

constexpr int kHighestChapter = 255;  // more do not go into a chapter index
constexpr std::size_t kLongestField = 32;

// A verse number without the marks of direction that a text written from right to left may hold in a bridge.
std::string CleanField(std::string_view field) {
  std::string clean(TrimBlanks(field));
  if (IsAscii(clean)) return clean;
  for (const std::string_view mark : {"\u200F", "\u200E", "\u200B"}) {
    for (std::size_t at = clean.find(mark); at != std::string::npos; at = clean.find(mark))
      clean.erase(at, mark.size());
  }
  return clean;
}

bool IsVerseField(std::string_view field) {
  const auto isOdd = [](char c) {
    return static_cast<unsigned char>(c) <= ' ' || c == '\x7F' || c == '<' || c == '>' || c == '&' || c == '"';
  };
  return !field.empty() && field.size() <= kLongestField && IsDigit(field[0]) &&
         std::none_of(field.begin(), field.end(), isOdd);
}

}  // namespace

void BibleBuilder::SetFile(const std::string& file) {
  m_file = file;
  m_line = 1;
}

void BibleBuilder::SetName(std::string_view name) {
  if (m_bible.name.empty()) m_bible.name = WithSingleBlanks(name);
}

void BibleBuilder::SetLanguage(std::string_view code) {
  if (!m_bible.language.empty()) return;
  for (const char c : TrimBlanks(code)) {
    const char lower = AsciiLower(c);
    if (!IsDigit(lower) && lower != '-' && (lower < 'a' || lower > 'z')) break;
    m_bible.language += lower;
  }
}

std::string BibleBuilder::Place() const {
  if (m_book == 0) return {};
  std::string place = m_book <= kBooks ? std::string(BookAt(m_book).title)
                                       : m_outside[static_cast<std::size_t>(m_book - kBooks - 1)].name;
  if (m_chapter != 0) place += " " + std::to_string(m_chapter);
  if (m_hasVerse) place += ":" + m_field;
  return place + ": ";
}

void BibleBuilder::Fail(Sentence what) const {
  throw ImportError(kInvalidProcedureCall, m_file, std::move(what), m_line, Place());
}

void BibleBuilder::Note(FindingKind kind, const char* pattern, const std::string& about) {
  if (!m_noted.insert(std::string(kind.Word()) + about).second) return;
  m_bible.findings.Add({kind, Severity::kNote, m_file, m_line, {}, {pattern, {about}}, {}});
}

void BibleBuilder::NoteMisfit(const Misfit& misfit, const std::string& about) {
  const auto [noted, isNew] =
      m_misfits.try_emplace({std::string(misfit.kind.Word()), about}, NotedMisfits{misfit, m_line});
  if (!isNew) ++noted->second.more;
}

void BibleBuilder::TellMisfits() {
  for (const auto& [key, noted] : m_misfits) {
    Sentence what{noted.misfit.one, {key.second}};
    if (noted.more != 0) what = {noted.misfit.many, {key.second, std::to_string(noted.more)}};
    m_bible.findings.Add({noted.misfit.kind, Severity::kWarning, m_file, noted.line, {}, std::move(what), {}});
  }
  m_misfits.clear();
}

void BibleBuilder::NoteLeftOutFile(const std::string& file, const std::string& form) {
  const char* const pattern = Words("Import", "Left out, as it is %1 and the other files are not.");
  m_bible.findings.Add({"left-out-file", Severity::kNote, file, 0, {}, {pattern, {form}}, {}});
}

void BibleBuilder::BeginBook(std::string_view name) {
  const std::string clean = WithSingleBlanks(name);
  if (clean.empty()) Fail({Words("Import", "the code or the name of a book was expected")});
  const int number = FindBook(clean);
  OpenBook(number != 0 ? number : OutsideBook(clean));
  if (number != 0) m_bible.names[static_cast<std::size_t>(number)] = clean;
}

void BibleBuilder::BeginBookNumber(int number, std::string_view name) {
  const bool isKnown = number <= kBooks;
  const std::string clean = WithSingleBlanks(name);
  OpenBook(isKnown ? number : OutsideBook(clean.empty() ? "book " + std::to_string(number) : clean));
}

int BibleBuilder::OutsideBook(std::string_view name) {
  constexpr std::size_t kMostOutside = 1000;
  constexpr std::size_t kLongestName = 100;
  const std::string kept(name.substr(0, kLongestName));
  const auto [found, isNew] = m_outsideByName.emplace(BookKey(kept), kBooks + 1 + static_cast<int>(m_outside.size()));
  if (isNew) {
    m_outside.push_back({kept, 0});
    if (m_outside.size() > kMostOutside) Fail({Words("Import", "there are more than 1000 different names of books")});
  }
  return found->second;
}

void BibleBuilder::OpenBook(int number) {
  CloseChapter();
  m_book = number;
  m_chapter = 0;
  if (std::find(m_order.begin(), m_order.end(), number) == m_order.end()) m_order.push_back(number);
}

void BibleBuilder::AddTitle(TitleKind kind, std::string_view title) {
  if (m_book > kBooks) return;
  const int rank = 3 - static_cast<int>(kind);
  const auto book = static_cast<std::size_t>(m_book);
  std::string clean = WithSingleBlanks(title);
  if (clean.empty() || m_titleRank[book] >= rank) return;
  m_titleRank[book] = rank;
  m_bible.titles[book] = std::move(clean);
}

void BibleBuilder::BeginChapter(std::string_view number) {
  CloseChapter();
  m_chapter = 0;
  if (m_book == 0) Fail({Words("Import", "a book was expected before chapter %1"), {Quoted(number)}});
  const IntegerReading reading = ReadInteger(CleanField(number), 1, kHighestChapter);
  if (reading.error != 0) {
    if (m_book > kBooks) return;
    Fail({Words("Import", "a chapter from 1 to 255 was expected: %1"), {Quoted(number)}});
  }
  m_chapter = static_cast<int>(reading.value);
}

void BibleBuilder::BeginVerse(std::string_view field) {
  CloseVerse();
  if (m_book == 0) Fail({Words("Import", "a book was expected before verse %1"), {Quoted(field)}});
  if (m_chapter == 0 && HasOneChapter(m_book)) m_chapter = 1;
  if (m_chapter == 0 && m_book <= kBooks)
    Fail({Words("Import", "a chapter was expected before verse %1"), {Quoted(field)}});
  m_field = CleanField(field);
  if (!IsVerseField(m_field)) {
    if (m_book <= kBooks) Fail({Words("Import", "the number of a verse was expected: %1"), {Quoted(field)}});
    m_field = "0";
  }
  m_verseLine = m_line;
  m_hasVerse = true;
  m_isInVerse = true;
  m_isInTitle = false;
  m_verse = m_title;
  m_verse.Break();
  m_title.Clear();
}

void BibleBuilder::EndVerse() { m_isInVerse = false; }

void BibleBuilder::AddText(std::string_view text) {
  FlowingText* flow = nullptr;
  if (m_isInTitle) {
    flow = &m_title;
  } else if (m_isInVerse) {
    flow = &m_verse;
    if (!m_title.IsEmpty() && text.find_first_not_of(" \t\r\n") != std::string_view::npos) {
      // The verse goes on behind the title: it stands in the midst of its text.
      m_verse.Append(m_title);
      m_title.Clear();
    }
  }
  if (flow != nullptr && !flow->Add(text)) Fail({Words("Import", "a verse of at most 1 MiB was expected")});
}

void BibleBuilder::AddBreak() {
  if (m_isInTitle) m_title.Break();
  if (m_isInVerse) m_verse.Break();
}

void BibleBuilder::BeginCanonicalTitle() {
  if (m_isInVerse && m_verse.IsEmpty()) return;  // it stands where it belongs
  m_isInTitle = true;
}

void BibleBuilder::EndCanonicalTitle() {
  AddBreak();
  m_isInTitle = false;
}

void BibleBuilder::CloseVerse() {
  if (!m_hasVerse) return;
  if (m_book > kBooks) ++m_outside[static_cast<std::size_t>(m_book - kBooks - 1)].verses;
  // Names that are none of ours may turn out to be those of the 66 books in another language.
  if (m_book <= kBooks || (m_mayNamesBeInOrder && m_book <= 2 * kBooks)) {
    NameOddities();
    m_bible.Add({m_book, m_chapter, m_field, m_verse.Text()});
  }
  m_hasVerse = false;
  m_isInVerse = false;
}

void BibleBuilder::CloseChapter() {
  m_isInTitle = false;
  if (m_hasVerse) m_verse.Append(m_title);
  m_title.Clear();
  CloseVerse();
  m_verseOrder = nullptr;
}

void BibleBuilder::NameOddities() {
  const auto name = [this](FindingKind kind, const char* pattern) {
    const std::string place = Place();
    Findings& findings = m_book <= kBooks ? m_bible.findings : m_ofOutside;
    findings.Add({kind,
                  Severity::kWarning,
                  m_file,
                  m_verseLine,
                  {m_book, m_chapter, m_field},
                  {pattern, {place.substr(0, place.size() - 2)}},
                  {}});
  };
  if (m_verseOrder == nullptr) m_verseOrder = &m_verseOrders[{m_book, m_chapter}];
  if (const auto found = m_verseOrder->Next(m_field)) {
    switch (found->oddity) {
      case VerseOrder::Oddity::kBadNumber:
        name("bad-verse", Words("Import", "%1 is no number of a verse such as 3, 3a or 3-4; it is kept."));
        break;
      case VerseOrder::Oddity::kDoubled:
        name("doubled-verse", Words("Import", "%1 comes twice; both are kept."));
        break;
      case VerseOrder::Oddity::kOutOfOrder:
        name("verse-order", Words("Import", "%1 is out of order."));
        break;
      case VerseOrder::Oddity::kMissing:
        break;  // a text need not have all
    }
  }
  if (m_verse.IsEmpty()) name("empty-verse", Words("Import", "%1 has no text."));
}

void BibleBuilder::EndFile() {
  CloseChapter();
  TellMisfits();
  m_book = 0;
}

void BibleBuilder::UseNamesInOrder() {
  ImportedBible::NewNumbers numbers{};
  bool isInOrder = m_mayNamesBeInOrder && m_order.size() == kBooks;
  for (std::size_t i = 0; i < m_order.size() && i < kBooks; ++i) {
    const auto place = static_cast<std::uint8_t>(i + 1);
    // A known name in another place tells that the others do not stand for the books in their order.
    if (m_order[i] <= kBooks && m_order[i] != place) isInOrder = false;
  }
  for (std::size_t i = 0; i < m_order.size(); ++i) {
    const auto old = static_cast<std::size_t>(m_order[i]);
    if (old > std::size_t{2} * kBooks) continue;
    numbers[old] = isInOrder ? static_cast<std::uint8_t>(i + 1) : static_cast<std::uint8_t>(old <= kBooks ? old : 0);
    if (isInOrder && old > kBooks) m_bible.titles[i + 1] = m_outside[old - kBooks - 1].name;
  }
  m_bible.Renumber(numbers);
  if (!isInOrder) return;
  m_outside.clear();
  for (Finding finding : m_ofOutside.Kept()) {
    finding.place.book = numbers[static_cast<std::size_t>(finding.place.book)];
    m_bible.findings.Add(std::move(finding));
  }
}

void BibleBuilder::FindMissing() {
  const auto name = [this](FindingKind kind, const char* pattern, const std::string& what) {
    m_bible.findings.Add({kind, Severity::kNote, {}, 0, {}, {pattern, {what}}, {}});
  };
  const auto title = [](int book) { return std::string(BookAt(book).title); };
  int lastBook = 0;
  int lastChapter = 0;
  const auto nameBooks = [&](int first, int last) {
    if (first > last) return;
    name("missing-book", Words("Import", "Not in the text: %1"),
         first == last ? title(first) : title(first) + " to " + title(last));
  };
  for (const auto& [book, chapter, begin, behind] : m_bible.Chapters()) {
    if (book != lastBook) {
      nameBooks(lastBook + 1, book - 1);
      lastBook = book;
      lastChapter = 0;
    }
    if (chapter > lastChapter + 1) {
      const int first = lastChapter + 1;
      const std::string end = chapter - 1 == first ? "" : " to " + std::to_string(chapter - 1);
      name("missing-chapter", Words("Import", "Not in the text: %1"),
           title(lastBook) + " " + std::to_string(first) + end);
    }
    lastChapter = chapter;
  }
  nameBooks(lastBook + 1, kBooks);
}

void BibleBuilder::CheckCounts() const {
  constexpr std::size_t kMostVerses = 255;  // more do not go into a chapter index
  for (const auto& [book, chapter, first, end] : m_bible.Chapters()) {
    if (end - first <= kMostVerses) continue;
    throw ImportError(kOverflow, m_file, {Words("Import", "at most 255 verses in a chapter were expected")}, 0,
                      std::string(BookAt(book).title) + " " + std::to_string(chapter) + ": ");
  }
}

ImportedBible BibleBuilder::Finish() {
  UseNamesInOrder();
  if (m_bible.VerseCount() == 0) {
    Sentence what{Words("Import", "a text with verses was expected; there is none")};
    if (!m_outside.empty()) {
      what = {Words("Import", "verses of one of the 66 books were expected; the books are others, such as %1"),
              {Quoted(m_outside.front().name)}};
    }
    throw ImportError(kInvalidProcedureCall, m_file, what);
  }
  m_bible.Sort();
  CheckCounts();
  FindMissing();
  for (const LeftOutBook& book : m_outside) {
    if (book.verses != 0) m_bible.leftOut.push_back(book);
  }
  return std::move(m_bible);
}

}  // namespace folionet
