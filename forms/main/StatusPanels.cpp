#include "StatusPanels.h"

#include <QCoreApplication>
#include <QLabel>
#include <QProgressBar>
#include <QStatusBar>
#include <algorithm>

#include "QtText.h"

namespace folionet {
namespace {

constexpr int kInterval = 40;  // milliseconds
constexpr std::array kStretches{3, 1, 1};

}  // namespace

StatusPanels::StatusPanels(QStatusBar& bar, QProgressBar& progress, QObject* parent)
    : QObject(parent), m_progress(progress) {
  for (std::size_t i = 0; i < m_panels.size(); ++i) {
    auto* label = new QLabel(&bar);
    label->setObjectName(QStringLiteral("StatusBar1_Panel%1").arg(i + 1));
    label->setTextFormat(Qt::PlainText);
    label->setMinimumWidth(1);  // a long text must not widen the window
    bar.addWidget(label, kStretches[i]);
    m_panels[i] = label;
  }
  QSizePolicy room = m_progress.sizePolicy();
  room.setRetainSizeWhenHidden(true);  // else the window would grow as a run begins
  m_progress.setSizePolicy(room);
  m_late.setSingleShot(true);
  m_late.setInterval(kInterval);
  connect(&m_late, &QTimer::timeout, this, &StatusPanels::ShowProgress);
}

void StatusPanels::Set(int panel, std::string_view text) {
  if (panel < 1 || panel > static_cast<int>(m_panels.size())) return;
  if (panel != 1 || !m_isRunning) {
    m_panels[static_cast<std::size_t>(panel - 1)]->setText(ToQt(text));
    return;
  }
  if (++m_steps == 1) m_progress.show();
  m_text = ToQt(text);
  if (m_sinceShown.elapsed() < kInterval) {
    if (!m_late.isActive()) m_late.start();
    return;
  }
  ShowProgress();
  QCoreApplication::processEvents();
}

void StatusPanels::BeginRun(int steps) {
  m_isRunning = true;
  m_steps = 0;
  m_progress.setRange(0, std::max(steps, 1));
  m_progress.setValue(0);
  m_progress.hide();
  m_sinceShown.start();
}

void StatusPanels::EndRun(CompileOutcome outcome) {
  const bool isComplete = outcome == CompileOutcome::kDone;
  if (m_steps > 0) ShowProgress();
  m_late.stop();
  if (isComplete) m_progress.setValue(m_progress.maximum());
  m_progress.setVisible(isComplete);
  m_isRunning = false;
}

void StatusPanels::ShowProgress() {
  m_late.stop();
  m_panels[0]->setText(m_text);
  m_progress.setValue(std::min(m_steps, m_progress.maximum()));
  m_sinceShown.restart();
}

}  // namespace folionet
