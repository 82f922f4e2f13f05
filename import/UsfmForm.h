#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "TextForm.h"
#include "UsfmMarkers.h"

namespace folionet {

// USFM 2 and 3: markers that begin with "\", those of words and phrases closed by one with "*".
//
//   \id GEN
//   \h Genesis
//   \c 1
//   \p
//   \v 1 In the \nd Lord|x="y"\nd* beginning\f + \ft A note.\f*
class UsfmForm : public TextForm {
 public:
  explicit UsfmForm(BibleBuilder& builder) : m_builder(builder) {}

  void Read(std::string_view piece) override;
  void Finish() override;

 private:
  // What the text at hand is.
  enum class Role { kText, kBook, kTitle, kChapter, kVerse, kLeftOut };

  // A character style that is open.
  struct Style {
    std::string name;
    bool isLeftOut = false;
  };

  enum class Piece { kMoreFollows, kLast };

  // Reads what is complete of m_rest; of the last piece, all.
  void ReadRest(Piece piece);
  void TakeText(std::string_view text);
  void TakeVerseText(std::string_view text);
  void TakeArgument(std::string_view text);
  bool EndsUnknown(std::string_view rest) const;
  void NeedBook(const char* marker, const std::string& argument) const;
  void EndArgument();
  void BeginMarker(std::string_view name);
  void BeginLine(MarkerKind kind, std::string_view name);
  void EndMarker(std::string_view name);
  void BeginUnknown(std::string_view name);
  void CountLines(std::string_view text);

  BibleBuilder& m_builder;
  std::string m_rest;  // the end of what was read, up to a marker that may go on
  std::size_t m_line = 1;

  Role m_role = Role::kLeftOut;
  TitleKind m_title = TitleKind::kShort;
  std::string m_argument;  // of \id, \h, \c and \v, as far as it was read
  std::vector<Style> m_styles;
  std::string m_note;  // the marker of the note that is open; empty for none
  std::size_t m_noteLine = 0;
  std::string m_unknown;   // the marker at hand that we do not know; empty for none
  bool m_hasBook = false;  // \id was there
  bool m_isInAttributes = false;
  bool m_isInMilestone = false;
  bool m_isInSidebar = false;
};

}  // namespace folionet
