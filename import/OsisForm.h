#pragma once

#include <string>

#include "XmlForm.h"

namespace folionet {

// OSIS: verses as containers, or between milestones with "sID" and "eID".
//
//   <osisText xml:lang="en"><div type="book" osisID="Gen"><chapter osisID="Gen.1">
//     <verse osisID="Gen.1.1">In the beginning<note>...</note></verse>
//     <verse osisID="Gen.1.2" sID="Gen.1.2"/>And the earth<verse eID="Gen.1.2"/></chapter></div></osisText>
class OsisForm : public XmlForm {
 public:
  using XmlForm::XmlForm;

 private:
  Part Begin(const XmlElement& element) override;

  // Modules of verses that are written as OSIS, one by one, have elements that end in another verse, or nowhere.
  bool PutsUpWithEnd(std::string_view name) override { return NoteEnd(name); }

  Part BeginDivision(const XmlElement& element);
  Part BeginTitle(const XmlElement& element);
  Part BeginVerse(const XmlElement& element);
  void GoTo(std::string_view book, std::string_view chapter);

  bool m_isInWork = false;
  bool m_goesOn = false;  // the verse, behind the division beside the text that stands in it
  std::string m_book;     // as osisID has it; empty for none
  std::string m_chapter;  // empty for none
};

}  // namespace folionet
