#include "OsisForm.h"

#include <algorithm>
#include <utility>

#include "BookTable.h"
#include "LineReader.h"
#include "Numbers.h"
#include "Text.h"

namespace folionet {
namespace {

// "Gen.1.1" taken apart; a part that is not there is empty.
struct OsisReference {
  std::string_view book;
  std::string_view chapter;
  std::string verse;
};

bool IsBetween(char c) { return c == ' ' || c == '-'; }

OsisReference ParseReference(std::string_view id) {
  id = id.substr(0, static_cast<std::size_t>(std::find_if(id.begin(), id.end(), IsBetween) - id.begin()));
  if (const std::size_t work = id.find(':'); work != std::string_view::npos) id.remove_prefix(work + 1);
  OsisReference reference;
  const std::size_t first = id.find('.');
  reference.book = id.substr(0, first);
  if (first == std::string_view::npos) return reference;
  id.remove_prefix(first + 1);
  const std::size_t second = id.find('.');
  reference.chapter = id.substr(0, second);
  if (second == std::string_view::npos) return reference;
  reference.verse = id.substr(second + 1);
  std::erase(reference.verse, '!');  // "3!a" is 3a
  return reference;
}

// As ParseReference, of a verse: "Jude.5" has no chapter.
OsisReference ParseVerseReference(std::string_view id) {
  OsisReference reference = ParseReference(id);
  if (reference.verse.empty() && HasOneChapter(FindBook(reference.book))) {
    reference.verse = std::exchange(reference.chapter, "1");
  }
  return reference;
}

// The verse number of one that holds several: "Gen.1.1 Gen.1.2" gives "1-2".
std::string FieldOf(const OsisReference& first, std::string_view id) {
  const auto last = std::find_if(id.rbegin(), id.rend(), IsBetween);
  if (last == id.rend()) return first.verse;
  const OsisReference end = ParseVerseReference(id.substr(static_cast<std::size_t>(id.rend() - last)));
  const bool isSameChapter = end.book == first.book && end.chapter == first.chapter;
  return isSameChapter && end.verse != first.verse ? first.verse + "-" + end.verse : first.verse;
}

// Those whose text is none of the verse they stand in.
bool IsLeftOut(std::string_view name) { return IsOneOf(name, {"note", "figure", "rdg", "index"}); }

bool IsHeading(std::string_view name) { return IsOneOf(name, {"speaker", "head", "label"}); }

// Divisions that hold no verses.
bool IsBesideText(std::string_view type) {
  return IsOneOf(type, {"introduction", "preface", "front", "back", "glossary", "index", "concordance", "appendix"});
}

bool IsBlock(std::string_view name) {
  return IsOneOf(name, {"p", "l", "lg", "lb", "list", "item", "table", "row", "cell", "closer", "salute"});
}

}  // namespace

XmlForm::Part OsisForm::Begin(const XmlElement& element) {
  const std::string_view name = element.Name();
  if (name == "w") return Part::kPass;
  if (name == "verse") return BeginVerse(element);
  if (name == "title") return BeginTitle(element);
  if (IsLeftOut(name)) return Part::kLeftOut;
  if (IsHeading(name)) return Part::kHeading;
  if (IsBlock(name)) return Part::kBlock;
  if (name == "div") return BeginDivision(element);
  if (name == "q" && !IsCapturing() && !(element.Get("sID").empty() && element.Get("eID").empty())) {
    Builder().AddText(element.Get("marker"));
  }
  if (name == "chapter") {
    if (!element.Get("eID").empty()) Builder().EndVerse();
    const std::string_view id = element.Get("osisID");
    const OsisReference place = ParseReference(id.empty() ? element.Get("sID") : id);
    if (!place.chapter.empty()) GoTo(place.book, place.chapter);
    return Part::kBlock;
  }
  if (name == "milestone") {
    // Titles of a table of contents, as texts that were made of USFM have them.
    if (element.Get("type") == "x-usfm-toc1") Builder().AddTitle(TitleKind::kLong, element.Get("n"));
    if (element.Get("type") == "x-usfm-toc2") Builder().AddTitle(TitleKind::kMiddle, element.Get("n"));
  }
  if (name == "work") m_isInWork = true;
  if (name == "osisText") Builder().SetLanguage(element.Get("lang"));
  return Part::kPass;
}

// One that is a milestone may stand within a verse, which does not hold what is in it.
XmlForm::Part OsisForm::BeginDivision(const XmlElement& element) {
  const std::string_view type = element.Get("type");
  if (type == "book") GoTo(ParseReference(element.Get("osisID")).book, {});
  if (!IsBesideText(type)) return Part::kBlock;
  if (!element.Get("sID").empty()) {
    m_goesOn = Builder().IsInVerse();
    Builder().EndVerse();
  } else if (!element.Get("eID").empty() && std::exchange(m_goesOn, false)) {
    Builder().GoOnWithVerse();
  }
  return Part::kBlock;
}

void OsisForm::GoTo(std::string_view book, std::string_view chapter) {
  m_isInWork = false;
  if (!book.empty() && book != m_book) {
    Builder().BeginBook(book);
    m_book = book;
    m_chapter.clear();
  }
  if (!chapter.empty() && chapter != m_chapter) {
    Builder().BeginChapter(chapter);
    m_chapter = chapter;
  }
}

XmlForm::Part OsisForm::BeginVerse(const XmlElement& element) {
  if (!element.Get("eID").empty()) {
    Builder().EndVerse();
    return Part::kPass;
  }
  const std::string_view start = element.Get("sID");
  const std::string_view id = TrimBlanks(element.Get("osisID").empty() ? start : element.Get("osisID"));
  m_goesOn = false;
  const OsisReference place = ParseVerseReference(id);
  if (place.verse.empty())
    Builder().Fail({Words("Import", "the osisID of a verse, such as \"Gen.1.1\", was expected: %1"), {Quoted(id)}});
  GoTo(place.book, place.chapter);
  Builder().BeginVerse(FieldOf(place, id));
  return start.empty() ? Part::kVerse : Part::kPass;
}

XmlForm::Part OsisForm::BeginTitle(const XmlElement& element) {
  const std::string_view type = element.Get("type");
  if (m_isInWork) return Capture(Told::kName);
  if (IsCapturing()) return Part::kBlock;  // a line of a title
  const bool isOfBook = !m_book.empty() && m_chapter.empty();
  if (!isOfBook || type == "psalm") {
    return type == "psalm" || element.Get("canonical") == "true" ? Part::kCanonicalTitle : Part::kHeading;
  }
  if (!type.empty() && type != "main" && type != "runningHead") return Part::kLeftOut;
  Builder().AddTitle(TitleKind::kShort, element.Get("short"));
  return Capture(type == "main" ? Told::kMiddleTitle : type.empty() ? Told::kLongTitle : Told::kShortTitle);
}

}  // namespace folionet
