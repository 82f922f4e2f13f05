#include "MainCompile.h"

#include <QStringList>
#include <set>

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

// FaultText in the desktop's language, with the thing itself.
QString FaultSentence(const BrokenTarget& broken) {
  const QString target = ToQt(broken.target);
  switch (broken.fault) {
    case LinkFault::kOtherCase:
      return QObject::tr("\"%1\" is there in another letter case only, %2").arg(target, ToQt(broken.otherCase));
    case LinkFault::kBackslash:
      return QObject::tr("\"%1\" holds \"\\\", which no address does").arg(target);
    case LinkFault::kUnreadable:
      return QObject::tr("\"%1\" cannot be read").arg(target);
    case LinkFault::kFolder:
      return QObject::tr("\"%1\" is a folder without an index.html").arg(target);
    case LinkFault::kNoFile:
      return QObject::tr("\"%1\" is a folder, and a file was expected").arg(target);
    case LinkFault::kCharset:
      return QObject::tr("\"%1\" is not in the page's charset, so that browsers look for another name").arg(target);
    case LinkFault::kSign:
      return QObject::tr("\"%1\" is a file, but \"#\", \"?\", \"%\" and \":\" have another meaning in an address")
          .arg(target);
    case LinkFault::kMissing:
      break;
  }
  return QObject::tr("\"%1\" is not there").arg(target);
}

QString WithPlace(const BrokenTarget& broken) {
  const QString place = broken.pages > 1 ? QObject::tr("%1 pages, first %2, line %3").arg(Shown(broken.pages))
                                         : QObject::tr("%1, line %2");
  return FaultSentence(broken) + " (" + place.arg(ToQt(broken.page), Shown(broken.line)) + ")";
}

QString StepSentence(SiteStep step) {
  switch (step) {
    case SiteStep::kPermissions:
      return QObject::tr("See that what cannot be read is a file, and to its permissions.");
    case SiteStep::kUtf8:
      return QObject::tr("Save the pages in UTF-16 as UTF-8.");
    case SiteStep::kCharset:
      return QObject::tr("Compile again with the character set that the book titles are in, or with 8.3 file names.");
    case SiteStep::kTitles:
      return QObject::tr("Compile again with 8.3 file names, or with book titles that lack these signs.");
    case SiteStep::kPictures:
      return QObject::tr("Copy the missing pictures into the folder, or choose others.");
    case SiteStep::kCorrect:
      break;
  }
  return QObject::tr(
      "Compile again; then correct what is still broken in the custom header and footer and in your own pages and "
      "style sheets, or put the missing file there.");
}

// The first items only; a box that lists thousands of them would leave the screen.
template <typename Item, typename Sentence>
QStringList Some(const std::vector<Item>& items, const Sentence& sentence) {
  constexpr std::size_t kShown = 10;
  QStringList some;
  for (std::size_t i = 0; i < items.size() && i < kShown; ++i) some += sentence(items[i]);
  if (items.size() > kShown) some += QObject::tr("and %1 more").arg(Shown(items.size() - kShown));
  return some;
}

// A line of the first names behind its heading; none when there are no names.
void AddNames(QStringList& lines, const QString& heading, const QStringList& names) {
  if (!names.isEmpty()) lines += heading.arg(names.join(", "));
}

QString SiteReportText(const SiteReport& report) {
  QStringList lines(
      QObject::tr("Pages: %1, links: %2, broken: %3, not reached: %4.")
          .arg(Shown(report.pages), Shown(report.links), Shown(report.brokenLinks), Shown(report.unreachable.size())));
  if (report.leadOut > 0) {
    lines += QObject::tr("Links that lead out of the folder and were not followed: %1.").arg(Shown(report.leadOut));
  }
  const auto shown = [](const std::string& name) { return ToQt(name); };
  lines += Some(report.broken, WithPlace);
  AddNames(lines, QObject::tr("Cannot be read: %1"), Some(report.unread, [](const UnreadFile& file) {
             return ToQt(file.name) + (file.isUtf16 ? " (UTF-16)" : "");
           }));
  AddNames(lines, QObject::tr("Symbolic links to other folders, whose pages were not read: %1"),
           Some(report.linkedFolders, shown));
  AddNames(lines, QObject::tr("The index does not lead to: %1"), Some(report.unreachable, shown));
  const std::set<SiteStep> steps = StepsFor(report);
  if (!steps.empty()) lines += QString();
  for (const SiteStep step : steps) lines += StepSentence(step);
  return lines.join("\r\n");
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
    ui.ShowMessage({report.IsSound() ? MessageIcon::kInformation : MessageIcon::kWarning,
                    FromQt(QObject::tr("Check site")), FromQt(SiteReportText(report))});
  } catch (const RunTimeError& error) {
    ui.ShowErrorReport(error.Number(), "cmdCheckSite_Click", error.Extra());
  }
}

}  // namespace folionet
