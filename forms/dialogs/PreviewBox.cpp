#include "PreviewBox.h"

#include <QLineEdit>
#include <optional>

#include "BuildTitles.h"
#include "ChapterIndex.h"
#include "TextBox.h"

namespace folionet {
namespace {

// A template with its dynamic words filled in for chapter 1 of the start book, as a page would have it, for showing.
// Nothing when BuildTitles reported a failure.
std::optional<QString> PreviewTitle(const AppState& state, const std::string& pattern) {
  // In letters, not in the code page's bytes: one that it lacks would be shown as its reference.
  const auto shown = [&state](const std::string& bytes) { return state.codePage.DecodeForDisplay(bytes); };
  ModGlob glob;
  glob.ChapterIndex = state.glob.ChapterIndex;
  for (const std::string& title : state.glob.cboStartBook) glob.cboStartBook.push_back(shown(title));
  const auto text = BuildTitles(pattern, {shown(state.options.txtBibleSel), shown(state.startBookText), "1"},
                                VerseCounts(glob), state.ui);
  if (!text) return std::nullopt;
  return QString::fromStdString(CodePage("utf-8").DecodeForDisplay(*text));
}

}  // namespace

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
