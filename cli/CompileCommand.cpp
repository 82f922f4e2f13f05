#include "CompileCommand.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "ChangeJournal.h"
#include "ChapterIndex.h"
#include "ChosenText.h"
#include "CommandEnd.h"
#include "Compile.h"
#include "Effects.h"
#include "Installation.h"
#include "OptionLoading.h"
#include "Paths.h"
#include "PlanLines.h"
#include "ProgramFolder.h"
#include "Replacement.h"
#include "RunFacts.h"
#include "RunTimeError.h"
#include "SiteSettings.h"
#include "Sitemap.h"
#include "StopSignals.h"
#include "TellFacts.h"
#include "Text.h"
#include "TranslationNames.h"

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
std::string ProgramFolderOf(const Session& session, const CompileArguments& arguments) {
  try {
    return FindProgramFolder(session.chosenProgramFolder, arguments.dryRun ? Doing::kPlan : Doing::kChange);
  } catch (const RunTimeError&) {
    if (session.options.chkCSS) throw;
    return ProgramFolderToRead(session.chosenProgramFolder);
  }
}

// What a site's file chooses stands where the command line says nothing else.
CompileArguments WithSite(CompileArguments arguments, const Session& session) {
  const SiteChoices site = ChoicesOfSite(session.store);
  if (arguments.translation.empty()) arguments.translation = site.translation;
  if (arguments.books.empty()) arguments.books = site.books;
  if (arguments.sitemap.empty()) arguments.sitemap = site.sitemap;
  if (!arguments.indexAddress && !site.indexAddress.empty()) arguments.indexAddress = site.indexAddress;
  if (site.onlyChosen) arguments.onlyChosen = true;
  return arguments;
}

