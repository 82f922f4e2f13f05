// Builds titles from any template and any words, and once more by plain replacing, one occurrence after the other.

#include <algorithm>

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

enum class Replacing { kDone, kEndless, kTooLong };

// Searching a text anew for each occurrence takes its time: one that grows and grows is not followed to its limits.
constexpr std::size_t kLongestFollowed = std::size_t{1} << 12;
constexpr int kMostFollowed = 200;

Replacing ReplaceOneByOne(std::string& text, std::string_view word, const std::string& value, int& replacements) {
  for (std::size_t at = text.find(word); at != std::string::npos; at = text.find(word)) {
    if (value.find(word) != std::string::npos) return Replacing::kEndless;
    text.replace(at, word.size(), value);
    if (++replacements > kMostFollowed || text.size() > kLongestFollowed) return Replacing::kTooLong;
  }
  return Replacing::kDone;
}

Replacing PlainTitle(const std::vector<std::string>& parts, const VerseCounts& counts, UserInterface& ui,
                     std::string& text) {
  text = parts[0];
  int replacements = 0;
  Replacing result = ReplaceOneByOne(text, "%bible%", parts[1], replacements);
  if (result == Replacing::kDone) result = ReplaceOneByOne(text, "%bk%", parts[2], replacements);
  // A number has no control characters.
  std::replace_if(
      text.begin(), text.end(), [](unsigned char c) { return c < 0x20 || c == 0x7F; }, ' ');
  if (result == Replacing::kDone) result = ReplaceOneByOne(text, "%ch%", parts[3], replacements);
  if (result != Replacing::kDone) return result;
  return ReplaceOneByOne(text, "%vs%", "1-" + counts.GetVSCnt(parts[2], parts[3], ui), replacements);
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
  std::string plain;
  const Replacing result = PlainTitle(parts, counts, ui, plain);
  if (result != Replacing::kTooLong && title != (result == Replacing::kDone ? std::optional(plain) : std::nullopt)) {
    std::abort();
  }
  return 0;
}
