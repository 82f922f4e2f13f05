#include "MainCompile.h"

#include "FolderPickers.h"
#include "LibraryLists.h"
#include "PageNames.h"
#include "QtText.h"
#include "RunTimeError.h"
#include "SiteCheck.h"
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
  return request;
}

std::string IndexPagePath(const CompileRequest& request) {
  return request.txtOutputPath + IndexFileName(request.options.txthttpRoot);
}

void ShowSiteReport(const std::string& indexPage, UserInterface& ui) {
  constexpr std::size_t kShown = 10;
  const std::size_t slash = indexPage.rfind('/') + 1;
  try {
    const SiteReport report = CheckSite(indexPage.substr(0, slash), indexPage.substr(slash));
    std::string text = std::to_string(report.pages) + " pages, " + std::to_string(report.links) +
                       " links: " + std::to_string(report.broken.size()) + " broken, " +
                       std::to_string(report.unreachable.size()) + " pages possibly stale.";
    for (std::size_t i = 0; i < report.broken.size() && i < kShown; ++i) {
      const BrokenLink& link = report.broken[i];
      text +=
          "\r\n" + link.page + ", line " + std::to_string(link.line) + ": \"" + link.target + "\" " + link.why + ".";
    }
    if (report.broken.size() > kShown) text += "\r\n...";
    for (std::size_t i = 0; i < report.unreachable.size() && i < kShown; ++i) {
      text += "\r\n" + report.unreachable[i] + ": the index does not lead here.";
    }
    if (report.unreachable.size() > kShown) text += "\r\n...";
    ui.ShowMessage({report.IsSound() ? MessageIcon::kInformation : MessageIcon::kWarning, "Check site", text});
  } catch (const RunTimeError& error) {
    ui.ShowErrorReport(error.Number(), "cmdCheckSite_Click", error.Extra());
  }
}

}  // namespace folionet
