#pragma once

#include "XmlForm.h"

namespace folionet {

// USFX, all books in one file: its elements are named like the markers of USFM, or tell the marker in "sfm".
//
//   <usfx><book id="GEN"><h>Genesis</h><c id="1"/><p><v id="1"/>In the beginning<f>...</f><ve/></p></book></usfx>
class UsfxForm : public XmlForm {
 public:
  using XmlForm::XmlForm;

 private:
  Part Begin(const XmlElement& element) override;
};

}  // namespace folionet
