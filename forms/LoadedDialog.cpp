#include "LoadedDialog.h"

#include "RunTimeError.h"

namespace folionet {

void LoadedDialog::LoadForm() {
  m_isLoaded = true;
  Load();
}

void LoadedDialog::showEvent(QShowEvent* event) {
  try {
    if (!m_isLoaded) LoadForm();
  } catch (const RunTimeError& error) {
    m_reports.ShowErrorReport(error.Number(), "Form Load - MAIN", error.Extra());
  }
  QDialog::showEvent(event);
}

}  // namespace folionet
