#pragma once

#include "CompileRequest.h"
#include "ConsoleUi.h"
#include "SiteChanges.h"
#include "modGlob.h"

namespace folionet {

// Prints what a dry run found, as lines or as JSON: what would become of each file, the pages and bytes of each book,
// which pages of earlier compiles will lie there unreached, and the counts.
void PrintPlan(const CompileRequest& request, const ModGlob& glob, const SiteChanges& changes, ConsoleUi& ui);

}  // namespace folionet
