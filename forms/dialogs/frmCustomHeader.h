#pragma once

#include "CustomHtmlDialog.h"

namespace folionet {

// HTML for the top of every page, right after the body tag.
class frmCustomHeader : public CustomHtmlDialog {
  Q_OBJECT

 public:
  explicit frmCustomHeader(AppState& state, QWidget* parent = nullptr);
};

}  // namespace folionet
