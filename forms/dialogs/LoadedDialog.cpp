#include "LoadedDialog.h"

#include <QEvent>
#include <utility>

#include "ContentScroll.h"
#include "HelpTopics.h"
#include "OneLine.h"
#include "RunTimeError.h"
#include "ShownBoxes.h"

namespace folionet {

LoadedDialog::LoadedDialog(UserInterface& ui, QWidget* parent) : QDialog(parent), m_reports(ui) {
  OpenHelpByKey(*this);
}

void LoadedDialog::LoadForm() {
  if (!m_isLoaded) KeepBoxesToOneLine(*this);
  m_isLoaded = true;
  try {
    Load();
    m_isRead = true;
  } catch (const RunTimeError&) {
    ShowRecord();
    throw;
  }
  ShowRecord();
}

void LoadedDialog::setVisible(bool isVisible) {
  if (isVisible && std::exchange(m_isToScroll, false)) ScrollAllButButtons(*this);
  QDialog::setVisible(isVisible);
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
  if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange) DressBoxes(*this);
}

}  // namespace folionet
