#pragma once

#include <string>
#include <vector>

#include "CompileRequest.h"
#include "Notice.h"
#include "modGlob.h"

namespace folionet {

// What a compile run will do that a person may not expect, found without running it.
enum class RunFactKind {
  kTookFirst,          // no translation was named, and of several the first, %1, is compiled
  kEndsBeforeStart,    // the ending book stands before the starting one: the index page leads nowhere
  kRemovesPages,       // %1 pages of the books before the starting one are deleted; a warning where some are there now
  kRemovesLaterPages,  // the same of the books after the ending one, where only chosen books are to stay
  kIndexTakesPage,     // the index page %1 takes the place of a chapter's page
  kOtherTranslation,   // the output folder holds pages of the translation %1, which is another one
  kPagesMeet,          // the books %2 have the same page names, such as %1: the last one's pages are kept
  kOldPages,           // %1 pages of earlier compiles, such as %2, lie in the folder, which this one does not write
  kCharsetNotKnown,    // no browser knows the charset %1
  kCharsetNotFit,      // pages cannot be in the charset %1
  kLanguageNotListed,  // no list knows the language %1
  kUnknownWord,        // %1 in the setting %2 is no dynamic word
  kWordInHtml,         // %1 in the file %2 is not replaced: only titles and META texts have dynamic words
  kTextCharset,        // the verses are not in the charset of the pages
  kTitlesCharset,      // the book titles are not
  kCharsetsDiffer,     // the verses and the book titles are not in one charset
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
std::vector<RunFact> FindRangeFacts(const CompileRequest& request, const ModGlob& glob);

// What is wrong between the charset of the pages and the bytes of the verse file and of the book titles (BookCodes and
// the start-book list).
std::vector<RunFact> FindCharsetFacts(const CompileRequest& request, const ModGlob& glob);

// Of the typed texts: words that look dynamic and are not, a language that nobody knows.
std::vector<RunFact> FindTextFacts(const CompileRequest& request);

// Of the whole request: all of these, and those of names and of what lies in the output folder, if one is chosen. Needs
// the lists of `glob` and ChapterIndex, and a translation chosen.
std::vector<RunFact> FindRunFacts(const CompileRequest& request, const ModGlob& glob);

}  // namespace folionet
