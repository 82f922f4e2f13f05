#pragma once

#include "CustomHtmlDialog.h"

namespace folionet {

// HTML for the foot of every page, after the credit line.
class frmCustomizeFooter : public CustomHtmlDialog {
  Q_OBJECT

 public:
  explicit frmCustomizeFooter(AppState& state, QWidget* parent = nullptr);
};

}  // namespace folionet
