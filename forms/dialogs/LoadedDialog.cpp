#include "LoadedDialog.h"

#include <QKeyEvent>

#include "HelpWindow.h"
#include "OneLine.h"
#include "RunTimeError.h"
#include "ShownBoxes.h"

namespace folionet {

void LoadedDialog::LoadForm() {
  if (!m_isLoaded) KeepBoxesToOneLine(*this);
  m_isLoaded = true;
  try {
    Load();
  } catch (const RunTimeError&) {
    ShowRecord();
    throw;
  }
  ShowRecord();
}

void LoadedDialog::showEvent(QShowEvent* event) {
  try {
    if (!m_isLoaded) LoadForm();
  } catch (const RunTimeError& error) {
    m_reports.ShowErrorReport({Procedure::kFormLoad, error});
  }
  DressBoxes(*this);
  QDialog::showEvent(event);
}

void LoadedDialog::changeEvent(QEvent* event) {
  QDialog::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) DressBoxes(*this);
}

void LoadedDialog::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_F1) {
    QDialog::keyPressEvent(event);
    return;
  }
  if (m_help == nullptr) m_help = new HelpWindow(this);
  m_help->ShowTopicOf(this);
}

}  // namespace folionet
