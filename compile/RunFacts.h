#pragma once

#include <set>
#include <string>
#include <vector>

#include "CompileRequest.h"
#include "Finding.h"
#include "modGlob.h"

namespace folionet {

// What a compile run will do that a person may not expect, found without running it: a warning, or a note of what is
// only good to know.

// The kind of the fact that the ending book stands before the starting one.
inline constexpr char kEndsBeforeStart[] = "ends-before-start";

// The kind of the fact that the text has no chapter of the chosen books.
inline constexpr char kNoChapters[] = "no-chapters";

// The kinds of the two facts that tell of deletions; their first argument is the number of pages. Of the books before
// the starting one it is a warning where some of the pages are there now.
inline constexpr char kRemovesPages[] = "removes-pages";
inline constexpr char kRemovesLaterPages[] = "removes-later-pages";

// The pages of ours in the output folder that this run neither writes nor deletes.
std::set<std::string> FindOldPages(const CompileRequest& request, const ModGlob& glob);

// Of the whole request: all of these, and those of typed texts, of names and of what lies in the output folder, if one
// is chosen. Needs the lists of `glob` and ChapterIndex, and a translation chosen.
std::vector<Finding> FindRunFacts(const CompileRequest& request, const ModGlob& glob);

}  // namespace folionet
