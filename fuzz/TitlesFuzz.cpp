// Builds titles from any template and any words, and once more by plain replacing, one occurrence after the other.

#include "BuildTitles.h"
#include "FuzzFiles.h"
#include "SilentUi.h"

namespace folionet::fuzz {
namespace {

VerseCounts TwoBooks() {
  ModGlob glob;
  glob.cboStartBook = {"Genesis", "\x81%ch%"};
  glob.ChapterIndex = {{1, 1, 31}, {1, 2, 25}, {2, 1, 22}, {}};
  return VerseCounts(glob);
}

// Whether every occurrence was replaced within the limits.
bool ReplaceOneByOne(std::string& text, std::string_view word, const std::string& value, int& replacements) {
  for (std::size_t at = text.find(word); at != std::string::npos; at = text.find(word)) {
    if (value.find(word) != std::string::npos) return false;
    text.replace(at, word.size(), value);
    if (++replacements > 10000 || text.size() > std::size_t{1} << 20) return false;
  }
  return true;
}

std::optional<std::string> PlainTitle(const std::vector<std::string>& parts, const VerseCounts& counts,
                                      UserInterface& ui) {
  std::string text = parts[0];
  int replacements = 0;
  const bool done = ReplaceOneByOne(text, "%bible%", parts[1], replacements) &&
                    ReplaceOneByOne(text, "%bk%", parts[2], replacements) &&
                    ReplaceOneByOne(text, "%ch%", parts[3], replacements) &&
                    ReplaceOneByOne(text, "%vs%", "1-" + counts.GetVSCnt(parts[2], parts[3], ui), replacements);
  return done ? std::optional(text) : std::nullopt;
}

}  // namespace
}  // namespace folionet::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace folionet;
  using namespace folionet::fuzz;
  const std::vector<std::string> parts = Parts(Text(data, size), 4);
  static const VerseCounts counts = TwoBooks();
  SilentUi ui;
  const auto title = BuildTitles(parts[0], {parts[1], parts[2], parts[3]}, counts, ui);
  if (title != PlainTitle(parts, counts, ui)) std::abort();
  return 0;
}
