#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QString>
#include <QTimer>
#include <array>
#include <string_view>

#include "Compile.h"

class QLabel;
class QProgressBar;
class QStatusBar;

namespace folionet {

// The three panels of the status bar, and the progress bar, which fills by one step at every text of panel 1 while a
// run lasts. During a run the window is brought up to date at most every 40 ms, and once at the end, so that showing
// progress costs next to nothing.
class StatusPanels : public QObject {
  Q_OBJECT

 public:
  StatusPanels(QStatusBar& bar, QProgressBar& progress, QObject* parent);

  // `panel` counts from 1; others are passed over.
  void Set(int panel, std::string_view text);

  // The progress bar shows with the first text that a run sets: one that is refused sets none.
  void BeginRun(int steps);
  void EndRun(CompileOutcome outcome);

 private:
  void ShowProgress();

  std::array<QLabel*, 3> m_panels{};
  QProgressBar& m_progress;
  QElapsedTimer m_sinceShown;
  QTimer m_late;  // shows what came too early, when a box holds the run up
  QString m_text;
  int m_steps = 0;
  bool m_isRunning = false;
};

}  // namespace folionet
