#include "VerifyCommand.h"

#include <cstdio>

#include "Paths.h"
#include "RunTimeError.h"
#include "SiteCheck.h"

namespace folionet {
namespace {

void PrintShown(const std::string& line) { std::printf("%s\n", WithoutControls(line).c_str()); }

}  // namespace

ExitStatus RunVerify(const std::string& folder, const std::string& indexName) {
  const std::string index = indexName.empty() ? FindIndexPage(folder) : indexName;
  if (!FolderExists(folder)) {
    RefuseUsage((FileExists(folder) ? "This is no folder: \"" : "There is no folder \"") + folder +
                "\": give the one that compile wrote into.");
  }
  if (index.empty()) {
    RefuseUsage("There is no index.html and no index.htm in \"" + folder +
                "\": give the index page with --index NAME.");
  }
  try {
    const SiteReport report = CheckSite(folder, index);
    for (const BrokenLink& link : report.broken) {
      PrintShown(link.page + ":" + std::to_string(link.line) + ": \"" + link.target + "\" " + FaultText(link) + ".");
    }
    for (const UnreadFile& file : report.unread) PrintShown(file.name + ": cannot be read: " + file.why + ".");
    for (const std::string& link : report.linkedFolders) {
      PrintShown(link + ": a symbolic link to another folder, whose pages were not read: see that the server has it.");
    }
    const std::string unreached =
        ": no page that " + index + " leads to links here: left from an earlier compile, or outside the chosen books.";
    for (const std::string& page : report.unreachable) {
      PrintShown(page + unreached);
    }
    std::printf("%zu pages, %zu links: %zu broken, %zu pages not reached.\n", report.pages, report.links,
                report.broken.size(), report.unreachable.size());
    if (report.leadOut > 0) std::printf("%zu links lead out of the folder and were not followed.\n", report.leadOut);
    if (report.IsSound()) return kExitDone;
    std::fflush(stdout);
    std::fputs(
        "Compile into this folder again; then correct what is still broken in the custom header and footer and in "
        "your own pages and style sheets, or put the missing file there.\n",
        stderr);
    return kExitRefused;
  } catch (const RunTimeError& error) {
    std::fprintf(stderr, "%s\nSee that it may be read, or give another index page with --index NAME.\n", error.what());
    return kExitFailed;
  }
}

}  // namespace folionet
