#include "SiteVerifier.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QProgressDialog>
#include <QStringList>
#include <QTimer>
#include <algorithm>
#include <atomic>
#include <exception>
#include <memory>
#include <optional>
#include <utility>

#include "BackgroundWork.h"
#include "QtText.h"
#include "RunGuard.h"
#include "RunTimeError.h"
#include "SiteVerification.h"
#include "StalePages.h"

namespace folionet {
namespace {

QString Shown(std::size_t number) { return QString::number(number); }

QString FindingText(const Finding& finding) {
  const QString line = finding.line > 0 ? ":" + Shown(finding.line) : QString();
  return ToQt(finding.file) + line + ": " + InDesktopLanguage(finding.what);
}

// The first items only; a box that lists thousands of them would leave the screen.
template <typename Item, typename Words>
QStringList Some(const std::vector<Item>& items, const Words& words) {
  constexpr std::size_t kShown = 10;
  QStringList some;
  for (std::size_t i = 0; i < items.size() && i < kShown; ++i) some += words(items[i]);
  if (items.size() > kShown) some += QObject::tr("and %1 more").arg(Shown(items.size() - kShown));
  return some;
}

QStringList SomeNames(const std::vector<std::string>& names) {
  return Some(names, [](const std::string& name) { return ToQt(name); });
}

QString ReportText(const SiteReport& report) {
  QStringList lines;
  if (!report.isWhole) lines += QObject::tr("Stopped before all pages were read.");
  lines +=
      QObject::tr("Pages: %1, links: %2, broken: %3, not reached: %4.")
          .arg(Shown(report.pages), Shown(report.links), Shown(report.brokenLinks), Shown(report.unreached.size()));
  if (report.leadOut > 0) {
    lines += QObject::tr("Links that lead out of the folder and were not followed: %1.").arg(Shown(report.leadOut));
  }
  lines += Some(report.findings, FindingText);
  if (!report.remedies.empty()) lines += QString();
  for (const Sentence& remedy : report.remedies) lines += InDesktopLanguage(remedy);
  return lines.join("\r\n");
}

// A look through a site, which the form and the thread hold.
struct Look {
  std::atomic<std::size_t> read = 0;
  std::atomic<std::size_t> known = 0;
  std::atomic<bool> isStopped = false;
  SiteReport report;
  std::optional<RunTimeError> failure;

  void Run(const std::string& indexPage) {
    const std::size_t slash = indexPage.rfind('/') + 1;
    SiteRequest request{indexPage.substr(0, slash), indexPage.substr(slash)};
    request.words = {"Page Encoding", "Use 8.3 File Names", {}};
    request.goOn = [&](std::size_t nowRead, std::size_t nowKnown) {
      read = nowRead;
      known = nowKnown;
      return !isStopped;
    };
    try {
      report = VerifySite(request);
    } catch (const RunTimeError& error) {
      failure = error;
    } catch (const std::exception& error) {
      failure = RunTimeError(kOutOfMemory, request.folder, error.what());
    }
  }
};

// Gives what was found when the site is read, or the reading stopped. Throws RunTimeError.
SiteReport AwaitLook(const std::string& indexPage, QWidget& form) {
  const auto look = std::make_shared<Look>();
  QProgressDialog box(QObject::tr("Reading the site ..."), QObject::tr("Stop"), 0, 0, &form);
  box.setObjectName("frmVerify");
  box.setWindowTitle(QObject::tr("Verify site"));
  box.setAutoClose(false);
  box.setAutoReset(false);
  box.setMinimumDuration(400);
  QTimer progress;
  QObject::connect(&progress, &QTimer::timeout, &box, [&] {
    box.setMaximum(static_cast<int>(look->known));
    box.setValue(static_cast<int>(std::min(look->read.load(), look->known.load())));
  });
  QObject::connect(&box, &QProgressDialog::canceled, &box, [&] { look->isStopped = true; });
  progress.start(50);
  QEventLoop loop;
  BackgroundWork work;
  work.Start([look, indexPage](const auto& /*isWanted*/) { look->Run(indexPage); }, [&loop] { loop.quit(); });
  loop.exec();
  look->isStopped = true;  // the program may end, and nothing waits for the rest
  while (work.IsRunning()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  const std::optional<RunTimeError>& failure = look->failure;
  if (failure) throw RunTimeError(*failure);
  return std::move(look->report);
}

void OfferRemoval(const SiteReport& report, UserInterface& ui) {
  const std::vector<std::string>& stale = report.stale;
  const std::string title = FromQt(QObject::tr("Remove pages"));
  const QStringList question{
      stale.size() == 1 ? QObject::tr("Nothing leads to this page of Folionet:")
                        : QObject::tr("Nothing leads to these %1 pages of Folionet:").arg(Shown(stale.size())),
      SomeNames(stale).join(", "), stale.size() == 1 ? QObject::tr("Delete it?") : QObject::tr("Delete them?")};
  if (!ui.AskYesNo(title, FromQt(question.join("\r\n")))) return;
  const RemovedPages pages = RemovePages(report);
  QStringList lines{
      pages.removed.size() == 1
          ? QObject::tr("1 page was deleted. Remove it from your server too.")
          : QObject::tr("%1 pages were deleted. Remove them from your server too.").arg(Shown(pages.removed.size()))};
  for (const std::string& name : pages.removed) lines << ToQt(name);
  lines += Some(pages.kept, FindingText);
  ui.ShowMessage(
      {pages.kept.empty() ? MessageIcon::kInformation : MessageIcon::kWarning, title, FromQt(lines.join("\r\n"))});
}

}  // namespace

void VerifyWrittenSite(const std::string& indexPage, QWidget& form, UserInterface& ui) {
  try {
    std::optional<SiteReport> report;
    {
      const RunGuard guard(form);
      report = AwaitLook(indexPage, form);
    }
    const bool isWell = report->isSound && report->isWhole;
    ui.ShowMessage({isWell ? MessageIcon::kInformation : MessageIcon::kWarning, FromQt(QObject::tr("Verify site")),
                    FromQt(ReportText(*report))});
    if (report->isWhole && report->isStaleCertain && !report->stale.empty()) {
      OfferRemoval(*report, ui);
    }
  } catch (const RunTimeError& error) {
    ui.ShowErrorReport({Procedure::kVerifySite, error});
  }
}

}  // namespace folionet
