#include "TellFacts.h"

#include <string_view>

#include "RunFacts.h"

namespace folionet {

void TellFacts(const std::vector<Finding>& facts, bool dryRun, ConsoleUi& ui) {
  for (const Finding& fact : facts) {
    const std::string_view kind = fact.kind;
    const bool isRemoval = kind == kRemovesPages || kind == kRemovesLaterPages;
    const bool isWarning = fact.severity == Severity::kWarning;
    if (dryRun && (isRemoval || (ui.IsJson() && !isWarning))) {
      Finding note = fact;
      note.severity = Severity::kNote;
      ui.Show(note);
    } else if (isWarning) {
      ui.Warn(fact);
    } else if (!isRemoval && !ui.IsQuiet()) {
      ui.Tell(fact.what.InEnglish() + " " + fact.remedy.InEnglish());
    }
  }
}

}  // namespace folionet
