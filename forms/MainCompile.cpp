#include "MainCompile.h"

#include "FolderPickers.h"
#include "LibraryLists.h"
#include "PageNames.h"
#include "QtText.h"
#include "RunTimeError.h"
#include "SiteCheck.h"
#include "ui_frmMain.h"

namespace folionet {
namespace {

QString Shown(std::size_t number) { return QString::number(number); }

// FaultText in the desktop's language, as a sentence of its own.
QString LinkSentence(const BrokenLink& link) {
  const auto worded = [&](const QString& sentence) {
    return sentence.arg(ToQt(link.page), Shown(link.line), ToQt(link.target));
  };
  switch (link.fault) {
    case LinkFault::kOtherCase:
      return QObject::tr("%1, line %2: \"%3\" is there in another letter case only, %4.")
          .arg(ToQt(link.page), Shown(link.line), ToQt(link.target), ToQt(link.otherCase));
    case LinkFault::kBackslash:
      return worded(QObject::tr("%1, line %2: \"%3\" holds \"\\\", which no address does."));
    case LinkFault::kUnreadable:
      return worded(QObject::tr("%1, line %2: \"%3\" cannot be read."));
    default:
      break;
  }
  return worded(QObject::tr("%1, line %2: \"%3\" is not there."));
}

// A line for each of the first items; a box that lists thousands of them would leave the screen.
template <typename Item, typename Sentence>
void AppendSome(std::string& text, const std::vector<Item>& items, const Sentence& sentence) {
  constexpr std::size_t kShown = 10;
  for (std::size_t i = 0; i < items.size() && i < kShown; ++i) text += "\r\n" + FromQt(sentence(items[i]));
  if (items.size() > kShown) text += "\r\n...";
}

}  // namespace

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
  const std::size_t slash = indexPage.rfind('/') + 1;
  try {
    const SiteReport report = CheckSite(indexPage.substr(0, slash), indexPage.substr(slash));
    std::string text = FromQt(QObject::tr("%1 pages, %2 links: %3 broken, %4 pages not reached.")
                                  .arg(Shown(report.pages), Shown(report.links), Shown(report.broken.size()),
                                       Shown(report.unreachable.size())));
    if (report.leadOut > 0) {
      text += "\r\n" +
              FromQt(QObject::tr("%1 links lead out of the folder and were not followed.").arg(Shown(report.leadOut)));
    }
    AppendSome(text, report.broken, LinkSentence);
    AppendSome(text, report.unread,
               [](const UnreadFile& file) { return QObject::tr("%1 cannot be read.").arg(ToQt(file.name)); });
    AppendSome(text, report.linkedFolders, [](const std::string& folder) {
      return QObject::tr("%1: a symbolic link to another folder, whose pages were not read.").arg(ToQt(folder));
    });
    AppendSome(text, report.unreachable, [](const std::string& page) {
      return QObject::tr("%1: the index does not lead here.").arg(ToQt(page));
    });
    ui.ShowMessage({report.IsSound() ? MessageIcon::kInformation : MessageIcon::kWarning,
                    FromQt(QObject::tr("Check site")), text});
  } catch (const RunTimeError& error) {
    ui.ShowErrorReport(error.Number(), "cmdCheckSite_Click", error.Extra());
  }
}

}  // namespace folionet
