#include "FolderPickers.h"

#include <QCoreApplication>
#include <QDir>
#include <algorithm>
#include <cerrno>
#include <future>
#include <memory>

#include "BackgroundWork.h"
#include "CompileRequest.h"
#include "FolderTree.h"
#include "OpeningCombo.h"
#include "OptionLoading.h"
#include "Paths.h"
#include "QtText.h"
#include "RunGuard.h"
#include "RunTimeError.h"
#include "ui_frmMain.h"

namespace folionet {
namespace {

void ReportDrive(UserInterface& ui, const RunTimeError& error) {
  ui.ShowErrorReport({Procedure::kDriveChange, error, "Drive not Ready or Drive not Available.\r\n"});
}

// The path as the lists have it: no separator at its end.
QString CleanPath(const std::string& path) { return QDir::cleanPath(ToQt(NativePath(path))); }

}  // namespace

FolderPickers::FolderPickers(AppState& state, Ui::frmMain& controls, QObject* parent)
    : QObject(parent),
      askDisk([](const std::string& path) { FolderExists(path); }),
      m_state(state),
      m_controls(controls) {
  connect(m_controls.Drive1, &OpeningCombo::Opening, this, &FolderPickers::ListVolumes);
  connect(m_controls.Drive1, &QComboBox::activated, this, &FolderPickers::Drive1_Change);
  connect(m_controls.Dir1, &FolderTree::PathChosen, this, &FolderPickers::Dir1_Change);
  connect(m_controls.cmdBrowse, &QPushButton::clicked, this, &FolderPickers::Browse);
  m_controls.Dir1->answers = [this](const QString& path) { return Answers(FromQt(path)); };
}

void FolderPickers::Restore() {
  if (!m_state.glob.OutputFolder.empty()) return;
  LoadOptions(m_state.store, OptionPart::kFolders, m_state.options);
  RestoreDrive();
  RestoreFolder();
}

std::string FolderPickers::OutputPath() const {
  return m_state.glob.OutputFolder.empty() ? CompileRequest().txtOutputPath : m_state.glob.OutputFolder;
}

void FolderPickers::ListVolumes() {
  const QString shown = m_controls.Dir1->RootPath();
  m_volumes = volumes();
  m_controls.Drive1->clear();
  for (const Volume& volume : m_volumes) {
    const QString path = QDir::toNativeSeparators(volume.path);
    const bool isOnlyOne = std::count_if(m_volumes.begin(), m_volumes.end(),
                                         [&](const Volume& other) { return other.name == volume.name; }) == 1;
    m_controls.Drive1->addItem(isOnlyOne ? volume.name : volume.name + QStringLiteral(" \u2014 ") + path, volume.path);
    m_controls.Drive1->setItemData(m_controls.Drive1->count() - 1, path, Qt::ToolTipRole);
  }
  if (shown.isEmpty()) {
    ShowVolume(0);
  } else {
    m_controls.Drive1->setCurrentIndex(m_controls.Drive1->findData(shown));
  }
}

// Throws RunTimeError when it does not answer; nothing waits for the thread then. A form that is shown goes on being
// painted meanwhile.
void FolderPickers::AwaitDisk(const std::string& path) const {
  const auto task = std::make_shared<std::packaged_task<void()>>([ask = askDisk, path] { ask(path); });
  const std::future<void> answer = task->get_future();
  RunBeside([task] { (*task)(); });
  constexpr std::chrono::milliseconds kUnnoticed(100);
  constexpr std::chrono::milliseconds kFrame(20);
  const auto end = std::chrono::steady_clock::now() + patience;
  QWidget& form = *m_controls.Dir1->window();
  if (answer.wait_for(form.isVisible() ? std::min(patience, kUnnoticed) : patience) == std::future_status::ready)
    return;
  const RunGuard guard(form);
  while (std::chrono::steady_clock::now() < end) {
    if (answer.wait_for(kFrame) == std::future_status::ready) return;
    QCoreApplication::processEvents();
  }
  throw RunTimeError(kDiskNotReady, path, "The disk does not answer.");
}

bool FolderPickers::Answers(const std::string& path) const {
  try {
    AwaitDisk(path);
  } catch (const RunTimeError& error) {
    ReportDrive(m_state.ui, error);
    return false;
  }
  return true;
}

void FolderPickers::RestoreDrive() {
  if (!IsChosenFolder(m_state.options.main.Drive1)) return;
  const int item = m_controls.Drive1->findData(CleanPath(m_state.options.main.Drive1));
  try {
    if (item < 0) throw RunTimeError::FromErrno(ENODEV, m_state.options.main.Drive1);
    AwaitDisk(m_state.options.main.Drive1);
    ListFolder(m_state.options.main.Drive1);
    ShowVolume(item);
  } catch (const RunTimeError& error) {
    ReportDrive(m_state.ui, error);
  }
}

void FolderPickers::RestoreFolder() {
  if (!IsChosenFolder(m_state.options.main.Dir1)) return;
  const QString folder = CleanPath(m_state.options.main.Dir1);
  try {
    AwaitDisk(FromQt(folder));
    if (!ShowFolder(folder)) throw RunTimeError(kPathNotFound, m_state.options.main.Dir1);
  } catch (const RunTimeError& error) {
    ReportDrive(m_state.ui, error);
    return;
  }
  Dir1_Change(folder);
}

// Shows a folder of any volume: of the one shown when it is there, else of the one that it lies deepest in.
bool FolderPickers::ShowFolder(const QString& path) {
  if (!QFileInfo(path).isDir()) return false;
  if (m_controls.Dir1->SetPath(path)) return true;
  int best = -1;
  for (int i = 0; i < static_cast<int>(m_volumes.size()); ++i) {
    const QString& root = m_volumes[static_cast<std::size_t>(i)].path;
    const bool holds = path == root || path.startsWith(root.endsWith(u'/') ? root : root + u'/');
    if (holds && (best < 0 || root.size() > m_volumes[static_cast<std::size_t>(best)].path.size())) best = i;
  }
  return best >= 0 && ShowVolume(best) && m_controls.Dir1->SetPath(path);
}

bool FolderPickers::ShowVolume(int item) {
  if (item < 0 || item >= static_cast<int>(m_volumes.size())) return false;
  const Volume& volume = m_volumes[static_cast<std::size_t>(item)];
  m_controls.Drive1->setCurrentIndex(item);
  m_controls.Dir1->SetRoot(volume.name, volume.path);
  return true;
}

void FolderPickers::Drive1_Change(int item) {
  const QString path = m_controls.Drive1->itemData(item).toString();
  try {
    AwaitDisk(FromQt(path));
    ListFolder(FromQt(path));
  } catch (const RunTimeError& error) {
    m_controls.Drive1->setCurrentIndex(m_controls.Drive1->findData(m_controls.Dir1->RootPath()));
    ReportDrive(m_state.ui, error);
    return;
  }
  ShowVolume(item);
  Dir1_Change(path);
}

void FolderPickers::Dir1_Change(const QString& path) {
  MainOptions& main = m_state.options.main;
  main.Drive1 = FromQt(m_controls.Dir1->RootPath());
  main.Dir1 = FromQt(path);
  m_state.glob.OutputFolder = main.Dir1.ends_with('/') ? main.Dir1 : main.Dir1 + '/';
  m_controls.txtOutputPath->setText(ToQt(m_state.glob.OutputFolder));
  m_controls.txtOutputPath->setPlaceholderText({});
  m_controls.txtOutputPath->setToolTip(m_controls.txtOutputPath->text());
  emit Chosen();
}

void FolderPickers::Browse() {
  const std::string& last = m_state.glob.OutputFolder;
  const std::string start = !last.empty() && Answers(last) ? last : std::string();
  const std::string chosen = m_state.ui.ChooseFolder(start, FromQt(tr("Choose the Output Path")));
  if (chosen.empty()) return;  // none was chosen before and none is now
  Choose(chosen);
}

bool FolderPickers::Choose(const std::string& path) {
  const QString folder = CleanPath(path);
  if (!Answers(path)) return false;
  if (!ShowFolder(folder)) {
    ReportDrive(m_state.ui, RunTimeError(kPathNotFound, path));
    return false;
  }
  Dir1_Change(folder);
  return true;
}

}  // namespace folionet
