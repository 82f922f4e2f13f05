#include "MainCompile.h"

#include "FolderPickers.h"
#include "LibraryLists.h"
#include "PageNames.h"
#include "QtText.h"
#include "SiteFile.h"
#include "ui_frmMain.h"

namespace folionet {
CompileRequest GatherRequest(const AppState& state, const Ui::frmMain& controls, const LibraryLists& lists,
                             const FolderPickers& folders) {
  CompileRequest request;
  request.options = state.options;
  request.texts = state.texts;
  request.txtOutputPath = folders.OutputPath();
  request.txtFilename = FromQt(controls.txtFilename->text());
  request.cboLang = FromQt(controls.cboLang->Text());
  request.cboBibleName = lists.SelectedTranslation();
  request.cboStartBook = controls.cboStartBook->currentIndex();
  request.cboEndBook = controls.cboEndBook->currentIndex();
  request.programFolder = state.programFolder;
  const SiteChoices site = ChoicesOfSite(state.store);
  request.sitemapAddress = site.sitemap;
  request.onlyChosen = site.onlyChosen;
  return request;
}

std::string IndexPagePath(const CompileRequest& request) {
  return request.txtOutputPath + IndexFileName(request.options.txthttpRoot);
}

}  // namespace folionet
