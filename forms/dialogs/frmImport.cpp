#include "frmImport.h"

#include <QDir>
#include <QDropEvent>
#include <initializer_list>
#include <utility>

#include "BuildInfo.h"
#include "ContentScroll.h"
#include "DraggedPath.h"
#include "ImportReport.h"
#include "QtText.h"
#include "ShownBoxes.h"
#include "ui_frmImport.h"

namespace folionet {
namespace {

// What a person typed, who may mean their home by "~", or by nothing.
std::string PathOf(const QString& typed) {
  QString path = typed.trimmed();
  if (path.isEmpty()) return {};
  if (path == QLatin1String("~") || path.startsWith(QLatin1String("~/"))) path.remove(0, 2);
  return FromQt(QDir::home().absoluteFilePath(path));
}

}  // namespace

frmImport::frmImport(UserInterface& ui, std::string pageLanguage, QWidget* parent)
    : LoadedDialog(ui, parent),
      m_boxes(ui),
      m_ui(std::make_unique<Ui::frmImport>()),
      m_import(std::move(pageLanguage)) {
  constexpr int kTyping = 300;    // milliseconds
  constexpr int kProgress = 100;  // milliseconds
  m_ui->setupUi(this);
  ScrollAllButButtons(*this);
  m_edits.setSingleShot(true);
  m_edits.setInterval(kTyping);
  m_progress.setInterval(kProgress);
  ConnectControls();
  ConnectImport();
  setAcceptDrops(true);
  ShowStep();
  m_ui->txtPath->setFocus();
}

frmImport::~frmImport() = default;

void frmImport::ConnectControls() {
  connect(m_ui->cmdFile, &QPushButton::clicked, this, [this] {
    const std::string before = PathOf(m_ui->txtPath->text());
    Take(m_boxes.ChooseFile(FromQt(tr("All files")) + "|*", before.empty() ? FromQt(QDir::homePath()) + "/" : before));
  });
  connect(m_ui->cmdFolder, &QPushButton::clicked, this, [this] {
    Take(m_boxes.ChooseFolder(FromQt(QDir::homePath()), FromQt(tr("Choose the folder of the text"))));
  });
  connect(m_ui->txtPath, &QLineEdit::textChanged, this, [this] {
    m_isImportWanted = false;
    m_import.Forget();
    m_ui->txtFound->clear();
    ShowStep();
  });
  // With a text that is found, Return presses the default button.
  connect(m_ui->txtPath, &QLineEdit::returnPressed, this, [this] {
    if (m_import.Bible() == nullptr) Read();
  });
  for (const QLineEdit* box : {m_ui->txtName, m_ui->txtStem}) {
    connect(box, &QLineEdit::textChanged, this, [this] {
      if (m_import.Bible() != nullptr) m_edits.start();
    });
  }
  connect(m_ui->cmdStop, &QPushButton::clicked, this, &frmImport::Stop);
  connect(m_ui->cmdImport, &QPushButton::clicked, this, &frmImport::Import);
  connect(m_ui->cmdClose, &QPushButton::clicked, this, &frmImport::reject);
}

void frmImport::ConnectImport() {
  connect(&m_import, &TextImport::Found, this, [this] {
    m_ui->txtName->setText(ToQt(m_import.CurrentPlan()->text.name));
    m_ui->txtStem->clear();
    m_edits.stop();
    ShowFound();
    ShowStep();
    m_ui->txtName->setFocus();
    m_ui->txtName->selectAll();
  });
  connect(&m_import, &TextImport::Planned, this, [this] {
    const bool isImportWanted = std::exchange(m_isImportWanted, false);
    ShowFound();
    ShowStep();
    if (isImportWanted) WriteOrAsk();
  });
  connect(&m_import, &TextImport::Written, this, [this] {
    const LibraryPlan plan = *m_import.CurrentPlan();
    m_import.Forget();
    hide();
    emit Imported(plan.library.Folder(), plan.stem);
  });
  connect(&m_import, &TextImport::Failed, this, &frmImport::Fail);
  connect(&m_edits, &QTimer::timeout, this, [this] {
    if (!IsRefused()) m_import.Plan(FromQt(m_ui->txtName->text()), FromQt(m_ui->txtStem->text()));
  });
  connect(&m_progress, &QTimer::timeout, this, [this] {
    if (m_import.AtHand() == TextImport::Step::kReading) {
      m_ui->txtFound->setPlainText(tr("Reading %1 ...").arg(ToQt(m_import.FileAtHand())));
    }
  });
}

void frmImport::Take(const std::string& path) {
  const QFileInfo file(ToQt(path));
  if (path.empty() || path == PathOf(m_ui->txtPath->text()) || file == QFileInfo(QDir::homePath())) return;
  m_ui->txtPath->setText(ToQt(path));
  Read();
}

void frmImport::Read() {
  const std::string path = PathOf(m_ui->txtPath->text());
  if (path.empty()) return;
  m_import.Read(path);
  ShowStep();
}

void frmImport::Stop() {
  m_import.Forget();
  m_ui->txtFound->setPlainText(tr("Stopped. Nothing was written."));
  ShowStep();
  m_ui->txtPath->setFocus();
}

// Planned anew first: the names are those that are typed by now, and the library may have changed meanwhile.
void frmImport::Import() {
  m_edits.stop();
  if (IsRefused()) return;
  m_isImportWanted = true;
  m_import.Plan(FromQt(m_ui->txtName->text()), FromQt(m_ui->txtStem->text()));
  ShowStep();
}

void frmImport::WriteOrAsk() {
  const LibraryPlan& plan = *m_import.CurrentPlan();
  if (plan.replaces) {
    const QString question =
        tr("The library holds a translation with the stem %1 already.\n"
           "Replace it? To keep it, answer No and give this text another stem.");
    if (!m_boxes.AskYesNo(FromQt(windowTitle()), FromQtLines(question.arg(ToQt(plan.stem))))) {
      m_ui->txtStem->setFocus();
      return;
    }
  }
  m_import.Write();
  ShowStep();
}

bool frmImport::IsRefused() {
  LibraryRequest request;
  request.name = FromQt(m_ui->txtName->text());
  request.stem = FromQt(m_ui->txtStem->text());
  Sentence refusal = RefusalOf(request);
  if (refusal.IsEmpty()) return false;
  const bool isStem = refusal.arguments[0] == "--stem";
  refusal.arguments[0] = FromQt((isStem ? m_ui->lblStem : m_ui->lblName)->text().remove(QLatin1Char('&')));
  m_ui->txtFound->setPlainText(InDesktopLanguage(refusal, "Import"));
  (isStem ? m_ui->txtStem : m_ui->txtName)->setFocus();
  return true;
}

void frmImport::Fail(const ImportError& error) {
  m_isImportWanted = false;
  m_ui->txtFound->setPlainText(WhyNoImport(error));
  ShowStep();
  if (m_import.Bible() == nullptr) m_ui->txtPath->setFocus();
}

void frmImport::ShowFound() {
  const LibraryPlan& plan = *m_import.CurrentPlan();
  m_ui->txtStem->setPlaceholderText(ToQt(plan.stem));
  DressBoxes(*this);  // it has a hint only now
  m_ui->txtFound->setPlainText(FoundInText(plan));
}

void frmImport::ShowStep() {
  const TextImport::Step step = m_import.AtHand();
  const bool isWriting = IsImporting();
  const bool isFound = m_import.Bible() != nullptr;
  m_ui->progressImport->setVisible(step == TextImport::Step::kReading || isWriting);
  m_ui->cmdStop->setVisible(step == TextImport::Step::kReading);
  using Controls = std::initializer_list<QWidget*>;
  for (QWidget* control : Controls{m_ui->txtPath, m_ui->cmdFile, m_ui->cmdFolder, m_ui->cmdClose}) {
    control->setEnabled(!isWriting);
  }
  for (QWidget* control : Controls{m_ui->txtName, m_ui->txtStem, m_ui->cmdImport}) {
    control->setEnabled(isFound && !isWriting);
  }
  step == TextImport::Step::kReading ? m_progress.start() : m_progress.stop();
}

void frmImport::reject() {
  if (m_import.AtHand() == TextImport::Step::kWriting) return;
  m_isImportWanted = false;
  m_edits.stop();
  m_import.Forget();
  LoadedDialog::reject();
}

void frmImport::dragEnterEvent(QDragEnterEvent* event) {
  if (!DraggedPath(event->mimeData()).isEmpty() && !IsImporting()) event->acceptProposedAction();
}

void frmImport::dropEvent(QDropEvent* event) {
  const QString path = DraggedPath(event->mimeData());
  if (path.isEmpty() || IsImporting()) return;
  event->acceptProposedAction();
  Take(FromQt(path));
}

}  // namespace folionet
