#include "Preview.h"

#include "BuildTitles.h"
#include "ChapterIndex.h"

namespace folionet {

std::optional<QString> PreviewTitle(const AppState& state, const std::string& pattern) {
  const VerseCounts counts(state.glob);
  const auto text = BuildTitles(state.codePage.Encode(pattern), {state.options.txtBibleSel, state.startBookText, "1"},
                                counts, state.ui);
  if (!text) return std::nullopt;
  return QString::fromStdString(state.codePage.DecodeForDisplay(*text));
}

}  // namespace folionet
