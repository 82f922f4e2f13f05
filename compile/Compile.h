#pragma once

#include "CompileRequest.h"
#include "UserInterface.h"
#include "modGlob.h"

namespace folionet {

enum class CompileOutcome {
  kDone,        // every page is written and the counts were told
  kRefused,     // validation told why; nothing was written but the style sheet, with chkCSS on
  kFailed,      // a run-time failure was reported; the pages written before it stay
  kStopped,     // the request's isStopped said so; the pages written before it stay
  kEndProgram,  // the chapter index is missing and said so; the program must end
};

// Compiles the chosen translation into a site: a page for every chapter of its text, and the index page for the book
// range; then deletes the pages of the books before the start book. Needs the lists, BookCodes and ChapterIndex of
// `glob` and fills its ChaptersInBook. Every message goes to `ui`; nothing is thrown.
CompileOutcome cmdCompile_Click(const CompileRequest& request, ModGlob& glob, UserInterface& ui);

}  // namespace folionet
