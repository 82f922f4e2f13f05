#include "PreviewBox.h"

#include <QLineEdit>

#include "Preview.h"
#include "TextBox.h"

namespace folionet {

bool ShowPreview(const AppState& state, const std::string& pattern, QLineEdit& box) {
  const auto preview = PreviewTitle(state, pattern);
  if (!preview) return false;
  box.setText(*preview);
  box.setCursorPosition(0);
  return true;
}

bool ShowPreview(const AppState& state, const std::string& pattern, TextBox& box) {
  const auto preview = PreviewTitle(state, pattern);
  if (preview) box.setPlainText(*preview);
  return preview.has_value();
}

}  // namespace folionet
