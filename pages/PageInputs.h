#pragma once

#include <string>

#include "BuildTitles.h"
#include "CodePage.h"
#include "PageNames.h"
#include "PageOptions.h"
#include "UserInterface.h"
#include "modGlob.h"

namespace folionet {

// The templates of chapter pages, being built for one page after the other.
struct ChapterTemplates {
  explicit ChapterTemplates(const PageOptions& options)
      : title(options.frmPAgeTitles.txtPageTitles, options.txtBibleSel),
        description(options.frmKeywords.txtDescription, options.txtBibleSel),
        keywords(options.frmKeywords.txtKeyWords, options.txtBibleSel) {}

  PageTemplate title;
  PageTemplate description;
  PageTemplate keywords;
};

// What the page writers read beside the CompileContext; the same for all pages of a run.
struct PageInputs {
  const PageOptions& options;  // texts in the bytes of the page's code page
  const ModGlob& glob;
  const PageNames& names;
  const VerseCounts& counts;
  const std::string& linkToMain;     // of BuildLinkToMain
  const std::string& indexFileName;  // UTF-8
  ChapterTemplates& templates;
  UserInterface& ui;
};

// The text of a template for a page of the run. Throws AlreadyReported where BuildTitles reported a failure.
std::string FillTemplate(const PageInputs& inputs, PageTemplate& pattern, std::string_view book,
                         std::string_view chapter);

// The text of a template of the index page, which has no book and no chapter.
std::string FillIndexTemplate(const PageInputs& inputs, std::string_view pattern);

// The title of a book, by its number from 1; throws RunTimeError (kSubscriptOutOfRange) for a book without one.
const std::string& BookName(const PageInputs& inputs, int book);

}  // namespace folionet
