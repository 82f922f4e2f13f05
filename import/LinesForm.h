#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "TextForm.h"

namespace folionet {

// One verse a line, with the book as code, name or number:
//
//   GEN 1:1 In the beginning God created the heaven and the earth.
//   Ge1:1 In the beginning
//   II Kings 2:1: And it came to pass
//   Genesis<TAB>1<TAB>1<TAB>In the beginning
//   1,1,1,"In the beginning God created"
//   "Genesis 1:1","In the beginning"
//   Jude 5 But I will remind you
//   Gen.1.1 In the beginning
//   1. Mose 1,1 Am Anfang
//
// A field in quotes may hold line breaks, where no tabs separate. A table may begin with a line that names its columns
// (book, chapter, verse and text, or b, c, v and t; or reference and text; others are passed over), and may have a
// running number before the book. Blank lines and those that begin with "#" are skipped.
class LinesForm : public TextForm {
 public:
  explicit LinesForm(BibleBuilder& builder);

  // How many lines may come before the first verse, such as the name of the text.
  static constexpr int kMostBefore = 10;

  // Whether a line has this form, a line with the names of columns included.
  static bool IsLine(std::string_view line);

  // Whether a line may stand before the first verse: it begins with no book that we know.
  static bool MayStandBefore(std::string_view line);

  void Read(std::string_view piece) override;
  void Finish() override;

 private:
  // Where the columns of a table are. Without a separator a line begins with its reference.
  struct Columns {
    char separator = '\0';
    bool isReference = false;  // the column of the book holds "GEN 1:1"
    char point = ':';          // what stands between chapter and verse
    std::size_t book = 0;
    std::size_t chapter = 1;
    std::size_t verse = 2;
    std::size_t text = 3;
  };

  struct Row {
    std::string_view book;
    std::string_view chapter;
    std::string_view verse;
    std::string_view text;
  };

  static std::optional<Columns> ColumnsOfHeader(std::string_view line);
  static std::optional<Columns> ColumnsOf(std::string_view line);
  static std::optional<char> PointOf(std::string_view reference);
  static std::optional<Row> SplitReference(std::string_view line, char point);
  static std::optional<Row> SplitShortReference(std::string_view line);
  static std::optional<Row> SplitRow(std::string_view line, const Columns& columns, std::vector<std::string>& fields);

  char Separator() const { return m_columns ? m_columns->separator : '\0'; }
  void TakeLine(std::string_view line);
  void TakeMore(std::string_view line);
  void TakeRecord(std::string_view line);
  [[noreturn]] void FailQuote();
  void TakeRow(const Row& row);

  BibleBuilder& m_builder;
  std::string m_rest;
  std::size_t m_line = 0;
  std::string m_record;  // one that goes on in the next line; empty for none
  std::size_t m_recordLine = 0;
  std::optional<Columns> m_columns;
  std::vector<std::string> m_fields;
  std::string m_book;
  std::string m_chapter;
};

}  // namespace folionet
