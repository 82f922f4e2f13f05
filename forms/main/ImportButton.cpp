#include "ImportButton.h"

#include <QShortcut>
#include <filesystem>
#include <system_error>

#include "Dialogs.h"
#include "LibraryLists.h"
#include "PageEncoding.h"
#include "QtText.h"
#include "frmImport.h"
#include "ui_frmMain.h"

namespace folionet {

ImportButton::ImportButton(AppState& state, Ui::frmMain& controls, LibraryLists& lists, Dialogs& dialogs, QWidget* form)
    : QObject(form), m_state(state), m_controls(controls), m_lists(lists), m_dialogs(dialogs), m_form(form) {
  connect(m_controls.cmdImport, &QPushButton::clicked, this, [this] { Open(); });
  connect(new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_I), form), &QShortcut::activated, m_controls.cmdImport,
          &QPushButton::click);
}

ImportButton::~ImportButton() = default;

void ImportButton::Open(const std::string& path) {
  if (!mayOpen()) return;
  m_dialog = std::make_unique<frmImport>(m_state.ui, StoredLanguage(m_state.store), m_form);
  if (m_dialogs.whenMade) m_dialogs.whenMade(*m_dialog);
  connect(m_dialog.get(), &frmImport::Imported, this, &ImportButton::Choose);
  m_dialog->Take(path);
  m_dialogs.openModal(*m_dialog);
}

// Where another library is in use, the person says whether to leave it.
void ImportButton::Choose(const std::string& folder, const std::string& stem) {
  const std::string inUse = m_state.glob.InstallPath;
  std::error_code ignored;
  if (!std::filesystem::equivalent(inUse, folder, ignored)) {
    const QString question =
        tr("The text is in the library of imported texts, %1.\n"
           "The translations of another library are listed: %2.\n"
           "List those of the imported texts instead, until Folionet is closed? Later, "
           "folionet --versalia-path with the first folder does so.");
    if (!m_state.ui.AskYesNo(FromQt(tr("Import a text")), FromQtLines(question.arg(ToQt(folder), ToQt(inUse))))) return;
  }
  m_lists.ShowImported(folder, stem);
  m_controls.cboBibleName->setFocus();
}

}  // namespace folionet
