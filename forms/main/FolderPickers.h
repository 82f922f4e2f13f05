#pragma once

#include <QObject>
#include <chrono>
#include <functional>
#include <string>
#include <vector>

#include "AppState.h"
#include "Volumes.h"

namespace folionet {

namespace Ui {
class frmMain;
}

// The drive list, the folder list, Browse... and the box that shows the chosen output folder. Until a folder is chosen
// the stored "Drive1" and "Dir1" stay as they were, and there is no output path.
class FolderPickers : public QObject {
  Q_OBJECT

 public:
  FolderPickers(AppState& state, Ui::frmMain& controls, QObject* parent);

  // Lists the volumes that are there now and shows the first, or the one that was shown.
  void ListVolumes();

  // Shows the stored drive and folder, unless a folder was chosen already. A stored folder counts as chosen; a drive or
  // folder that is gone is reported.
  void Restore();

  // Chooses a folder, of whatever volume. False, and told, when there is none of that path.
  bool Choose(const std::string& path);

  // Whether the disk of the output folder answers, told where it does not: what goes on would hang there.
  bool HasOutputDisk() const { return m_state.glob.OutputFolder.empty() || Answers(m_state.glob.OutputFolder); }

  // What a compile takes as its output path.
  std::string OutputPath() const;

  std::function<std::vector<Volume>()> volumes = MountedVolumes;

  // Has the disk of a path answer, whatever the answer is, in a thread of its own. One that takes longer is reported as
  // not ready: a server that is gone answers never, a disk that sleeps after some seconds.
  std::function<void(const std::string& path)> askDisk;
  std::chrono::milliseconds patience = std::chrono::seconds(10);

 signals:
  void Chosen();

 private:
  void AwaitDisk(const std::string& path) const;
  bool Answers(const std::string& path) const;  // told where it does not
  void RestoreDrive();
  void RestoreFolder();
  void Drive1_Change(int item);
  void Dir1_Change(const QString& path);
  void Browse();
  bool ShowFolder(const QString& path);
  bool ShowVolume(int item);

  AppState& m_state;
  Ui::frmMain& m_controls;
  std::vector<Volume> m_volumes;
};

}  // namespace folionet
