#pragma once

#include <set>
#include <string>
#include <vector>

#include "CompileRequest.h"
#include "Finding.h"
#include "modGlob.h"

namespace folionet {

// What a compile run will do that a person may not expect, found without running it: a warning, or a note of what is
// only good to know. Of the two that tell of deletions, "removes-pages" and "removes-later-pages", the first argument
// is the number of pages; of the books before the starting one it is a warning where some of the pages are there now.

// The pages of ours in the output folder that this run neither writes nor deletes.
std::set<std::string> FindOldPages(const CompileRequest& request, const ModGlob& glob);

// Of the whole request: all of these, and those of typed texts, of names and of what lies in the output folder, if one
// is chosen. Needs the lists of `glob` and ChapterIndex, and a translation chosen.
std::vector<Finding> FindRunFacts(const CompileRequest& request, const ModGlob& glob);

}  // namespace folionet
