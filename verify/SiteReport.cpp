#include "SiteReport.h"

namespace folionet {
namespace {

SiteStep StepFor(const BrokenTarget& target) {
  switch (target.fault) {
    case LinkFault::kUnreadable:
      return SiteStep::kPermissions;
    case LinkFault::kCharset:
      return SiteStep::kCharset;
    case LinkFault::kSign:
      return SiteStep::kTitles;
    case LinkFault::kMissing:
    case LinkFault::kNoFile:
      return target.isPicture ? SiteStep::kPictures : SiteStep::kCorrect;
    default:
      return SiteStep::kCorrect;
  }
}

}  // namespace

std::set<SiteStep> StepsFor(const SiteReport& report) {
  std::set<SiteStep> steps;
  for (const BrokenTarget& target : report.broken) steps.insert(StepFor(target));
  for (const UnreadFile& file : report.unread) steps.insert(file.isUtf16 ? SiteStep::kUtf8 : SiteStep::kPermissions);
  return steps;
}

std::string FaultText(const BrokenTarget& target) {
  switch (target.fault) {
    case LinkFault::kOtherCase:
      return "is there in another letter case only, " + target.otherCase;
    case LinkFault::kBackslash:
      return "holds \"\\\", which no address does";
    case LinkFault::kUnreadable:
      return "cannot be read";
    case LinkFault::kFolder:
      return "is a folder without an index.html";
    case LinkFault::kNoFile:
      return "is a folder, and a file was expected";
    case LinkFault::kCharset:
      return "is not in the page's charset, so that browsers look for another name";
    case LinkFault::kSign:
      return "is a file, but \"#\", \"?\", \"%\" and \":\" have another meaning in an address";
    case LinkFault::kMissing:
      break;
  }
  return "is not there";
}

}  // namespace folionet
