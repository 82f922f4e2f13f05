#include "CheckCommand.h"

#include "Counted.h"
#include "LibraryCheck.h"
#include "OptionLoading.h"
#include "ProgramFolder.h"
#include "Session.h"
#include "SiteSettings.h"

namespace folionet {
namespace {

// What to do about a finding that does not say so itself.
constexpr char kCorrectPlace[] =
    "Correct this place, or install the translation anew, in Versalia or by \"folionet-cli import --replace\".";

void ShowAll(const Findings& findings, ConsoleUi& ui) {
  for (Finding finding : findings.Kept()) {
    if (finding.remedy.IsEmpty()) {
      finding.remedy = {kCorrectPlace};
    } else if (!ui.IsJson()) {
      const std::string what = finding.what.InEnglish();
      finding.what = {what.ends_with('.') ? "%1 %2" : "%1. %2", {what, finding.remedy.InEnglish()}};
    }
    ui.Show(finding);
  }
  const std::size_t unlisted = findings.Count() - findings.Kept().size();
  if (unlisted > 0) {
    ui.Show(
        {.kind = "more", .severity = Severity::kNote, .what = {"%1 more are not listed.", {std::to_string(unlisted)}}});
  }
  const std::size_t warnings = findings.Count(Severity::kWarning);
  ui.Sum(Counted(findings.Count(Severity::kFault), "fault") +
             (warnings > 0 ? ", " + Counted(warnings, "warning") : "") + " found.",
         findings.Count() == 0 ? Severity::kNote : Severity::kFault);
}

}  // namespace

ExitStatus RunCheck(const CommonOptions& common, const CheckArguments& arguments, ConsoleUi& ui) {
  Session session(common, ui);
  session.Override(arguments.settings);
  session.LoadCodePage();
  LoadMissingOptions(session.store, session.options);
  const std::string programFolder = ProgramFolderToRead(session.chosenProgramFolder);
  session.LoadOwnHtml(programFolder);
  Findings findings;
  const std::string siteTranslation = session.store.SiteText(kSiteTranslation);
  const std::string& translation = arguments.translation.empty() ? siteTranslation : arguments.translation;
  LibraryCheck check({session.glob,
                      session.codePage,
                      session.store.Text("cboLang"),
                      {session.options, session.texts, programFolder},
                      findings,
                      translation});
  check.ExamineLists();
  const std::size_t count = session.glob.cboBibleName.size();
  if (translation.empty()) {
    for (std::size_t place = 0; place < count; ++place) check.ExamineTranslation(session.glob.BibleFiles[place]);
  } else {
    const std::string option = session.OptionName("--translation", kSiteTranslation, !arguments.translation.empty());
    check.ExamineTranslation(session.glob.BibleFiles[session.FindTranslation(option, translation)]);
  }
  ShowAll(findings, ui);
  if (findings.Count(Severity::kFault) == 0) return ui.Done();
  ui.Tell(count == 0 ? "Give Versalia's folders with --versalia-path FOLDER and --module-path FOLDER, or install a "
                       "translation: in Versalia, or by \"folionet-cli import FILE\"."
                     : "Correct these places, or install the translation anew, in Versalia or by \"folionet-cli import "
                       "--replace\", and check again.");
  return kExitRefused;
}

}  // namespace folionet
