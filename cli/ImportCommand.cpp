#include "ImportCommand.h"

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <string_view>
#include <system_error>

#include "BookTable.h"
#include "CommandEnd.h"
#include "Counted.h"
#include "Finding.h"
#include "ImportError.h"
#include "ImportText.h"
#include "LibraryWriter.h"
#include "PageEncoding.h"
#include "Paths.h"
#include "RunTimeError.h"
#include "Session.h"
#include "StoredSettings.h"
#include "TextDecoder.h"

namespace folionet {
namespace {

namespace fs = std::filesystem;

// What a person does next, where the message does not say so.
std::string_view NextStepAfter(const RunTimeError& error) {
  const bool isInWords = dynamic_cast<const ImportError*>(&error) != nullptr;
  switch (error.Number()) {
    case kFileAlreadyOpen:
      return " Replace it with --replace, or give this one another --name and --stem.";
    case kDiskFull:
      return " Make room on the disk, or give a library elsewhere with --into FOLDER, and import again.";
    case kPermissionDenied:
    case kPathNotFound:
      if (isInWords) return {};
      break;
    default:
      break;
  }
  if (isInWords || error.Line() != 0) return " Mend that, or give another file, and import again.";
  return " See that this file or folder can be read and written, and import again.";
}

// A translation that is there and is not to be replaced is a refusal.
ExitStatus TellError(const RunTimeError& error, ConsoleUi& ui) {
  std::string text = error.Item();
  if (error.Line() != 0) text += ":" + std::to_string(error.Line());
  if (!error.Detail().empty()) text += ": " + error.Detail();
  ui.Tell(text);
  ui.Tell("Nothing was written." + std::string(NextStepAfter(error)));
  return error.Number() == kFileAlreadyOpen ? kExitRefused : kExitFailed;
}

void RefuseWrongArguments(const ImportArguments& arguments, const LibraryRequest& request) {
  if (const Sentence refusal = RefusalOf(request); !refusal.IsEmpty()) RefuseUsage(refusal.InEnglish());
  if (!arguments.charset.empty() && !IsCharset(arguments.charset)) {
    RefuseUsage("--charset: the name of a charset, such as windows-1251, was expected: \"" + arguments.charset + "\"");
  }
  for (const std::string& path : arguments.paths) {
    if (path != "-" && IsMissing(NativePath(path))) {
      RefuseUsage("There is no file or folder \"" + path + "\": give one that holds a Bible text.");
    }
  }
  if (!arguments.titles.empty() && IsMissing(NativePath(arguments.titles))) {
    RefuseUsage("--titles: there is no file \"" + arguments.titles + "\": give one of book titles.");
  }
}

// A warning that a person can do something about is told always, the others unless fewer words are asked for.
void TellFindings(const LibraryPlan& plan, ConsoleUi& ui) {
  for (const Finding& finding : plan.findings) {
    const bool hasRemedy = !finding.remedy.IsEmpty();
    if (finding.severity == Severity::kWarning && hasRemedy) {
      ui.Warn(finding);
    } else if (!ui.IsQuiet() || ui.IsJson()) {
      Finding told = finding;
      if (hasRemedy) told.what = {"%1 %2", {finding.what.InEnglish(), finding.remedy.InEnglish()}};
      told.remedy = {};
      ui.Remark(told);
    }
  }
}

std::string ResultLine(const LibraryPlan& plan) {
  return plan.stem + ": " + plan.text.name + ": " + Counted(static_cast<std::size_t>(plan.books), "book") + ", " +
         Counted(static_cast<std::size_t>(plan.chapters), "chapter") + ", " + Counted(plan.verses, "verse") + ", " +
         plan.text.charset + (plan.text.language.empty() ? std::string() : ", language " + plan.text.language) +
         ", in " + plan.library.Folder();
}

// What was read, as JSON: each book with its numbers, and the translation that becomes of it.
void ShowPlan(const ImportedBible& bible, const LibraryPlan& plan, ConsoleUi& ui) {
  const auto show = [&ui](FindingKind kind, int book, const std::string& text) {
    ui.Show({.kind = kind, .severity = Severity::kNote, .place = {book, 0, {}}, .what = {"%1", {text}}});
  };
  const auto chapters = bible.Chapters();
  for (auto first = chapters.begin(); first != chapters.end();) {
    const auto end = std::find_if(first, chapters.end(), [&](const auto& other) { return other.book != first->book; });
    show("book", first->book,
         std::string(BookAt(first->book).title) + ": " + Counted(static_cast<std::size_t>(end - first), "chapter") +
             ", " + Counted(std::prev(end)->end - first->first, "verse"));
    first = end;
  }
  show("import", 0, ResultLine(plan));
}

// How the library that was written is chosen, where another one is used without a word.
void TellHowToChoose(const CommonOptions& common, const LibraryPlan& plan, ConsoleUi& ui) {
  const Session session(common, ui);
  const std::string known = session.glob.InstallPath;
  std::error_code ignored;
  if (fs::equivalent(known, plan.library.Folder(), ignored)) return;
  if (known.empty()) {
    ui.Tell("Choose this library with --versalia-path " + plan.library.Folder());
    return;
  }
  ui.Tell("Another library is known, " + known + "; choose this one with --versalia-path " + plan.library.Folder());
}

}  // namespace

ExitStatus RunImport(const CommonOptions& common, const ImportArguments& arguments, ConsoleUi& ui) {
  LibraryRequest request;
  request.name = arguments.name;
  request.stem = arguments.stem;
  request.folder = NativePath(arguments.into);
  request.language = arguments.language;
  request.titlesFile = NativePath(arguments.titles);
  request.fallbackName = NameOfPath(arguments.paths.front());
  request.replace = arguments.replace;
  RefuseWrongArguments(arguments, request);
  LibraryPlan plan;
  try {
    const StoredSettings settings(StoredSettings::DefaultFolder());
    settings.FinishChange();
    request.pageLanguage = StoredLanguage(settings);
    const ImportedBible bible = ReadBible({arguments.paths, arguments.charset});
    plan = ImportLibrary(bible, request, arguments.dryRun ? Doing::kPlan : Doing::kChange);
    TellFindings(plan, ui);
    if (common.json) ShowPlan(bible, plan, ui);
    ui.Sum(ResultLine(plan), Severity::kNote);
    if (arguments.dryRun) ui.Sum("Nothing was written.", Severity::kNote);
  } catch (const RunTimeError& error) {
    return TellError(error, ui);
  }
  if (!arguments.dryRun && !common.quiet) TellHowToChoose(common, plan, ui);
  return ui.Done();
}

}  // namespace folionet
