#pragma once

#include <QObject>
#include <functional>
#include <memory>
#include <string>

#include "AppState.h"

class QWidget;

namespace folionet {

namespace Ui {
class frmMain;
}
class Dialogs;
class LibraryLists;
class frmImport;

// The main form's way to a text that is no translation yet: its button, Ctrl+I, and what follows an import.
class ImportButton : public QObject {
  Q_OBJECT

 public:
  ImportButton(AppState& state, Ui::frmMain& controls, LibraryLists& lists, Dialogs& dialogs, QWidget* form);
  ~ImportButton() override;

  // With a text the dialog begins to read it at once.
  void Open(const std::string& path = {});

  std::function<bool()> mayOpen = [] { return true; };

 private:
  void Choose(const std::string& folder, const std::string& stem);

  AppState& m_state;
  Ui::frmMain& m_controls;
  LibraryLists& m_lists;
  Dialogs& m_dialogs;
  QWidget* m_form;
  std::unique_ptr<frmImport> m_dialog;  // made anew each time
};

}  // namespace folionet
