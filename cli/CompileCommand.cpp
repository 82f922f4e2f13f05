#include "CompileCommand.h"

#include <csignal>
#include <cstdio>
#include <cstring>

#include "ChangeJournal.h"
#include "ChapterIndex.h"
#include "Compile.h"
#include "Effects.h"
#include "ImportedText.h"
#include "Installation.h"
#include "OptionLoading.h"
#include "Paths.h"
#include "ProgramFolder.h"
#include "RunFacts.h"
#include "RunTimeError.h"
#include "Sitemap.h"
#include "StopSignals.h"
#include "TellFacts.h"
#include "Text.h"

namespace folionet {
namespace {

void EndUnless(bool good) {
  if (!good) throw ExitWith(kExitFailed);
}

std::string OutputPath(const CompileArguments& arguments, const Session& session) {
  if (!arguments.output.empty()) return WithSeparator(NativePath(arguments.output));
  return IsChosenFolder(session.options.main.Dir1) ? WithSeparator(NativePath(session.options.main.Dir1))
                                                   : CompileRequest().txtOutputPath;
}

// A folder that cannot be made, as in a home that is read only, does not matter where nothing of it is needed.
std::string ProgramFolderOf(Session& session, const CompileArguments& arguments) {
  if (arguments.dryRun) return ProgramFolderToRead(session.chosenProgramFolder);
  try {
    return FindProgramFolder(session.chosenProgramFolder);
  } catch (const RunTimeError& error) {
    if (!session.options.chkCSS) return ProgramFolderToRead(session.chosenProgramFolder);
    session.ui.ShowErrorReport({Procedure::kFormLoad, error});
    throw ExitWith(kExitFailed);
  }
}

// Chooses the translation and reads its chapter index, as a start of the form does.
void SelectTranslation(const CompileArguments& arguments, Session& session, CompileRequest& request) {
  const ModGlob& glob = session.glob;
  if (!arguments.translation.empty()) {
    request.cboBibleName = static_cast<int>(session.FindTranslation(arguments.translation));
  } else if (!glob.unreadableTexts.empty() && !glob.cboBibleName.empty()) {
    RefuseUsage("Which translation is meant cannot be told: name one with --translation NAME, or mend that text.");
  } else if (!glob.cboBibleName.empty()) {
    request.cboBibleName = 0;
  }
  const std::size_t place = static_cast<std::size_t>(std::max(request.cboBibleName, 0));
  session.Choose(place);
  request.options.txtBibleSel = request.cboBibleName < 0 ? "" : PageName(glob, place, session.codePage);
  request.txtFilename = VerseFile(glob, session.codePage, glob.BibleFiles[place]);
  if (request.cboBibleName < 0) return;
  EndUnless(BooksInChapters(session.glob, place, session.codePage, session.ui) == Outcome::kDone);
  EndUnless(LoadVerseCount(session.glob, IndexFile(glob, session.codePage, glob.BibleFiles[place]), session.ui) ==
            Outcome::kDone);
  if (!glob.Imported.IsThere()) return;
  const auto [first, last] = BooksOfText(glob);
  request.cboStartBook = first;
  request.cboEndBook = last;
}

// What would become of files, for one who asked.
void PrintPlan(const char* state, const std::vector<std::string>& names, ConsoleUi& ui) {
  for (const std::string& name : names) {
    if (ui.IsJson()) {
      ui.Show({.kind = state, .severity = Severity::kNote, .file = name});
    } else {
      ui.Print(std::string(state).append(9 - std::strlen(state), ' ') + name);
    }
  }
}

// A person's files that were in the place of pages.
void TellKept(const std::vector<std::string>& names, ConsoleUi& ui) {
  constexpr std::size_t kShown = 10;
  for (std::size_t i = 0; i < names.size() && i < kShown; ++i) {
    ui.Tell(names[i] + " was not made by Folionet: it is kept as " + KeptName(names[i]) + ".");
  }
  if (names.size() > kShown) {
    ui.Tell(std::to_string(names.size() - kShown) + " more files were kept in the same way.");
  }
}

// What the run did, or would do, as the arguments ask for it.
void PrintChanges(const CompileArguments& arguments, const SiteChanges& changes, ConsoleUi& ui) {
  if (arguments.dryRun) {
    PrintPlan("new", changes.New(), ui);
    PrintPlan("changed", changes.Changed(), ui);
    PrintPlan("same", changes.Same(), ui);
    PrintPlan("removed", changes.Removed(), ui);
    for (const std::string& name : changes.Kept()) PrintPlan("kept", {KeptName(name)}, ui);
    ui.Sum(std::to_string(changes.New().size()) + " new, " + std::to_string(changes.Changed().size()) + " changed, " +
               std::to_string(changes.Same().size()) + " the same, " + std::to_string(changes.Removed().size()) +
               " removed. Nothing was written.",
           Severity::kWarning);
    return;
  }
  TellKept(changes.Kept(), ui);
  if (!arguments.listChanged) return;
  for (const std::string& name : changes.New()) ui.Print(name);
  for (const std::string& name : changes.Changed()) ui.Print(name);
  for (const std::string& name : changes.pending) ui.Print(name);
  if (!changes.trouble.empty()) ui.Tell("Warning: a list that is lost cannot be told again: " + changes.trouble);
}

// The run was broken off by a person, or by a machine that is shut down.
ExitStatus EndStopped(ConsoleUi& ui) {
  ui.Tell("Stopped: the page at hand was finished, the others are as they were. Compile again.");
  return StopSignal() == SIGINT ? kExitInterrupted : kExitTerminated;
}

void RefuseOtherThanFolders(const std::string& sitemap) {
  if (!IsPublicAddress(sitemap)) {
    RefuseUsage(
        "--sitemap: an address such as https://example.org/bible/ was expected (no user's name, no \"?\", no \"#\"; "
        "a host in other letters as \"xn--...\"): \"" +
        sitemap + "\"");
  }
  if (NamesAPage(sitemap)) {
    RefuseUsage("--sitemap: the address of the folder was expected, without the name of a page: \"" + sitemap + "\"");
  }
}

void RefuseMoreThanOneLine(const std::string& indexAddress) {
  if (InOneLine(indexAddress) == indexAddress) return;
  RefuseUsage("--index-address must be one line: \"" + indexAddress + "\".");
}

void SelectBooks(const CompileArguments& arguments, const Session& session, CompileRequest& request) {
  if (!arguments.books.empty()) {
    const BookRange books = session.FindBooks(arguments.books);
    request.cboStartBook = books.first;
    request.cboEndBook = books.last;
  }
  if (!arguments.startBook.empty()) request.cboStartBook = session.FindBook(arguments.startBook);
  if (!arguments.endBook.empty()) request.cboEndBook = session.FindBook(arguments.endBook);
}

}  // namespace

ExitStatus RunCompile(const CommonOptions& common, const CompileArguments& arguments, ConsoleUi& ui) {
  if (arguments.indexAddress) RefuseMoreThanOneLine(*arguments.indexAddress);
  if (!arguments.sitemap.empty()) RefuseOtherThanFolders(arguments.sitemap);
  if (arguments.listChanged || arguments.dryRun) ui.HideResults();
  Session session(common, ui);
  session.Override(arguments.settings);
  if (!arguments.languageFile.empty()) {
    session.CheckLanguageFile("--language-file", arguments.languageFile);
    session.store.Override("cboLang", arguments.languageFile);
  }
  session.LoadOptions();
  session.LoadLists();

  CompileRequest request;
  request.options = session.options;
  SelectTranslation(arguments, session, request);
  SelectBooks(arguments, session, request);
  if (arguments.indexAddress) request.options.txthttpRoot = *arguments.indexAddress;
  request.txtOutputPath = OutputPath(arguments, session);
  request.makeOutputFolder = true;
  request.onlyChosen = arguments.onlyChosen;
  request.isTranslationNamed = !arguments.translation.empty();
  request.cboLang = BookTitlesFile(session.store, session.glob);
  request.programFolder = ProgramFolderOf(session, arguments);
  session.LoadOwnHtml(request.programFolder);
  request.texts = session.texts;
  const LinkEffects effects = Effects(request.options.frmEffects);
  request.texts.RolloverStyle = effects.RolloverStyle;
  request.texts.BodyLinkTag = effects.BodyLinkTag;

  SiteChanges changes;
  request.changes = &changes;
  request.stateFolder = UserStateFolder();
  request.listsChanges = arguments.listChanged && !arguments.dryRun;
  request.isStopped = [] { return StopSignal() != 0; };
  request.sitemapAddress = arguments.sitemap;
  request.dryRun = arguments.dryRun;
  if (request.cboBibleName >= 0) {
    (arguments.dryRun ? TellPlannedFacts : TellFacts)(FindRunFacts(request, session.glob), ui);
  }
  const StopSignals noted;
  const CompileOutcome outcome = cmdCompile_Click(request, session.glob, session.ui);
  // What has changed by the time of a failure is to be uploaded all the same: the next run finds it as it should be.
  if (outcome == CompileOutcome::kDone || !arguments.dryRun) PrintChanges(arguments, changes, ui);
  if (request.listsChanges && changes.knowsPending && std::fflush(stdout) == 0) {
    ChangesDelivered(request.stateFolder, request.txtOutputPath);
  }
  switch (outcome) {
    case CompileOutcome::kDone:
      return ui.Done();
    case CompileOutcome::kStopped:
      return EndStopped(ui);
    case CompileOutcome::kRefused:
      return kExitRefused;
    case CompileOutcome::kFailed:
    case CompileOutcome::kEndProgram:
      break;
  }
  return kExitFailed;
}

}  // namespace folionet
