#pragma once

#include "XmlForm.h"

namespace folionet {

// USX 2 and 3, one book a file: verses between milestones, what a text is told by the styles of its paragraphs.
//
//   <usx version="3.0"><book code="GEN" style="id"/><para style="h">Genesis</para><chapter number="1" style="c"/>
//   <para style="p"><verse number="1" style="v"/>In the beginning<note style="f">...</note></para></usx>
class UsxForm : public XmlForm {
 public:
  using XmlForm::XmlForm;

 private:
  Part Begin(const XmlElement& element) override;

  Part PartOfStyle(std::string_view style);
};

}  // namespace folionet
