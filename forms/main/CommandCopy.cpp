#include "CommandCopy.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QWidget>
#include <utility>

#include "CommandText.h"
#include "QtText.h"
#include "RunTimeError.h"

namespace folionet {

CommandCopy::CommandCopy(AppState& state, QWidget& button, QWidget* form, Gather gather)
    : QObject(form), m_state(state), m_gather(std::move(gather)) {
  auto* action = new QAction(tr("Copy as command line"), this);
  action->setObjectName(QStringLiteral("actCopyCommand"));
  action->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_C);
  button.addAction(action);
  button.setContextMenuPolicy(Qt::ActionsContextMenu);
  connect(action, &QAction::triggered, this, &CommandCopy::Copy);
}

void CommandCopy::Copy() {
  const std::optional<CompileRequest> request = m_gather();
  if (!request) return;
  try {
    QApplication::clipboard()->setText(ToQt(CompileCommandLine(*request, m_state)));
    m_state.ui.SetPanel(1, FromQt(tr("The command is on the clipboard.")));
  } catch (const RunTimeError& error) {
    m_state.ui.ShowErrorReport({Procedure::kFormLoad, error});
  }
}

}  // namespace folionet
