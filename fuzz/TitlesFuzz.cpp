// Builds titles from any template and any words. The result holds no dynamic word any more, and it is not endless.

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

}  // namespace
}  // namespace folionet::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace folionet;
  using namespace folionet::fuzz;
  const std::vector<std::string> parts = Parts(Text(data, size), 4);
  static const VerseCounts counts = TwoBooks();
  SilentUi ui;
  const auto title = BuildTitles(parts[0], {parts[1], parts[2], parts[3]}, counts, ui);
  if (!title) return 0;
  if (title->size() > (std::size_t{1} << 20) + size) std::abort();
  if (title->find("%vs%") != std::string::npos) std::abort();
  return 0;
}
