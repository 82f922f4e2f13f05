#include "VerifyCommand.h"

#include <algorithm>
#include <string>
#include <vector>

#include "Paths.h"
#include "RunTimeError.h"
#include "SiteCheck.h"

namespace folionet {
namespace {

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

void PrintFindings(const SiteReport& report, const std::string& index, ConsoleUi& ui) {
  for (const BrokenTarget& broken : report.broken) {
    const std::string pages = broken.pages > 1 ? " (" + std::to_string(broken.pages) + " pages, this one first)" : "";
    ui.Print(broken.page + ":" + std::to_string(broken.line) + ": \"" + broken.target + "\" " + FaultText(broken) +
             pages + ".");
  }
  for (const UnreadFile& file : report.unread) ui.Print(file.name + ": cannot be read: " + file.why + ".");
  for (const std::string& link : report.linkedFolders) {
    ui.Print(link + ": a symbolic link to another folder, whose pages were not read: see that the server has it.");
  }
  const std::string unreached =
      ": no page that " + index + " leads to links here: left from an earlier compile, or outside the chosen books.";
  for (const std::string& page : report.unreachable) ui.Print(page + unreached);
}

// Ends the command when there is no such index page in a folder.
void RefuseMissingIndex(const std::string& folder, const std::string& index) {
  if (index.find_first_of("/\\") != std::string::npos) {
    RefuseUsage("--index: a file name without a folder was expected: \"" + index + "\"");
  }
  const std::string base = WithSeparator(NativePath(folder));
  const std::string other = LocateIgnoringCase(base, index).substr(base.size());
  if (other != index) {
    RefuseUsage("--index: \"" + index + "\" is there in another letter case only: give \"" + other + "\".");
  }
  if (FolderExists(base + index))
    RefuseUsage("--index: this is a folder: \"" + index + "\": give a page in \"" + folder + "\".");
  const std::vector<std::string> names = ListFolder(base);
  if (std::find(names.begin(), names.end(), index) == names.end()) {
    RefuseUsage("--index: there is no page \"" + index + "\" in \"" + folder + "\": give one that is there.");
  }
}

std::string FoundIndex(const std::string& folder) {
  const std::string index = FindIndexPage(folder);
  if (!index.empty()) return index;
  const std::vector<std::string> names = ListFolder(folder);
  if (std::none_of(names.begin(), names.end(), IsHtmlName)) {
    RefuseUsage("There is no page in \"" + folder + "\": compile into it first.");
  }
  RefuseUsage("There is no index.html and no index.htm in \"" + folder + "\": give the index page with --index NAME.");
}

}  // namespace

ExitStatus RunVerify(const VerifyArguments& arguments, ConsoleUi& ui) {
  const std::string& folder = arguments.folder;
  const std::string& indexName = arguments.indexName;
  if (!FolderExists(folder)) {
    RefuseUsage((FileExists(folder) ? "This is no folder: \"" : "There is no folder \"") + folder +
                "\": give the one that compile wrote into.");
  }
  try {
    if (!indexName.empty()) RefuseMissingIndex(folder, indexName);
    const std::string index = indexName.empty() ? FoundIndex(folder) : indexName;
    const SiteReport report = CheckSite(folder, index);
    PrintFindings(report, index, ui);
    ui.Print(Counted(report.pages, "page") + ", " + Counted(report.links, "link") + ": " +
             std::to_string(report.brokenLinks) + " broken, " + Counted(report.unreachable.size(), "page") +
             " not reached.");
    if (report.leadOut > 0) {
      ui.Print(Counted(report.leadOut, "link") +
               (report.leadOut == 1 ? " leads out of the folder and was" : " lead out of the folder and were") +
               " not followed.");
    }
    if (report.IsSound()) return kExitDone;
    for (const SiteStep step : StepsFor(report)) ui.Tell(StepText(step));
    return kExitRefused;
  } catch (const RunTimeError& error) {
    ui.Tell(error.what());
    ui.Tell("See that it may be read, or give another index page with --index NAME.");
    return kExitFailed;
  }
}

}  // namespace folionet
