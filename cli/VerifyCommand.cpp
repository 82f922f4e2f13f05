#include "VerifyCommand.h"

#include <cstdio>

#include "Paths.h"
#include "RunTimeError.h"
#include "SiteCheck.h"

namespace folionet {

ExitStatus RunVerify(const std::string& folder, const std::string& indexName) {
  const std::string index = indexName.empty() ? FindIndexPage(folder) : indexName;
  if (!FolderExists(folder)) {
    RefuseUsage("There is no folder \"" + folder + "\": give the one that compile wrote into.");
  }
  if (index.empty()) {
    RefuseUsage("There is no index.html and no index.htm in \"" + folder +
                "\": give the index page with --index NAME.");
  }
  try {
    const SiteReport report = CheckSite(folder, index);
    for (const BrokenLink& link : report.broken) {
      std::printf("%s:%zu: \"%s\" %s.\n", link.page.c_str(), link.line, link.target.c_str(), FaultText(link).c_str());
    }
    for (const std::string& page : report.unreachable) {
      std::printf("%s: %s does not lead here; it may be stale.\n", page.c_str(), index.c_str());
    }
    std::printf("%zu pages, %zu links: %zu broken, %zu pages possibly stale.\n", report.pages, report.links,
                report.broken.size(), report.unreachable.size());
    if (report.IsSound()) return kExitDone;
    std::fflush(stdout);
    std::fputs(
        "Compile into this folder again; then correct what is still broken in the custom header and footer, or "
        "put the missing file there.\n",
        stderr);
    return kExitRefused;
  } catch (const RunTimeError& error) {
    std::fprintf(stderr, "%s\nSee that it may be read, or give another index page with --index NAME.\n", error.what());
    return kExitFailed;
  }
}

}  // namespace folionet
