#include "RequestOfForm.h"

#include <QCoreApplication>

#include "FolderPickers.h"
#include "LibraryLists.h"
#include "PageNames.h"
#include "QtText.h"
#include "SiteSettings.h"
#include "Sitemap.h"
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

bool RefusesSitemap(const CompileRequest& request, const AppState& state) {
  const std::string& address = request.sitemapAddress;
  if (address.empty() || (IsPublicAddress(address) && !NamesAPage(address))) return false;
  const QString text = QCoreApplication::translate(
      "folionet::frmMain",
      "The address of the sitemap, \"%1\", is none of a folder such as https://example.org/bible/.");
  state.ui.ShowMessage(
      {MessageIcon::kWarning, "Sitemap", FromQt(text.arg(ToQt(address))) + "\r\n" + state.store.SitePath()});
  return true;
}

std::string IndexPagePath(const CompileRequest& request) {
  return request.txtOutputPath + IndexFileName(request.options.txthttpRoot);
}

}  // namespace folionet
