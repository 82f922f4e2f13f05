#include "Preview.h"

#include "BuildTitles.h"
#include "ChapterIndex.h"

namespace folionet {

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

}  // namespace folionet
