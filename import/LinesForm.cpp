#include "LinesForm.h"

#include <algorithm>
#include <array>
#include <utility>

#include "BookTable.h"
#include "LineReader.h"
#include "Numbers.h"
#include "Text.h"

namespace folionet {
namespace {

constexpr std::string_view kDigits = "0123456789";

bool IsNumber(std::string_view text) {
  const std::string_view number = TrimBlanks(text);
  return !number.empty() && number.find_first_not_of(kDigits) == std::string_view::npos;
}

// The length of the verse number that a text begins with: "1", "1-2", "3a", "3a-4b"; 0 for none.
std::size_t FieldLength(std::string_view text) {
  std::size_t at = 0;
  for (;;) {
    const std::size_t digits = std::min(text.find_first_not_of(kDigits, at), text.size());
    if (digits == at) return 0;
    at = digits;
    if (at < text.size() && text[at] >= 'a' && text[at] <= 'z') ++at;
    const bool goesOn = at + 1 < text.size() && (text[at] == '-' || text[at] == ',') && IsDigit(text[at + 1]);
    if (!goesOn) return at;
    ++at;
  }
}

// The length of a field in double quotes at the start of a line, with them; npos when they are not closed.
std::size_t QuotedLength(std::string_view line) {
  for (std::size_t at = 1; at < line.size(); ++at) {
    if (line[at] != '"') continue;
    if (at + 1 == line.size() || line[at + 1] != '"') return at + 1;
    ++at;
  }
  return std::string_view::npos;
}

bool EndsField(std::string_view line, std::size_t at, char separator) {
  return at == line.size() || (at < line.size() && line[at] == separator);
}

// A line's fields. One in double quotes may hold the separator, and quotes that are doubled. Where tabs separate and
// the first field has no quotes, only one that holds either is taken for such a field: a verse may stand in quotes of
// its own. The last of `most` fields is the rest of the line.
std::vector<std::string> Split(std::string_view line, char separator, std::size_t most = std::string_view::npos) {
  std::vector<std::string> fields;
  const bool isAnyQuoted = separator != '\t' || line.starts_with('"');
  for (;;) {
    std::string field;
    std::size_t end = line.starts_with('"') ? QuotedLength(line) : std::string_view::npos;
    std::string_view inner = line.substr(0, end);
    const bool needsQuotes = inner.find("\"\"") != std::string_view::npos || inner.find('\t') != std::string_view::npos;
    if (EndsField(line, end, separator) && (isAnyQuoted || needsQuotes)) {
      inner = inner.substr(1, inner.size() - 2);
      for (std::size_t at = 0; at < inner.size(); ++at) {
        field += inner[at];
        if (inner[at] == '"') ++at;
      }
    } else {
      end = fields.size() + 1 == most ? line.size() : std::min(line.find(separator), line.size());
      field = line.substr(0, end);
    }
    fields.push_back(std::move(field));
    line.remove_prefix(end);
    if (line.empty()) return fields;
    line.remove_prefix(1);
  }
}

// How the quotes at the start of a record's fields end: not in this record, all before a separator, or else.
enum class Quotes { kOpen, kClosed, kOdd };

Quotes QuotesOf(std::string_view record, char separator) {
  Quotes quotes = Quotes::kClosed;
  for (;;) {
    std::size_t end = std::min(record.find(separator), record.size());
    if (record.starts_with('"')) {
      const std::size_t length = QuotedLength(record);
      if (length == std::string_view::npos) return Quotes::kOpen;
      if (EndsField(record, length, separator)) {
        end = length;
      } else {
        quotes = Quotes::kOdd;
      }
    }
    if (end == record.size()) return quotes;
    record.remove_prefix(end + 1);
  }
}

bool IsSkipped(std::string_view line) { return TrimBlanks(line).empty() || line.starts_with('#'); }

}  // namespace

LinesForm::LinesForm(BibleBuilder& builder) : m_builder(builder) { m_builder.LetNamesBeInOrder(); }

bool LinesForm::IsLine(std::string_view line) { return ColumnsOfHeader(line) || ColumnsOf(line); }

bool LinesForm::MayStandBefore(std::string_view line) {
  constexpr std::size_t kLongestName = 100;
  const std::size_t digit = line.find_first_of(kDigits, 1);  // that of "2 John" comes before
  const std::size_t end = std::min({digit, line.find('\t'), line.size(), kLongestName});
  return FindBook(line.substr(0, end)) == 0;
}

std::optional<LinesForm::Columns> LinesForm::ColumnsOfHeader(std::string_view line) {
  constexpr std::array<std::array<std::string_view, 4>, 5> kNames{{{"b", "book", "bookid", "bookname"},
                                                                   {"c", "chapter", "chapternumber", "chapternum"},
                                                                   {"v", "verse", "versenumber", "versenum"},
                                                                   {"t", "text", "versetext", "scripture"},
                                                                   {"reference", "ref", "verseref", "osisref"}}};
  for (const char separator : {'\t', ',', ';', '|'}) {
    std::array<std::size_t, kNames.size()> places{};
    std::array<bool, kNames.size()> found{};
    const std::vector<std::string> fields = Split(line, separator);
    for (std::size_t i = 0; i < fields.size(); ++i) {
      const std::string name = BookKey(fields[i]);
      for (std::size_t column = 0; column < kNames.size(); ++column) {
        if (std::find(kNames[column].begin(), kNames[column].end(), name) == kNames[column].end()) continue;
        places[column] = i;
        found[column] = true;
      }
    }
    if (std::all_of(found.begin(), found.end() - 1, [](bool is) { return is; })) {
      return Columns{separator, false, ':', places[0], places[1], places[2], places[3]};
    }
    if (found[3] && found[4]) return Columns{separator, true, '\0', places[4], places[4], places[4], places[3]};
  }
  return std::nullopt;
}

std::optional<LinesForm::Columns> LinesForm::ColumnsOf(std::string_view line) {
  for (const char separator : {'\t', ',', ';', '|'}) {
    const std::vector<std::string> fields = Split(line, separator);
    const std::size_t count = fields.size();
    if (count >= 5 && IsNumber(fields[0]) && IsNumber(fields[1]) && IsNumber(fields[2]) && IsNumber(fields[3])) {
      return Columns{separator, false, ':', 1, 2, 3, 4};
    }
    // The name of the translation before the book.
    if (count >= 5 && FindBook(fields[1]) != 0 && IsNumber(fields[2]) && IsNumber(fields[3])) {
      return Columns{separator, false, ':', 1, 2, 3, 4};
    }
    if (count < 2) continue;
    const auto point = PointOf(fields[0]);
    // A verse behind its reference may hold numbers between commas, too.
    if (!point && count >= 4 && IsNumber(fields[1]) && FieldLength(TrimBlanks(fields[2])) != 0) {
      return Columns{separator};
    }
    if (point && TrimBlanks(SplitReference(fields[0], *point)->text).empty()) {
      return Columns{separator, true, *point, 0, 0, 0, 1};
    }
  }
  const auto point = PointOf(line);
  return point ? std::optional(Columns{'\0', true, *point}) : std::nullopt;
}

// What stands between chapter and verse of a reference at the start of a line. A full stop or a comma may stand in any
// text, so behind a known book only.
std::optional<char> LinesForm::PointOf(std::string_view reference) {
  for (const char point : {'.', ','}) {
    const auto row = SplitShortReference(reference) ? std::nullopt : SplitReference(reference, point);
    if (row && FindBook(row->book) != 0) return point;
  }
  return SplitReference(reference, ':') ? std::optional(':') : std::nullopt;
}

// "Jude 5 text": a book of one chapter, which is left out.
std::optional<LinesForm::Row> LinesForm::SplitShortReference(std::string_view line) {
  const std::size_t number = line.find_first_of(kDigits, 1);  // that of "2 John" comes before
  if (number == std::string_view::npos || !IsBlank(line[number - 1])) return std::nullopt;
  Row row;
  row.verse = line.substr(number, FieldLength(line.substr(number)));
  row.text = line.substr(number + row.verse.size());
  if (!row.text.empty() && !IsBlank(row.text.front())) return std::nullopt;
  row.book = TrimBlanks(line.substr(0, number));
  if (!HasOneChapter(FindBook(row.book))) return std::nullopt;
  row.chapter = "1";
  return row;
}

// The reference ends at the line's first colon and the verse number behind it, so a text may hold any character. Of
// full stops and commas, it is the first one between two digits.
std::optional<LinesForm::Row> LinesForm::SplitReference(std::string_view line, char point) {
  if (auto row = SplitShortReference(line)) return row;
  std::size_t colon = line.find(point);
  while (point != ':' && colon != std::string_view::npos && colon != 0 &&
         !(IsDigit(line[colon - 1]) && colon + 1 < line.size() && IsDigit(line[colon + 1]))) {
    colon = line.find(point, colon + 1);
  }
  if (colon == std::string_view::npos || colon == 0) return std::nullopt;
  const std::size_t before = line.find_last_not_of(kDigits, colon - 1);
  if (before == std::string_view::npos || before + 1 == colon) return std::nullopt;
  Row row;
  row.book = TrimBlanks(line.substr(0, before + 1));
  row.chapter = line.substr(before + 1, colon - before - 1);
  std::string_view rest = line.substr(colon + 1);
  row.verse = rest.substr(0, FieldLength(rest));
  rest.remove_prefix(row.verse.size());
  if (rest.starts_with(':')) rest.remove_prefix(1);
  const bool isSeparated = rest.empty() || IsBlank(rest.front());
  if (row.verse.empty() || !isSeparated || row.book.find_first_not_of(kDigits) == std::string_view::npos) {
    return std::nullopt;
  }
  row.text = rest;
  return row;
}

std::optional<LinesForm::Row> LinesForm::SplitRow(std::string_view line, const Columns& columns,
                                                  std::vector<std::string>& fields) {
  if (columns.separator == '\0') return SplitReference(line, columns.point);
  const std::size_t last = std::max({columns.book, columns.chapter, columns.verse, columns.text});
  fields = Split(line, columns.separator, last + 1);
  if (fields.size() <= last && !(fields.size() == last && columns.text == last)) return std::nullopt;
  fields.resize(last + 1);
  if (columns.isReference) {
    const std::string_view reference = fields[columns.book];
    auto row = SplitReference(reference, columns.point != '\0' ? columns.point : PointOf(reference).value_or(':'));
    if (row) row->text = fields[columns.text];
    return row;
  }
  return Row{TrimBlanks(fields[columns.book]), TrimBlanks(fields[columns.chapter]), TrimBlanks(fields[columns.verse]),
             fields[columns.text]};
}

void LinesForm::Read(std::string_view piece) {
  for (;;) {
    const std::size_t end = piece.find('\n');
    if (m_rest.size() + std::min(end, piece.size()) > LineReader::kLongestLine) {
      m_builder.SetLine(m_line + 1);
      m_builder.Fail({Words("Import", "a line of at most 4 MiB was expected")});
    }
    if (end == std::string_view::npos) {
      m_rest += piece;
      return;
    }
    if (m_rest.empty()) {
      TakeLine(piece.substr(0, end));
    } else {
      m_rest += piece.substr(0, end);
      TakeLine(m_rest);
      m_rest.clear();
    }
    piece.remove_prefix(end + 1);
  }
}

void LinesForm::Finish() {
  if (!m_rest.empty()) TakeLine(m_rest);
  if (!m_record.empty()) FailQuote();
}

void LinesForm::TakeLine(std::string_view line) {
  ++m_line;
  if (line.ends_with('\r')) line.remove_suffix(1);
  if (!m_record.empty()) return TakeMore(line);
  if (IsSkipped(line)) return;
  if (!m_columns) {
    m_columns = ColumnsOfHeader(line);
    if (m_columns) return;
    m_columns = ColumnsOf(line);
    if (!m_columns) {
      m_builder.SetLine(m_line);
      return m_builder.Note("left-out-line", Words("Import", "Left out, as it is no verse: %1"), Quoted(line));
    }
  }
  m_builder.SetLine(m_line);
  const bool mayGoOn = Separator() != '\0' && Separator() != '\t' && line.find('"') != std::string_view::npos;
  if (mayGoOn && QuotesOf(line, Separator()) == Quotes::kOpen) {
    m_record = line;
    m_recordLine = m_line;
    return;
  }
  TakeRecord(line);
}

// A further line of a record with a field over several lines.
void LinesForm::TakeMore(std::string_view line) {
  constexpr std::size_t kMostLines = 1000;
  m_record.append("\n").append(line);
  if (m_record.size() > LineReader::kLongestLine || m_line - m_recordLine > kMostLines) FailQuote();
  const Quotes quotes = QuotesOf(m_record, Separator());
  if (quotes == Quotes::kOpen) return;
  if (quotes == Quotes::kOdd) FailQuote();
  TakeRecord(std::exchange(m_record, {}));
}

void LinesForm::FailQuote() {
  m_builder.Fail({Words("Import", "a closing quote was expected: %1"), {Quoted(m_record)}});
}

void LinesForm::TakeRecord(std::string_view line) {
  const auto row = m_columns ? SplitRow(line, *m_columns, m_fields) : std::nullopt;
  if (!row)
    m_builder.Fail({Words("Import", "a verse such as \"GEN 1:1 In the beginning\" was expected: %1"), {Quoted(line)}});
  TakeRow(*row);
}

void LinesForm::TakeRow(const Row& row) {
  if (row.book != m_book) {
    const IntegerReading number = ReadInteger(row.book, 1, kInt16Max);
    if (number.error == 0) {
      m_builder.BeginBookNumber(static_cast<int>(number.value), {});
    } else {
      // Where codes are short, what stands behind Joshua is Judges, and Jude is written out.
      const bool isJudges = BookKey(row.book) == "jud" && FindBook(m_book) == FindBook("JOS");
      m_builder.BeginBook(isJudges ? std::string_view("JDG") : row.book);
    }
    m_book = row.book;
    m_chapter.clear();
  }
  if (row.chapter != m_chapter) {
    m_builder.BeginChapter(row.chapter);
    m_chapter = row.chapter;
  }
  m_builder.BeginVerse(row.verse);
  m_builder.AddText(row.text);
}

}  // namespace folionet
