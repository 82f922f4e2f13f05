#pragma once

#include <string>

#include "BuildTitles.h"
#include "CodePage.h"
#include "PageNames.h"
#include "PageOptions.h"
#include "UserInterface.h"
#include "modGlob.h"

namespace folionet {

// What the page writers read beside the CompileContext; the same for all pages of a run.
struct PageInputs {
  const PageOptions& options;  // texts in the bytes of the page's code page
  const ModGlob& glob;
  const PageNames& names;
  const VerseCounts& counts;
  const std::string& txtBackToString;  // of SetString
  const std::string& indexFileName;    // UTF-8
  UserInterface& ui;
};

// BuildTitles for a page of the run; throws AlreadyReported where it reported a failure.
std::string PageText(const PageInputs& inputs, std::string_view pattern, std::string_view book,
                     std::string_view chapter);

// The title of a book, by its number from 1; throws RunTimeError (kSubscriptOutOfRange) for a book without one.
const std::string& BookName(const PageInputs& inputs, int book);

}  // namespace folionet
