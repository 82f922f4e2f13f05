#pragma once

#include "XmlForm.h"

namespace folionet {

// Zefania XML; its names in any case.
//
//   <XMLBIBLE biblename="..."><INFORMATION><language>ENG</language></INFORMATION>
//   <BIBLEBOOK bnumber="1" bname="Genesis"><CHAPTER cnumber="1">
//   <VERS vnumber="1">In the beginning<NOTE>...</NOTE></VERS></CHAPTER></BIBLEBOOK></XMLBIBLE>
class ZefaniaForm : public XmlForm {
 public:
  using XmlForm::XmlForm;

 private:
  Part Begin(const XmlElement& element) override;
};

}  // namespace folionet
