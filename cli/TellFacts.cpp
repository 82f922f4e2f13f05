#include "TellFacts.h"

#include <string>
#include <utility>

namespace folionet {
namespace {

// What programs know a fact by, and what a person does about it at the command line.
struct Telling {
  const char* word;
  const char* step;  // "%1" is the setting that mends it, as --set takes it
};

Telling TellingOf(RunFactKind kind) {
  switch (kind) {
    case RunFactKind::kTookFirst:
      return {"took-first", "Name one with --translation NAME."};
    case RunFactKind::kEndsBeforeStart:
      return {"ends-before-start", "Give the books in their order with --start-book and --end-book."};
    case RunFactKind::kRemovesPages:
      return {"removes-pages", ""};
    case RunFactKind::kRemovesLaterPages:
      return {"removes-later-pages", ""};
    case RunFactKind::kIndexTakesPage:
      return {"index-takes-page", "Give it a name of its own with --index-address."};
    case RunFactKind::kOtherTranslation:
      return {"other-translation",
              "Pages of the same names are written over; choose another folder with --output if that is not meant."};
    case RunFactKind::kPagesMeet:
      return {"pages-meet", "Give other titles with --language-file, or short names: --set \"%1\"."};
    case RunFactKind::kOldPages:
      return {"old-pages", "\"folionet-cli verify FOLDER\" names them: delete them where nobody needs them."};
    case RunFactKind::kCharsetNotKnown:
      return {"charset-not-known", "Give another: --set \"%1\"."};
    case RunFactKind::kCharsetNotFit:
      return {"charset-not-fit", "Give another: --set \"%1\"."};
    case RunFactKind::kLanguageNotListed:
      return {"language-not-listed", "Give one that is listed with --set \"Lang=CODE NAME\", or add it to lang.txt."};
    case RunFactKind::kUnknownWord:
      return {"unknown-word", "Correct it."};
    case RunFactKind::kWordInHtml:
      return {"word-in-html", ""};
    case RunFactKind::kTextCharset:
      return {"text-charset", "Give the charset that it is in: --set \"%1\"."};
    case RunFactKind::kTitlesCharset:
      return {"titles-charset", "Give the charset that they are in: --set \"%1\"."};
    case RunFactKind::kCharsetsDiffer:
      break;
  }
  return {"charsets-differ", "Give other titles with --language-file, or convert one of the two files."};
}

Finding FindingOf(const RunFact& fact) {
  const Telling telling = TellingOf(fact.kind);
  const std::string setting =
      fact.remedy.key.empty() ? "Charset=NAME DESCRIPTION" : fact.remedy.key + "=" + fact.remedy.value;
  return {.kind = telling.word,
          .severity = fact.isWarning ? Severity::kWarning : Severity::kNote,
          .what = fact.notice,
          .remedy = {telling.step, {setting}}};
}

}  // namespace

void TellFacts(const std::vector<RunFact>& facts, bool dryRun, ConsoleUi& ui) {
  for (const RunFact& fact : facts) {
    const bool isRemoval = fact.kind == RunFactKind::kRemovesPages || fact.kind == RunFactKind::kRemovesLaterPages;
    Finding finding = FindingOf(fact);
    if (dryRun && (isRemoval || (ui.IsJson() && !fact.isWarning))) {
      finding.severity = Severity::kNote;
      ui.Show(finding);
    } else if (fact.isWarning) {
      ui.Warn(std::move(finding));
    } else if (!isRemoval && !ui.IsQuiet()) {
      ui.Tell(finding.what.InEnglish() + " " + finding.remedy.InEnglish());
    }
  }
}

}  // namespace folionet
