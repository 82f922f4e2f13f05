#pragma once

#include <functional>
#include <optional>
#include <string>

#include "CodePage.h"
#include "PageNames.h"
#include "PageOptions.h"
#include "PageTexts.h"
#include "SiteChanges.h"
#include "TextCharset.h"
#include "modGlob.h"

namespace folionet {

// What the main form holds when Compile is pressed. Texts are UTF-8 but for `options.txtBibleSel`, which is the name as
// the catalogue has it.
struct CompileRequest {
  PageOptions options;
  PageTexts texts;

  // The chosen folder, as NativePath gives it and with a separator at its end: it stands so from here on. This initial
  // text stands for none.
  std::string txtOutputPath = "txtOutputPath";

  std::string txtFilename;           // the verse file
  std::optional<TextSample> sample;  // of the verse file, where that is known already
  std::string cboLang;               // the file name of the book titles; "Default" stands for none
  int cboBibleName = -1;             // the chosen translation's place in BibleNames; -1 for none
  bool isTranslationNamed = true;    // by the person, or else it is the first of all
  int cboStartBook = 0;              // places in the book lists
  int cboEndBook = 65;
  std::string programFolder;       // where default.css is; ends in the folder separator
  std::string styleSheet;          // its path; empty for default.css in that folder
  bool makeOutputFolder = false;   // whether a missing output folder is made
  std::string sitemapAddress;      // the output folder's public address; empty for no sitemap.xml
  bool onlyChosen = false;         // whether the pages of the books after the ending one are deleted too
  bool dryRun = false;             // nothing is written or deleted; the counts are told all the same
  SiteChanges* changes = nullptr;  // where what became of each file is noted, if anywhere

  // Where is kept what runs change that do not come to their end (ChangeJournal); empty for nowhere. With
  // `listsChanges` that holds for this run too, until ChangeJournal::ForgetAll says that its list has been told.
  std::string stateFolder;
  bool listsChanges = false;

  std::function<bool()> isStopped;  // asked between two pages: whether the run is to end there; may be empty
};

inline bool IsFolderChosen(const CompileRequest& request) {
  return request.txtOutputPath != CompileRequest().txtOutputPath;
}

// The names of the pages that a run writes; `glob` has the lists of books.
inline PageNames PageNamesOf(const CompileRequest& request, const ModGlob& glob) {
  return {glob.cboStartBook, request.options.chkUse83, CodePage(request.texts.PageCharset)};
}

}  // namespace folionet
