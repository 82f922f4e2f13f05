#include "frmMain.h"

#include <QCloseEvent>
#include <QDropEvent>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLocale>
#include <QMenu>
#include <QShortcut>
#include <QTime>
#include <algorithm>
#include <optional>
#include <utility>

#include "BuildInfo.h"
#include "ChangeJournal.h"
#include "CommandCopy.h"
#include "Compile.h"
#include "DraggedPath.h"
#include "EncodingInUse.h"
#include "FactLines.h"
#include "FileNames.h"
#include "FolderPickers.h"
#include "FormLooks.h"
#include "FormMemory.h"
#include "HelpTopics.h"
#include "HelpWindow.h"
#include "ImportButton.h"
#include "LibraryLists.h"
#include "OneLine.h"
#include "OptionSaving.h"
#include "OwnCharset.h"
#include "PageNames.h"
#include "PagePreview.h"
#include "QtText.h"
#include "RequestOfForm.h"
#include "RunGuard.h"
#include "RunTimeError.h"
#include "SiteMenu.h"
#include "SiteVerifier.h"
#include "StatusPanels.h"
#include "StopSignals.h"
#include "StyleOptions.h"
#include "TrySave.h"
#include "ui_frmMain.h"

namespace folionet {

frmMain::frmMain(AppState& state, QWidget* parent)
    : QMainWindow(parent), m_state(state), m_ui(std::make_unique<Ui::frmMain>()), m_dialogs(state, this) {
  m_ui->setupUi(this);
  m_panels = new StatusPanels(*m_ui->StatusBar1, *m_ui->progressCompile, this);
  m_lists = new LibraryLists(state, *m_ui, this);
  m_folders = new FolderPickers(state, *m_ui, this);
  m_style = new StyleOptions(state, *m_ui, this);
  m_facts = new FactLines(
      state, *m_ui, [this] { return Gather(); }, this);
  m_memory = new FormMemory(state.store, this);
  m_preview = std::make_unique<PagePreview>();
  m_memory->KeepPlace(*this);
  m_dialogs.whenMade = [this](QDialog& dialog) { m_memory->KeepPlace(dialog); };
  KeepBoxesToOneLine(*m_ui->centralwidget);
  DressForm(*this, *m_ui);
  ConnectOptions();
  ConnectCommands();
  ConnectFacts();
  OfferAddresses();
  OfferFolders();
  connect(m_ui->cmdRecentFolders, &QToolButton::clicked, this, &frmMain::ListFolders);
  m_importing = new ImportButton(state, *m_ui, *m_lists, m_dialogs, this);
  m_importing->mayOpen = [this] { return TellAndGoOn(); };
  const auto read = [this](const QString& path) { m_importing->Open(FromQt(path)); };
  connect(this, &frmMain::TextDropped, this, read, Qt::QueuedConnection);
  const auto gather = [this] { return TellAndGoOn() ? std::optional(Gather()) : std::nullopt; };
  OfferCommandCopy(state, *m_ui->cmdCompile, gather);
  m_sites = new SiteMenu(state, *m_ui->cmdSite, *m_memory, gather);
  m_sites->saveAll = [this] { return SaveDefaults(); };
  connect(m_sites, &SiteMenu::Chosen, this, [this](const std::string& path) {
    m_hasEnded = true;
    emit SiteChosen(path);
  });
  setAcceptDrops(true);
}

frmMain::~frmMain() = default;

CompileRequest frmMain::Gather() const { return GatherRequest(m_state, *m_ui, *m_lists, *m_folders); }

template <typename Dialog>
void frmMain::Open() {
  if (m_hasStopped) IsStarted();  // so that it shows what an editor may have mended since
  if (m_hasEnded) return;
  m_dialogs.Open<Dialog>();
  IsStarted();
  m_facts->Show();
}

void frmMain::ConnectOptions() {
  PageOptions& options = m_state.options;
  connect(m_ui->chkUseNames, &QCheckBox::clicked, this, [this, &options](bool on) {
    options.chkUseNames = on;
    TrySave(m_state, Procedure::kClickUseNames, "chkUseNames");
  });
  connect(m_ui->chkUse83, &QCheckBox::toggled, this, [&options](bool on) { options.chkUse83 = on; });
  connect(m_ui->chkUse83, &QCheckBox::clicked, this, [&options] { MarkChosen("Use83", options); });
  connect(m_ui->chkDoubleSpace, &QCheckBox::toggled, this, [&options](bool on) { options.chkDoubleSpace = on; });
  connect(m_ui->chkDoubleSpace, &QCheckBox::clicked, this, [&options] { MarkChosen("chkDoubleSpace", options); });
  connect(m_ui->txthttpRoot, &QLineEdit::textChanged, this, [&options](const QString& text) {
    // An empty box stands for its initial text: nothing has been entered.
    options.txthttpRoot = text.isEmpty() ? kNoHttpRoot : FromQt(text);
  });
  connect(m_ui->chkBack, &QCheckBox::clicked, this, &frmMain::updateCheck);
  connect(m_ui->chkCSS, &QCheckBox::clicked, this, &frmMain::CSSCheck);
}

void frmMain::ConnectCommands() {
  connect(m_lists, &LibraryLists::EndProgram, this, [this] {
    TakeWayOut();
    if (!m_hasEnded) End();
  });
  connect(m_ui->cmdCompile, &QPushButton::clicked, this, &frmMain::Compile);
  connect(m_ui->txthttpRoot, &QLineEdit::returnPressed, m_ui->cmdCompile, &QPushButton::click);
  connect(m_ui->cmdPreviewPage, &QPushButton::clicked, this, &frmMain::PreviewPage);
  connect(m_ui->cmdOpenIndex, &QPushButton::clicked, this, &frmMain::OpenIndexPage);
  connect(m_ui->cmdVerifySite, &QPushButton::clicked, this, &frmMain::VerifyCompiledSite);
  connect(m_ui->cmdPageTitles, &QPushButton::clicked, this, [this] { Open<frmPAgeTitles>(); });
  connect(m_ui->cmdKeyWords, &QPushButton::clicked, this, [this] { Open<frmKeywords>(); });
  connect(m_ui->cmdEffects, &QPushButton::clicked, this, [this] { Open<frmEffects>(); });
  connect(m_ui->cmdLinkToMain, &QPushButton::clicked, this, &frmMain::OpenLinkToMain);
  connect(m_ui->cmdCustomHeader, &QPushButton::clicked, this, [this] { Open<frmCustomHeader>(); });
  connect(m_ui->cmdCustomFooter, &QPushButton::clicked, this, [this] { Open<frmCustomizeFooter>(); });
  connect(m_ui->cmdPageEncoding, &QPushButton::clicked, this, &frmMain::OpenEncoding);
  connect(m_ui->cmdHelp, &QPushButton::clicked, this, [this] { HelpWindow::Open(*this, {}); });
  OpenHelpByKey(*this);
  // Not the buttons' own shortcuts, which setting their translated texts clears.
  for (const auto& [key, button] : {std::pair{QKeySequence(Qt::CTRL | Qt::Key_O), m_ui->cmdOpenIndex},
                                    std::pair{QKeySequence(Qt::Key_F7), m_ui->cmdPreviewPage},
                                    std::pair{QKeySequence(Qt::Key_F8), m_ui->cmdVerifySite}}) {
    connect(new QShortcut(key, this), &QShortcut::activated, button, &QPushButton::click);
  }
  connect(m_ui->cmdRestoreAll, &QPushButton::clicked, this, &frmMain::RestoreAll);
  connect(m_ui->cmdClose, &QPushButton::clicked, this, &QWidget::close);
}

// Wider than it must be, so that paths and names have room.
QSize frmMain::sizeHint() const {
  constexpr int kColumns = 156;
  return QMainWindow::sizeHint().expandedTo({kColumns * fontMetrics().averageCharWidth(), 0});
}

void frmMain::ShowPanel(int panel, std::string_view text) { m_panels->Set(panel, text); }

void frmMain::FocusControl(std::string_view name) {
  if (auto* control = centralWidget()->findChild<QWidget*>(ToQt(name))) control->setFocus();
}

// The check box has changed already when its click is heard.
void frmMain::updateCheck() {
  m_state.options.chkBack = m_ui->chkBack->isChecked();
  m_ui->cmdBackColour->setEnabled(!m_state.options.chkBack);
  if (m_state.options.chkBack) Open<frmBackground>();
  TrySave(m_state, Procedure::kUpdateCheck, "chkBack");
}

void frmMain::CSSCheck() {
  m_state.options.chkCSS = m_ui->chkCSS->isChecked();
  m_ui->cmdEffects->setEnabled(!m_state.options.chkCSS);
  TrySave(m_state, Procedure::kCssCheck, "chkCSS");
  m_style->EnableDisableOptions();
  if (!m_state.options.chkCSS) return;
  m_state.ui.ShowMessage({MessageIcon::kInformation, "CSS file to be used",
                          "Cascading Style Sheet 'default.css' will be used.\r\nPlease customize as required."});
}

void frmMain::Compile() {
  if (!TellAndGoOn() || !m_lists->IsTextAsChosen() || !m_folders->HasOutputDisk()) return;
  CompileRequest request = Gather();
  if (RefusesSitemap(request, m_state)) return;
  SiteChanges changes;
  request.changes = &changes;
  request.stateFolder = UserStateFolder();
  request.isStopped = [] { return StopSignal() != 0; };
  CompileOutcome outcome = CompileOutcome::kFailed;
  {
    const StopSignals noted;
    const RunGuard guard(*this);
    m_panels->BeginRun(static_cast<int>(m_state.glob.ChapterIndex.size()) - 1);
    outcome = cmdCompile_Click(request, m_state.glob, m_state.ui);
    m_panels->EndRun(outcome);
  }
  if (outcome == CompileOutcome::kEndProgram || outcome == CompileOutcome::kStopped) End();
  if (outcome != CompileOutcome::kDone) return;
  m_dialogs.Get<frmLinkToMAin>().SetString();
  m_memory->Add(FormMemory::kAddresses, ToQt(request.options.txthttpRoot));
  m_memory->Add(FormMemory::kFolders, ToQt(request.txtOutputPath));
  m_memory->Save();
  OfferAddresses();
  OfferFolders();
  m_facts->LookAtFolder();
  m_indexPage = IndexPagePath(request);
  m_ui->cmdOpenIndex->setEnabled(true);
  m_ui->cmdVerifySite->setEnabled(true);
  m_ui->cmdOpenIndex->setFocus();
  std::size_t pages = 0;
  for (const auto& names : {changes.New(), changes.Changed(), changes.Same()}) {
    pages += static_cast<std::size_t>(std::count_if(names.begin(), names.end(), [](const std::string& name) {
      return name != kStyleSheetFile && name != kSitemapFile;
    }));
  }
  ShowResult(pages);
}

// What panel 1 is left with: the pages that a run made, where they are and since when.
void frmMain::ShowResult(std::size_t pages) {
  const QStringList parts = ToQt(m_state.glob.OutputFolder).split(QLatin1Char('/'), Qt::SkipEmptyParts);
  constexpr qsizetype kShown = 2;
  QString folder = QLatin1Char('/') + parts.join(QLatin1Char('/'));
  if (parts.size() > kShown) {
    folder = QStringLiteral(".../") + parts.mid(parts.size() - kShown).join(QLatin1Char('/'));
  }
  const QString count = QLocale().toString(static_cast<qulonglong>(pages));
  const QString time = QLocale().toString(QTime::currentTime(), QLocale::ShortFormat);
  ShowPanel(1, FromQt(tr("%1 pages in %2, %3").arg(count, folder, time)));
}

void frmMain::ConnectFacts() {
  connect(m_folders, &FolderPickers::Chosen, m_facts, &FactLines::LookAtFolder);
  connect(m_facts, &FactLines::Shown, this, &frmMain::ShowFacts);
  for (QComboBox* list : {m_ui->cboStartBook, m_ui->cboEndBook}) {
    connect(list, &QComboBox::activated, m_facts, &FactLines::Show);
  }
  connect(m_lists, &LibraryLists::Chosen, m_facts, &FactLines::Show);
  connect(m_ui->txthttpRoot, &QLineEdit::textChanged, m_facts, &FactLines::Show);
  connect(m_ui->chkUse83, &QCheckBox::clicked, m_facts, &FactLines::Show);
  connect(m_ui->chkCSS, &QCheckBox::clicked, m_facts, &FactLines::Show);
}

// An index page that is there can be opened and its site checked, also when it was made by an earlier run.
void frmMain::ShowFacts() {
  if (m_facts->IsLooking()) return;
  const std::string found = m_facts->IndexPage();
  m_indexPage = found;
  m_ui->cmdOpenIndex->setEnabled(!found.empty());
  m_ui->cmdVerifySite->setEnabled(!found.empty());
}

void frmMain::OfferAddresses() {
  QStringList addresses = m_memory->Recent(FormMemory::kAddresses);
  const QString plain = QStringLiteral("index.html");
  if (!addresses.contains(plain)) addresses << plain;
  m_ui->txthttpRoot->Offer(addresses);
}

void frmMain::OfferFolders() { m_ui->cmdRecentFolders->setEnabled(!m_memory->Recent(FormMemory::kFolders).isEmpty()); }

void frmMain::ListFolders() {
  auto* menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  for (const QString& folder : m_memory->Recent(FormMemory::kFolders)) {
    QAction* action = menu->addAction(QString(folder).replace(QLatin1Char('&'), QStringLiteral("&&")));
    connect(action, &QAction::triggered, this, [this, folder] { m_folders->Choose(FromQt(folder)); });
  }
  menu->popup(m_ui->cmdRecentFolders->mapToGlobal(m_ui->cmdRecentFolders->rect().bottomLeft()));
}

void frmMain::PreviewPage() {
  if (!TellAndGoOn() || !m_folders->HasOutputDisk()) return;
  const RunGuard guard(*this);
  m_preview->Show(Gather(), m_state.glob, m_state.ui);
}

void frmMain::OpenIndexPage() { m_state.ui.ShowPage(m_indexPage); }

void frmMain::VerifyCompiledSite() {
  VerifyWrittenSite(m_indexPage, *this, m_state.ui);
  m_facts->LookAtFolder();  // pages may have been removed
}

void frmMain::OpenEncoding() {
  Open<frmEncoding>();
  m_lists->ShowNames();
  m_facts->Show();
}

void frmMain::OpenLinkToMain() {
  m_dialogs.Get<frmLinkToMAin>().SetSizeEnabled(!m_state.options.chkCSS);
  Open<frmLinkToMAin>();
}

bool frmMain::SaveDefaults() {
  return TrySave(m_state, Procedure::kSaveDefaults, [&](SettingsStore& store) {
    if (const EncodingOptions refused = m_state.refusedEncoding;
        !refused.cboCharset.empty() || !refused.cboLang.empty()) {
      SaveEncoding(store, m_state.programFolder, refused);
      m_state.refusedEncoding = {};
    }
    folionet::SaveDefaults(store, m_state.options);
    m_sites->SaveChoices(Gather());
  });
}

// At exit a failure is always told and the form stays open; from the second one on a person can leave without saving.
bool frmMain::LeavesUnsaved() {
  return std::exchange(m_exitFailed, true) &&
         m_state.ui.AskYesNo(FromQt(tr("Settings not saved")), FromQt(tr("The settings cannot be saved.")) + "\r\n" +
                                                                   FromQt(tr("Leave without saving them?")));
}

void frmMain::RestoreAll() {
  if (m_state.ui.AskYesNo("Restore Factory Settings", "Rerurn all settings to default?\r\nAre you sure???")) Restore();
}

// For a program that must end, and every later start would.
void frmMain::TakeWayOut() {
  const WayOut chosen = OfferWayOut(m_lists->Unread(), m_state);
  if (chosen == WayOut::kRestore) Restore();
  if (chosen == WayOut::kOtherTitles) TellToRestart();
}

void frmMain::TellToRestart() {
  m_state.ui.ShowMessage({MessageIcon::kInformation, std::string("Restart ") + kApplicationTitle,
                          std::string("Please restart ") + kApplicationTitle + " to complete."});
}

void frmMain::Restore() {
  try {
    RestoreSettings(m_state.store, m_state.programFolder);
  } catch (const RunTimeError& error) {
    m_state.ui.ShowErrorReport({Procedure::kRestoreAll, error});
    return;
  }
  // From here on the program must end: at an exit it would store again what was removed.
  try {
    if (m_state.store.SitePath().empty()) m_memory->Forget();
    m_state.options.areKept = false;
    m_dialogs.Renew<frmEffects>();
    m_dialogs.Renew<frmPAgeTitles>();
    m_state.options.txtSample = PageOptions().txtSample;
    m_style->ShowSample();
    UseEncoding(m_state, ReadEncoding(m_state));
  } catch (const RunTimeError& error) {
    m_state.ui.ShowErrorReport({Procedure::kRestoreAll, error});
  }
  TellToRestart();
  End();
}

void frmMain::End() {
  m_hasEnded = true;
  emit Ended();
}

void frmMain::closeEvent(QCloseEvent* event) {
  event->setAccepted(m_hasEnded);
  if (m_hasEnded || !m_state.ui.AskYesNo("Confirm Exit", "All settings will be saved.\r\nOK?")) return;
  m_state.lastSaveFailure.reset();
  if (!SaveDefaults() && !LeavesUnsaved()) return;
  m_memory->Save();
  End();
  event->accept();
}

void frmMain::keyPressEvent(QKeyEvent* event) {
  auto* button = qobject_cast<QPushButton*>(focusWidget());
  const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (isReturn && button != nullptr && button->isEnabled()) {
    button->click();
  } else {
    QMainWindow::keyPressEvent(event);
  }
}

void frmMain::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (m_ui->cmdCompile == nullptr) return;
  if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange) DressForm(*this, *m_ui);
}

void frmMain::dragEnterEvent(QDragEnterEvent* event) {
  if (!DraggedPath(event->mimeData()).isEmpty()) event->acceptProposedAction();
}

// A folder is where the pages go, a file is a text to import. The program that it comes from waits for the end of this.
void frmMain::dropEvent(QDropEvent* event) {
  const QString path = DraggedPath(event->mimeData());
  const bool isFolder = QFileInfo(path).isDir();
  if (path.isEmpty() || (isFolder && !m_folders->Choose(FromQt(path)))) return;
  event->acceptProposedAction();
  if (!isFolder) emit TextDropped(path);
}

}  // namespace folionet
