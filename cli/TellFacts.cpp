#include "TellFacts.h"

namespace folionet {
namespace {

bool IsRemoval(const Finding& fact) { return fact.kind == "removes-pages" || fact.kind == "removes-later-pages"; }

void Tell(const Finding& fact, ConsoleUi& ui) {
  if (fact.severity == Severity::kWarning) {
    ui.Warn(fact);
  } else if (!IsRemoval(fact) && !ui.IsQuiet()) {
    ui.Tell(fact.what.InEnglish() + " " + fact.remedy.InEnglish());
  }
}

}  // namespace

void TellFacts(const std::vector<Finding>& facts, ConsoleUi& ui) {
  for (const Finding& fact : facts) Tell(fact, ui);
}

void TellPlannedFacts(const std::vector<Finding>& facts, ConsoleUi& ui) {
  for (const Finding& fact : facts) {
    if (!IsRemoval(fact) && (!ui.IsJson() || fact.severity == Severity::kWarning)) {
      Tell(fact, ui);
    } else {
      ui.Show(fact);
    }
  }
}

}  // namespace folionet