// Chooses the translation and reads its chapter index, as a start of the form does.
void SelectTranslation(const CompileArguments& arguments, const std::string& option, Session& session,
                       CompileRequest& request) {
  const ModGlob& glob = session.glob;
  if (!arguments.translation.empty()) {
    request.cboBibleName = static_cast<int>(session.FindTranslation(option, arguments.translation));
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

// What the run did, as the arguments ask for it; false where a list that was asked for has not reached its reader.
bool PrintChanges(const CompileArguments& arguments, const SiteChanges& changes, ConsoleUi& ui) {
  TellKept(changes.Kept(), ui);
  if (!arguments.listChanged) return true;
  for (const std::string& name : changes.New()) ui.Print(name);
  for (const std::string& name : changes.Changed()) ui.Print(name);
  for (const std::string& name : changes.pending) ui.Print(name);
  // Apart from those, for nobody is to upload them.
  bool isTold = ui.Flush();
  for (const auto& names : {changes.Removed(), changes.pendingRemoved}) {
    for (const std::string& name : names) isTold = ui.Tell("Removed: " + name) && isTold;
  }
  if (!changes.trouble.empty()) ui.Tell("Warning: a list that is lost cannot be told again: " + changes.trouble);
  return isTold;
}

// The run was broken off by a person, or by a machine that is shut down.
ExitStatus EndStopped(ConsoleUi& ui) {
  ui.Tell("Stopped: the page at hand was finished, the others are as they were. Compile again.");
  return StoppedStatus();
}

void RefuseOtherThanFolders(const std::string& option, const std::string& sitemap) {
  if (!IsPublicAddress(sitemap)) {
    RefuseUsage(option +
                ": an address such as https://example.org/bible/ was expected (no user's name, no \"?\", no \"#\"; "
                "a host in other letters as \"xn--...\"): \"" +
                sitemap + "\"");
  }
  if (NamesAPage(sitemap)) {
    RefuseUsage(option + ": the address of the folder was expected, without the name of a page: \"" + sitemap + "\"");
  }
}

void RefuseMoreThanOneLine(const std::string& option, const std::string& indexAddress) {
  if (InOneLine(indexAddress) == indexAddress) return;
  RefuseUsage(option + " must be one line: \"" + indexAddress + "\".");
}

void SelectBooks(const CompileArguments& arguments, const std::string& option, const Session& session,
                 CompileRequest& request) {
  if (!arguments.books.empty()) {
    const BookRange books = session.FindBooks(option, arguments.books);
    request.cboStartBook = books.first;
    request.cboEndBook = books.last;
  }
  if (!arguments.startBook.empty()) request.cboStartBook = session.FindBook("--start-book", arguments.startBook);
  if (!arguments.endBook.empty()) request.cboEndBook = session.FindBook("--end-book", arguments.endBook);
}

// The pages' options and what is to be compiled, of arguments that have the site's in them; `given` are those of the
// command line.
CompileRequest RequestOf(const CompileArguments& arguments, const CompileArguments& given, Session& session) {
  CompileRequest request;
  request.options = session.options;
  SelectTranslation(arguments, session.OptionName("--translation", kSiteTranslation, !given.translation.empty()),
                    session, request);
  SelectBooks(arguments, session.OptionName("--books", kSiteBooks, !given.books.empty()), session, request);
  if (arguments.indexAddress) request.options.txthttpRoot = *arguments.indexAddress;
  request.txtOutputPath = OutputPath(arguments, session);
  request.makeOutputFolder = true;
  request.onlyChosen = arguments.onlyChosen;
  request.isTranslationNamed = !arguments.translation.empty();
  request.cboLang = BookTitlesFile(session.store, session.glob);
  request.programFolder = ProgramFolderOf(session, arguments);
  request.styleSheet = StyleSheetToRead(session.chosenProgramFolder);
  session.LoadOwnHtml(request.programFolder);
  request.texts = session.texts;
  const LinkEffects effects = Effects(request.options.frmEffects);
  request.texts.RolloverStyle = effects.RolloverStyle;
  request.texts.BodyLinkTag = effects.BodyLinkTag;
  request.stateFolder = UserStateFolder();
  request.listsChanges = arguments.listChanged && !arguments.dryRun;
  request.isStopped = [] { return StopSignal() != 0; };
  request.sitemapAddress = arguments.sitemap;
  request.dryRun = arguments.dryRun;
  return request;
}

void RefuseWrongAddresses(const CompileArguments& arguments, const CompileArguments& given, const Session& session) {
  if (arguments.indexAddress) {
    const bool isGiven = given.indexAddress.has_value();
    RefuseMoreThanOneLine(session.OptionName("--index-address", kSiteIndexAddress, isGiven), *arguments.indexAddress);
  }
  if (arguments.sitemap.empty()) return;
  RefuseOtherThanFolders(session.OptionName("--sitemap", kSiteSitemap, !given.sitemap.empty()), arguments.sitemap);
}

[[noreturn]] void EndUnsaved(const std::string& what, const RunTimeError& error, const Session& session) {
  const std::string why = error.Detail().substr(0, error.Detail().find_last_not_of('.') + 1);
  session.ui.Tell(what + " cannot be saved in " + error.Item() + ": " + why +
                  ". Give another file with --save-settings FILE.");
  throw ExitWith(kExitFailed);
}

// Before a long run whose settings could not be saved.
void TrySaving(const std::string& file, const Session& session) {
  try {
    if (!file.empty()) TryReplacement(file);
  } catch (const RunTimeError& error) {
    EndUnsaved("The site's settings", error, session);
  }
}

// Keeps what was compiled for the next time, where a person asked for that.
void SaveRun(const std::string& file, const CompileRequest& request, const Session& session) {
  if (file.empty()) return;
  const auto number = [](int place) { return std::to_string(place + 1); };
  const std::string& stem = session.glob.BibleFiles[static_cast<std::size_t>(request.cboBibleName)];
  const SiteChoices choices{ShownStem(stem, session.codePage),
                            number(request.cboStartBook) + "-" + number(request.cboEndBook),
                            request.options.txthttpRoot,
                            request.sitemapAddress,
                            request.onlyChosen,
                            session.glob.Imported.IsThere()};
  PageOptions options = session.options;
  std::error_code failed;
  const std::filesystem::path folder = std::filesystem::absolute(request.txtOutputPath, failed);
  options.main.Dir1 = failed ? request.txtOutputPath : folder.string();
  try {
    SaveSite(file, choices, options, session.store);
  } catch (const RunTimeError& error) {
    EndUnsaved("The site is compiled, but its settings", error, session);
  }
  if (!session.ui.IsQuiet()) session.ui.Tell("Saved in " + file + ": --settings " + file + " compiles it again.");
}

}  // namespace

ExitStatus RunCompile(const CommonOptions& common, const CompileArguments& given, ConsoleUi& ui) {
  Session session(common, ui);
  const CompileArguments arguments = WithSite(given, session);
  RefuseWrongAddresses(arguments, given, session);
  if (arguments.listChanged || arguments.dryRun) ui.HideResults();
  session.Override(arguments.settings);
  if (!arguments.languageFile.empty()) {
    session.CheckLanguageFile("--language-file", arguments.languageFile);
    session.store.Override("cboLang", arguments.languageFile);
  }
  session.LoadOptions();
  session.LoadLists();

  CompileRequest request = RequestOf(arguments, given, session);
  TrySaving(arguments.saveSettings, session);
  SiteChanges changes;
  request.changes = &changes;
  if (request.cboBibleName >= 0) {
    (arguments.dryRun ? TellPlannedFacts : TellFacts)(FindRunFacts(request, session.glob), ui);
  }
  const StopSignals noted;
  const CompileOutcome outcome = cmdCompile_Click(request, session.glob, session.ui);
  // What has changed by the time of a failure is to be uploaded all the same: the next run finds it as it should be.
  const bool isTold = arguments.dryRun || PrintChanges(arguments, changes, ui);
  if (outcome == CompileOutcome::kDone && arguments.dryRun) PrintPlan(request, session.glob, changes, ui);
  if (request.listsChanges && changes.knowsPending && isTold) changes.journal->ForgetAll();
  switch (outcome) {
    case CompileOutcome::kDone:
      SaveRun(arguments.saveSettings, request, session);
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
