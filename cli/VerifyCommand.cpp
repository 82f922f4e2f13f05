#include "VerifyCommand.h"

#include <cstdio>

#include "Paths.h"
#include "RunTimeError.h"
#include "SiteCheck.h"

namespace folionet {
namespace {

void PrintShown(const std::string& line) { std::printf("%s\n", WithoutControls(line).c_str()); }

std::string Counted(std::size_t number, const std::string& thing) {
  return std::to_string(number) + " " + thing + (number == 1 ? "" : "s");
}

const char* StepText(SiteStep step) {
  switch (step) {
    case SiteStep::kPermissions:
      return "See that what cannot be read is a file, and to its permissions.";
    case SiteStep::kUtf8:
      return "Save the pages in UTF-16 as UTF-8.";
    case SiteStep::kCharset:
      return "Compile again with the charset that the book titles are in (--set Charset=...), or with short file names "
             "(--set Use83=1).";
    case SiteStep::kTitles:
      return "Compile again with short file names (--set Use83=1), or with book titles that lack these signs.";
    case SiteStep::kPictures:
      return "Copy the missing pictures into the folder, or choose others.";
    case SiteStep::kCorrect:
      break;
  }
  return "Compile into this folder again; then correct what is still broken in the custom header and footer and in "
         "your "
         "own pages and style sheets, or put the missing file there.";
}

void PrintFindings(const SiteReport& report, const std::string& index) {
  for (const BrokenTarget& broken : report.broken) {
    const std::string pages = broken.pages > 1 ? " (" + std::to_string(broken.pages) + " pages, this one first)" : "";
    PrintShown(broken.page + ":" + std::to_string(broken.line) + ": \"" + broken.target + "\" " + FaultText(broken) +
               pages + ".");
  }
  for (const UnreadFile& file : report.unread) PrintShown(file.name + ": cannot be read: " + file.why + ".");
  for (const std::string& link : report.linkedFolders) {
    PrintShown(link + ": a symbolic link to another folder, whose pages were not read: see that the server has it.");
  }
  const std::string unreached =
      ": no page that " + index + " leads to links here: left from an earlier compile, or outside the chosen books.";
  for (const std::string& page : report.unreachable) PrintShown(page + unreached);
}

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
    PrintFindings(report, index);
    PrintShown(Counted(report.pages, "page") + ", " + Counted(report.links, "link") + ": " +
               std::to_string(report.brokenLinks) + " broken, " + Counted(report.unreachable.size(), "page") +
               " not reached.");
    if (report.leadOut > 0) {
      PrintShown(Counted(report.leadOut, "link") +
                 (report.leadOut == 1 ? " leads out of the folder and was" : " lead out of the folder and were") +
                 " not followed.");
    }
    if (report.IsSound()) return kExitDone;
    std::fflush(stdout);
    for (const SiteStep step : StepsFor(report)) std::fprintf(stderr, "%s\n", StepText(step));
    return kExitRefused;
  } catch (const RunTimeError& error) {
    std::fprintf(stderr, "%s\nSee that it may be read, or give another index page with --index NAME.\n", error.what());
    return kExitFailed;
  }
}

}  // namespace folionet
