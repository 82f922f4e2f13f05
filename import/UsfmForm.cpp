#include "UsfmForm.h"

#include <algorithm>

#include "LineReader.h"
#include "Text.h"

namespace folionet {
namespace {

constexpr std::size_t kLongestMarker = 40;
constexpr std::size_t kLongestArgument = 10000;
constexpr std::string_view kBlanks = " \t\r\n";
constexpr std::string_view kNoBreakSpace = "\xC2\xA0";

bool IsOfName(char c) { return IsLetterOrDigit(c) || c == '-' || c == '_'; }

// How long the first half of a "//" is at the end of a text: 1 behind an even number of "/".
std::size_t HalfBreak(std::string_view text) {
  const std::size_t last = text.find_last_not_of('/');
  return (text.size() - (last == std::string_view::npos ? 0 : last + 1)) % 2;
}

}  // namespace

void UsfmForm::Read(std::string_view piece) {
  m_rest += piece;
  ReadRest(Piece::kMoreFollows);
}

void UsfmForm::Finish() {
  ReadRest(Piece::kLast);
  EndArgument();
  if (!m_note.empty()) BeginLine(MarkerKind::kParagraph, "p");
}

void UsfmForm::CountLines(std::string_view text) {
  m_line += static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
  m_builder.SetLine(m_line);
}

void UsfmForm::ReadRest(Piece piece) {
  const bool isLast = piece == Piece::kLast;
  std::string_view rest = m_rest;
  while (!rest.empty()) {
    const std::size_t slash = std::min(rest.find('\\'), rest.size());
    // What stands behind a "|" depends on the marker that follows.
    const std::size_t longestEnd = m_unknown.size() + std::string_view("\\+*").size();
    if (!isLast && !m_unknown.empty() && rest.size() - slash < longestEnd && slash < kLongestArgument) break;
    if (slash > 0) {
      const std::size_t length = slash == rest.size() && !isLast ? slash - HalfBreak(rest) : slash;
      const std::size_t kept = EndsUnknown(rest.substr(slash)) ? std::min(rest.find('|'), length) : length;
      TakeText(rest.substr(0, kept));
      CountLines(rest.substr(kept, length - kept));
      rest.remove_prefix(length);
      if (length < slash) break;
      continue;
    }
    std::size_t end = rest.size() > 1 && rest[1] == '+' ? 2 : 1;
    while (end < rest.size() && end <= kLongestMarker && IsOfName(rest[end])) ++end;
    if (end == rest.size() && !isLast) break;
    std::string_view name = rest.substr(1, end - 1);
    if (name.starts_with('+')) name.remove_prefix(1);
    const bool isEnd = end < rest.size() && rest[end] == '*';
    if (isEnd) ++end;
    if (name.empty() && !isEnd) {
      TakeText(rest.substr(0, 1));  // a "\" that begins no marker is a character
    } else if (isEnd) {
      EndMarker(name);
    } else {
      BeginMarker(name);
      // The blank behind a marker belongs to it; of the end of a line, only what belongs to the marker's own line.
      if (end < rest.size() && (rest[end] == ' ' || rest[end] == '\t')) ++end;
    }
    rest.remove_prefix(end);
  }
  m_rest.erase(0, m_rest.size() - rest.size());
}

// Whether the end of the marker that we do not know follows: what stands behind a "|" before it are attributes.
bool UsfmForm::EndsUnknown(std::string_view rest) const {
  if (m_unknown.empty() || rest.empty()) return false;
  rest.remove_prefix(1);
  if (rest.starts_with('+')) rest.remove_prefix(1);
  return rest.starts_with(m_unknown) && rest.substr(m_unknown.size()).starts_with('*');
}

void UsfmForm::TakeText(std::string_view text) {
  if (m_role == Role::kBook || m_role == Role::kTitle || m_role == Role::kChapter || m_role == Role::kVerse) {
    TakeArgument(text);
  } else if (m_role == Role::kText) {
    TakeVerseText(text);
  }
  CountLines(text);
}

void UsfmForm::TakeVerseText(std::string_view text) {
  if (!m_note.empty() || m_isInMilestone || m_isInSidebar || m_isInAttributes) return;
  if (std::any_of(m_styles.begin(), m_styles.end(), [](const Style& style) { return style.isLeftOut; })) return;
  if (!m_styles.empty()) {
    const std::size_t bar = text.find('|');
    m_isInAttributes = bar != std::string_view::npos;
    text = text.substr(0, bar);
  }
  while (!text.empty()) {
    const std::size_t special = std::min(text.find_first_of("~/"), text.size());
    m_builder.AddText(text.substr(0, special));
    text.remove_prefix(special);
    if (text.empty()) return;
    const bool isBreak = text.starts_with("//");
    if (isBreak) {
      m_builder.AddBreak();
    } else {
      m_builder.AddText(text[0] == '~' ? kNoBreakSpace : text.substr(0, 1));
    }
    text.remove_prefix(isBreak ? 2 : 1);
  }
}

// \c, \v and \id take the first word; the titles all of their line, and of the lines below it.
void UsfmForm::TakeArgument(std::string_view text) {
  if (m_role == Role::kTitle) {
    if (m_argument.size() < kLongestArgument) m_argument += text;
    return;
  }
  if (m_argument.empty()) text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
  if (text.empty()) return;
  const std::size_t end = std::min(text.find_first_of(kBlanks), text.size());
  if (m_argument.size() < kLongestArgument) m_argument += text.substr(0, end);
  if (end == text.size()) return;
  EndArgument();
  if (m_role == Role::kText) TakeVerseText(text.substr(end));
}

void UsfmForm::NeedBook(const char* marker, const std::string& argument) const {
  if (m_hasBook) return;
  m_builder.Fail(
      {Words("Import", "\\id and the code of a book were expected before %1 %2"), {marker, Quoted(argument)}});
}

void UsfmForm::EndArgument() {
  const Role role = m_role;
  if (role == Role::kText || role == Role::kLeftOut) return;
  m_role = Role::kLeftOut;
  std::string argument;
  std::swap(argument, m_argument);
  switch (role) {
    case Role::kBook:
      m_hasBook = true;
      argument.resize(std::min(argument.find_first_of(":;,-"), argument.size()));
      m_builder.BeginBook(argument);
      break;
    case Role::kTitle:
      std::replace(argument.begin(), argument.end(), '~', ' ');
      m_builder.AddTitle(m_title, argument);
      break;
    case Role::kChapter:
      NeedBook("\\c", argument);
      m_builder.BeginChapter(argument);
      m_role = Role::kText;
      break;
    case Role::kVerse:
      NeedBook("\\v", argument);
      m_builder.BeginVerse(argument);
      m_role = Role::kText;
      break;
    case Role::kText:
    case Role::kLeftOut:
      break;
  }
}

void UsfmForm::BeginMarker(std::string_view name) {
  EndArgument();
  m_isInAttributes = false;
  m_isInMilestone = false;
  m_unknown.clear();
  // "\v1" stands for "\v 1".
  const bool isNumbered = name.size() > 1 && (name[0] == 'c' || name[0] == 'v') && IsDigit(name[1]);
  if (isNumbered) {
    BeginLine(name[0] == 'c' ? MarkerKind::kChapter : MarkerKind::kVerse, name);
    m_argument = name.substr(1);
    return EndArgument();
  }
  const MarkerKind kind = KindOfMarker(name);
  switch (kind) {
    case MarkerKind::kUnknown:
      return BeginUnknown(name);
    case MarkerKind::kCharacter:
    case MarkerKind::kLeftOutCharacter:
      if (!m_note.empty()) return;
      if (m_styles.size() >= kLongestMarker)
        m_builder.Fail({Words("Import", "character styles at most 40 deep were expected")});
      m_styles.push_back({std::string(name), kind == MarkerKind::kLeftOutCharacter});
      return;
    case MarkerKind::kCell:
      m_builder.AddBreak();
      return;
    case MarkerKind::kMilestone:
      m_isInMilestone = name != "ts";  // which has no attributes, and often no end
      return;
    case MarkerKind::kNote:
      if (m_role != Role::kText || !m_note.empty()) return;
      m_note = name;
      m_noteLine = m_line;
      return;
    default:
      return BeginLine(kind, name);
  }
}

void UsfmForm::BeginUnknown(std::string_view name) {
  m_unknown = name;
  // Kept, as a mark that we do not know may stand for anything; one of an own make ("z...") is no fault.
  if (m_role == Role::kText && m_builder.IsInVerse() && !name.starts_with('z')) {
    m_builder.Note("unknown-mark", Words("Import", "The unknown marker %1 is passed over, its text is kept."),
                   "\\" + std::string(name));
  }
}

// Markers that begin a paragraph end all that is open within the one before.
void UsfmForm::BeginLine(MarkerKind kind, std::string_view name) {
  if (!m_note.empty()) {
    m_builder.SetLine(m_noteLine);
    constexpr BibleBuilder::Misfit kOpen{
        .kind = "open-note",
        .one = Words("Import", "A note does not end: %1 was expected."),
        .many = Words("Import", "A note does not end: %1 was expected; more of them in the file: %2.")};
    m_builder.NoteMisfit(kOpen, "\\" + m_note + "*");
    m_builder.SetLine(m_line);
    m_note.clear();
  }
  m_styles.clear();
  m_builder.EndCanonicalTitle();  // a break, where none is open
  switch (kind) {
    case MarkerKind::kBook:
      m_role = Role::kBook;
      return;
    case MarkerKind::kHeader:
    case MarkerKind::kToc2:
    case MarkerKind::kToc1:
      m_title = kind == MarkerKind::kHeader ? TitleKind::kShort
                : kind == MarkerKind::kToc2 ? TitleKind::kMiddle
                                            : TitleKind::kLong;
      m_role = Role::kTitle;
      return;
    case MarkerKind::kChapter:
    case MarkerKind::kVerse:
      m_role = kind == MarkerKind::kChapter ? Role::kChapter : Role::kVerse;
      m_isInSidebar = false;  // one that does not end would take the rest of the book with it
      return;
    case MarkerKind::kCanonicalTitle:
      m_role = Role::kText;
      m_builder.BeginCanonicalTitle();
      return;
    case MarkerKind::kSidebar:
    case MarkerKind::kSidebarEnd:
      m_isInSidebar = kind == MarkerKind::kSidebar;
      m_role = Role::kText;
      return;
    case MarkerKind::kParagraph:
      m_role = Role::kText;
      return;
    default:
      if (name == "periph") m_builder.EndVerse();
      m_role = Role::kLeftOut;
      return;
  }
}

void UsfmForm::EndMarker(std::string_view name) {
  EndArgument();
  m_unknown.clear();
  m_isInAttributes = false;
  m_isInMilestone = false;
  if (!m_note.empty()) {
    if (name == m_note) m_note.clear();
    return;
  }
  const auto style = std::find_if(m_styles.rbegin(), m_styles.rend(), [&](const Style& s) { return s.name == name; });
  if (style != m_styles.rend()) m_styles.erase(style.base() - 1, m_styles.end());
}

}  // namespace folionet
