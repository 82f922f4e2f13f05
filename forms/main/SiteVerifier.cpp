#include "SiteVerifier.h"

#include <QEventLoop>
#include <QProgressDialog>
#include <QStringList>
#include <QTimer>
#include <algorithm>
#include <atomic>
#include <optional>
#include <thread>
#include <utility>

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

// A look through a site in a thread of its own.
class Look {
 public:
  explicit Look(const std::string& indexPage) {
    const std::size_t slash = indexPage.rfind('/') + 1;
    m_request = {indexPage.substr(0, slash), indexPage.substr(slash)};
    m_request.words = {"Page Encoding", "Use 8.3 File Names", {}};
    m_request.goOn = [this](std::size_t read, std::size_t known) {
      m_read = read;
      m_known = known;
      return !m_isStopped;
    };
  }

  // Gives what was found when the site is read, or the reading stopped. Throws RunTimeError.
  SiteReport Await(QWidget& form) {
    QProgressDialog box(QObject::tr("Reading the site ..."), QObject::tr("Stop"), 0, 0, &form);
    box.setObjectName("frmVerify");
    box.setWindowTitle(QObject::tr("Verify site"));
    box.setAutoClose(false);
    box.setAutoReset(false);
    box.setMinimumDuration(400);
    QTimer progress;
    QObject::connect(&progress, &QTimer::timeout, &box, [&] {
      box.setMaximum(static_cast<int>(m_known));
      box.setValue(static_cast<int>(std::min(m_read.load(), m_known.load())));
    });
    QObject::connect(&box, &QProgressDialog::canceled, &box, [&] { m_isStopped = true; });
    progress.start(50);
    QEventLoop loop;
    std::thread reader([&] {
      Read();
      QMetaObject::invokeMethod(&loop, &QEventLoop::quit, Qt::QueuedConnection);
    });
    loop.exec();
    m_isStopped = true;  // the program may end, and nothing waits for the rest
    reader.join();
    if (m_failure) throw RunTimeError(*m_failure);
    return std::move(m_report);
  }

 private:
  void Read() {
    try {
      m_report = VerifySite(m_request);
    } catch (const RunTimeError& error) {
      m_failure = error;
    } catch (const std::exception& error) {
      m_failure = RunTimeError(kOutOfMemory, m_request.folder, error.what());
    }
  }

  SiteRequest m_request;
  std::atomic<std::size_t> m_read = 0;
  std::atomic<std::size_t> m_known = 0;
  std::atomic<bool> m_isStopped = false;
  SiteReport m_report;
  std::optional<RunTimeError> m_failure;
};

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
      report = Look(indexPage).Await(form);
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
