#include "VerifyCommand.h"

#include <algorithm>
#include <csignal>
#include <string>
#include <vector>

#include "CommandEnd.h"
#include "Counted.h"
#include "FileHandle.h"
#include "GeneratorLine.h"
#include "OptionLoading.h"
#include "PageNames.h"
#include "Paths.h"
#include "RunTimeError.h"
#include "SiteSettings.h"
#include "SiteVerification.h"
#include "StalePages.h"
#include "StopSignals.h"
#include "StoredSettings.h"

namespace folionet {
namespace {

// Prints the counts, after all that was found.
void ShowReport(const SiteReport& report, ConsoleUi& ui) {
  for (const Finding& finding : report.findings) ui.Show(finding);
  ui.Sum(Counted(report.pages, "page") + ", " + Counted(report.links, "link") + ": " +
             std::to_string(report.brokenLinks) + " broken, " + Counted(report.unreached.size(), "page") +
             " not reached.",
         report.findings.empty() ? Severity::kNote : Severity::kFault);
  if (report.leadOut > 0) {
    ui.Sum(Counted(report.leadOut, "link") +
               (report.leadOut == 1 ? " leads out of the folder and was" : " lead out of the folder and were") +
               " not followed.",
           Severity::kNote);
  }
  for (const Sentence& remedy : report.remedies) ui.Tell(remedy.InEnglish());
}

void ShowName(const std::string& page, FindingKind kind, ConsoleUi& ui) {
  if (ui.IsJson()) {
    ui.Show({.kind = kind, .severity = Severity::kNote, .file = page});
  } else {
    ui.Print(page);
  }
}

// Each name is out before its page is deleted, for nothing would tell it again.
ExitStatus RemoveStale(const SiteReport& report, ConsoleUi& ui) {
  std::signal(SIGPIPE, SIG_IGN);  // what is left is told also when nobody reads the names any more
  const StopSignals noted;
  RemovedPages pages;
  try {
    pages = RemovePages(report, [&](const std::string& page) {
      if (StopSignal() != 0) return false;
      ShowName(page, "removed", ui);
      return ui.Flush();
    });
  } catch (const RunTimeError& error) {
    ui.Tell(error.what());  // and what to do
    return kExitFailed;
  }
  for (const Finding& finding : pages.kept) ui.Warn(finding);
  if (pages.left > 0) {
    ui.Tell("Stopped: " + Counted(pages.left, "page") + (pages.left == 1 ? " was" : " were") +
            " not removed. Remove the stale pages again.");
    return StopSignal() != 0 ? StoppedStatus() : kExitFailed;
  }
  return pages.kept.empty() ? ui.Done() : kExitFailed;
}

// Lists or removes the pages that nothing leads to, where that is certain.
ExitStatus TellStale(const VerifyArguments& arguments, const SiteReport& report, ConsoleUi& ui) {
  if (!report.isStaleCertain && !report.stale.empty()) {
    for (const Finding& finding : report.findings) {
      if (finding.kind != "unreached") ui.Warn(finding);
    }
    ui.Tell(std::string("Nothing was ") + (arguments.removeStale ? "removed" : "listed") +
            ": what the index leads to is not certain.");
    return kExitRefused;
  }
  if (arguments.removeStale) return RemoveStale(report, ui);
  for (const std::string& page : report.stale) ShowName(page, "stale", ui);
  return ui.Done();
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

// Whether a compile has written the page: a site with pages of both kinds of names has two index pages, and from the
// wrong one nothing leads to the pages of the other.
bool IsOurs(const std::string& path) {
  const FileHandle file = FileHandle::Open(path.c_str(), O_RDONLY | O_NONBLOCK);
  return file.IsOpen() && IsOurPage(file);
}

std::string FoundIndex(const std::string& folder) {
  const std::string index = FindIndexPage(folder);
  if (const std::string base = WithSeparator(NativePath(folder));
      IsOurs(base + "index.html") && IsOurs(base + "index.htm")) {
    RefuseUsage("Both index.html and index.htm in \"" + folder +
                "\" are pages of Folionet: give the one that was compiled last with --index NAME.");
  }
  if (!index.empty()) return index;
  const std::vector<std::string> names = ListFolder(folder);
  if (std::none_of(names.begin(), names.end(), IsHtmlName)) {
    RefuseUsage("There is no page in \"" + folder + "\": compile into it first.");
  }
  RefuseUsage("There is no index.html and no index.htm in \"" + folder + "\": give the index page with --index NAME.");
}

// Takes the folder and the index page of a site's file, where they are not given.
void TakeFromSite(const std::string& site, VerifyArguments& arguments) {
  StoredSettings store(StoredSettings::DefaultFolder());
  store.UseSite(site);
  const std::string folder = store.Text("Dir1");
  if (!IsChosenFolder(folder)) RefuseUsage(site + " names no folder with Dir1: give the one that compile wrote into.");
  if (arguments.folder.empty()) arguments.folder = NativePath(folder);
  const std::string address = store.SiteText(kSiteIndexAddress);
  if (arguments.indexName.empty() && !address.empty()) arguments.indexName = IndexFileName(address);
}

}  // namespace

ExitStatus RunVerify(const CommonOptions& common, VerifyArguments arguments, ConsoleUi& ui) {
  if (!common.site.empty()) TakeFromSite(common.site, arguments);
  const std::string& folder = arguments.folder;
  const std::string& indexName = arguments.indexName;
  if (!FolderExists(folder)) {
    RefuseUsage((FileExists(folder) ? "This is no folder: \"" : "There is no folder \"") + folder +
                "\": give the one that compile wrote into.");
  }
  try {
    if (!indexName.empty()) RefuseMissingIndex(folder, indexName);
    SiteRequest request{folder, indexName.empty() ? FoundIndex(folder) : indexName};
    request.words = {"--set Charset=...", "--set Use83=1", " (verify --remove-stale)"};
    const SiteReport report = VerifySite(request);
    if (arguments.stale || arguments.removeStale) return TellStale(arguments, report, ui);
    ShowReport(report, ui);
    return report.isSound ? ui.Done() : kExitRefused;
  } catch (const RunTimeError& error) {
    ui.Tell(error.what());
    ui.Tell("See that it may be read, or give another index page with --index NAME.");
    return kExitFailed;
  }
}

}  // namespace folionet
