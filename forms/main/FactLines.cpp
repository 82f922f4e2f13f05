#include "FactLines.h"

#include <QLocale>
#include <QStringList>
#include <algorithm>
#include <utility>

#include "Catalogue.h"
#include "FolderFacts.h"
#include "PageNames.h"
#include "QtText.h"
#include "RunFacts.h"
#include "ui_frmMain.h"

namespace folionet {
namespace {

// A line that is empty takes no room.
void ShowLine(QLabel& line, const QString& text) {
  line.setText(text);
  line.setVisible(!text.isEmpty());
}

bool HasAllBooks(const ModGlob& glob) { return glob.cboStartBook.size() >= static_cast<std::size_t>(kBooks); }

QString Number(std::size_t number) { return QLocale().toString(static_cast<qulonglong>(number)); }

// Pages of several texts, or such as name none, are counted by their names.
QString PagesText(const FolderFacts& facts) {
  if (facts.pages == 1) return FactLines::tr("1 page of an earlier compile");
  const QString count = Number(facts.pages);
  if (facts.translations.empty()) return FactLines::tr("%1 pages of an earlier compile").arg(count);
  QStringList names;
  std::size_t unnamed = facts.pages;
  for (const auto& [name, pages] : facts.translations) {
    names << QStringLiteral("%1: %2").arg(ToQt(name), Number(pages));
    unnamed -= pages;
  }
  if (unnamed == 0 && names.size() == 1) {
    const QString name = ToQt(facts.translations.begin()->first);
    return FactLines::tr("%1 pages of an earlier compile of %2").arg(count, name);
  }
  if (names.size() < 2) return FactLines::tr("%1 pages of earlier compiles").arg(count);
  if (unnamed > 0) names << FactLines::tr("without a name: %1").arg(Number(unnamed));
  return FactLines::tr("%1 pages of earlier compiles (%2)").arg(count, names.join(QStringLiteral(", ")));
}

QString ReplacedText(const FolderFacts& facts) {
  if (facts.replaced.empty()) return {};
  const QString first = ToQt(*std::ranges::min_element(facts.replaced));
  if (facts.replaced.size() == 1) return FactLines::tr("%1 there is not of Folionet and will be replaced.").arg(first);
  return FactLines::tr("%1 and %2 more there are not of Folionet and will be replaced.")
      .arg(first, Number(facts.replaced.size() - 1));
}

QString FolderText(const FolderFacts& facts) {
  if (!facts.isThere) return FactLines::tr("The folder cannot be read.");
  QStringList kept;
  if (facts.pages > 0) kept << PagesText(facts);
  if (facts.others == 1) kept << FactLines::tr("1 other file stays untouched");
  if (facts.others > 1) kept << FactLines::tr("%1 other files stay untouched").arg(Number(facts.others));
  QStringList sentences;
  if (!kept.isEmpty()) sentences << kept.join(QStringLiteral("; ")) + QLatin1Char('.');
  if (!facts.replaced.empty()) sentences << ReplacedText(facts);
  if (sentences.isEmpty())
    return facts.hasFolders ? FactLines::tr("No files, only folders.") : FactLines::tr("Empty folder.");
  return sentences.join(QLatin1Char('\n'));
}

// What a person does in the form about a fact of this kind; the remedy of the fact itself is the command line's.
QString Step(FindingKind kind) {
  if (kind == "pages-meet" || kind == "pages-not-found")
    return FactLines::tr("Choose another Language File, or Use 8.3 File Names.");
  if (kind == "charsets-differ") return FactLines::tr("Choose another Language File, or convert one of the two files.");
  if (kind == "language-not-listed") return FactLines::tr("Choose another one in Page Encoding.");
  if (kind == "index-takes-page" || kind == "index-not-found")
    return FactLines::tr("Enter another name for the index page.");
  return {};
}

QString TextOf(const Finding& fact) {
  QString step = Step(fact.kind);
  if (fact.kind == "own-text-charset") step = InDesktopLanguage(fact.remedy);
  if (const auto& entry = fact.charsetEntry) {
    step = entry->empty() ? FactLines::tr("Choose the right charset in Page Encoding.")
                          : FactLines::tr("Choose \"%1\" in Page Encoding.").arg(ToQt(*entry));
  }
  return step.isEmpty() ? InDesktopLanguage(fact.what) : InDesktopLanguage(fact.what) + QLatin1Char(' ') + step;
}

}  // namespace

FactLines::FactLines(AppState& state, Ui::frmMain& controls, std::function<CompileRequest()> gather, QObject* parent)
    : QObject(parent), m_state(state), m_controls(controls), m_gather(std::move(gather)) {
  connect(&m_scan, &FolderScan::Done, this, &FactLines::ShowFolder);
}

void FactLines::LookAtFolder() {
  m_folderText.clear();
  m_scan.Start({});
  Show();
}

void FactLines::Show() {
  ShowTranslations();
  ShowRange();
  AskOfFolder();
  ShowFolder();
}

std::string FactLines::IndexPage() const {
  const FolderAnswer* answer = m_scan.Found();
  return answer != nullptr && answer->hasIndex ? m_scan.Question().folder + m_scan.Question().index : std::string();
}

void FactLines::ShowTranslations() {
  const auto why = m_state.glob.InstallPath.empty() ? std::nullopt : WhyNoTranslation(m_state.glob);
  ShowLine(*m_controls.lblTranslationFacts, why ? InDesktopLanguage(*why) : QString());
}

QString FactLines::BooksText(int first, int last) const {
  const QString from = m_controls.cboStartBook->itemText(first);
  return first == last ? from : tr("%1 to %2").arg(from, m_controls.cboStartBook->itemText(last));
}

void FactLines::ShowRange() {
  const ModGlob& glob = m_state.glob;
  CompileRequest request = m_gather();
  QStringList lines;
  if (request.cboBibleName >= 0 && HasAllBooks(glob) && HasEncoding(m_state.texts)) {
    request.txtOutputPath.clear();  // what is on the disk is found beside the form
    request.sample = Sample(request.txtFilename);
    for (const Finding& fact : FindRunFacts(request, glob)) {
      if (fact.kind == "removes-pages") {
        lines << tr("The pages of %1 will be deleted: %2.")
                     .arg(BooksText(0, request.cboStartBook - 1), ToQt(fact.what.arguments.at(0)));
      } else if (fact.kind == "ends-before-start") {
        lines << tr("The ending book stands before the starting book: the index will be empty.");
      } else {
        lines << TextOf(fact);
      }
    }
    const auto isAfter = [&](const ChapterEntry& entry) { return entry.Book > request.cboEndBook + 1; };
    if (request.cboEndBook >= request.cboStartBook && std::ranges::any_of(glob.ChapterIndex, isAfter)) {
      lines << tr("The pages of %1 are written too; the index does not lead to them.")
                   .arg(BooksText(request.cboEndBook + 1, kBooks - 1));
    }
  }
  const QString text = lines.join(QLatin1Char('\n'));
  ShowLine(*m_controls.lblRangeFacts, text);
  m_controls.cboStartBook->setAccessibleDescription(text);
  m_controls.cboEndBook->setAccessibleDescription(text);
}

// A part of the chosen text that shows its charset. It is asked for at each key: the file is read when it is another
// one.
const TextSample& FactLines::Sample(const std::string& file) {
  const std::optional<FileStamp> stamp = StampOf(file);
  if (file != m_sampled || stamp != m_stamp) m_sample = SampleOfFile(file);
  m_sampled = file;
  m_stamp = stamp;
  return m_sample;
}

// The folder is looked at again when a compile would write other files.
void FactLines::AskOfFolder() {
  const ModGlob& glob = m_state.glob;
  if (glob.OutputFolder.empty()) return;
  const CompileRequest request = m_gather();
  FolderQuestion question{glob.OutputFolder, {}, {}};
  if (HasAllBooks(glob)) question.written = FilesOfSite(request, glob);
  const QString typed = m_controls.txthttpRoot->text();
  question.index = IndexFileName(FromQt(typed.isEmpty() ? m_controls.txthttpRoot->Offered().value(0) : typed));
  if (!(question == m_scan.Question())) m_scan.Start(std::move(question));
}

// What was found last stands until more is known. The same words describe what chooses the folder and what writes into
// it.
void FactLines::ShowFolder() {
  if (m_scan.Found() != nullptr) m_folderText = FolderText(m_scan.Found()->facts);
  const bool isUnknown = !m_state.glob.OutputFolder.empty() && m_folderText.isEmpty();
  const QString text = isUnknown ? tr("Looking at the folder...") : m_folderText;
  ShowLine(*m_controls.lblFolderFacts, text);
  m_controls.Dir1->setAccessibleDescription(text);
  m_controls.cmdCompile->setAccessibleDescription(text);
  emit Shown();
}

}  // namespace folionet
