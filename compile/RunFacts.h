#pragma once

#include <string>
#include <vector>

#include "CompileRequest.h"
#include "Notice.h"
#include "modGlob.h"

namespace folionet {

// What a compile run will do that a person may not expect, found without running it.
enum class RunFactKind {
  kEndsBeforeStart,   // the ending book stands before the starting one: the index page leads nowhere
  kRemovesPages,      // %1 pages of the books before the starting one are deleted; a warning where some are there now
  kIndexTakesPage,    // the index page %1 takes the place of a chapter's page
  kOtherTranslation,  // the output folder holds pages of the translation %1, which is another one
  kPagesMeet,         // the books %2 have the same page names, such as %1: the last one's pages are kept
};

// The setting that mends what a fact tells, for a run or for good; its key is empty where none does.
struct Remedy {
  std::string key;
  std::string value;
};

struct RunFact {
  RunFactKind kind;
  bool isWarning;  // or only something to know
  Notice notice;
  Remedy remedy{};
};

// Of the chosen books: for a line beside the two lists too. Needs ChapterIndex.
std::vector<RunFact> FindRangeFacts(const ModGlob& glob, int cboStartBook, int cboEndBook);

// Of the whole request, those of the range first. Needs the lists of `glob` and ChapterIndex, and a translation chosen.
std::vector<RunFact> FindRunFacts(const CompileRequest& request, const ModGlob& glob);

}  // namespace folionet
