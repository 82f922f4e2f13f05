#pragma once

#include <QTimer>
#include <memory>
#include <string>

#include "LoadedDialog.h"
#include "TextImport.h"

namespace folionet {

namespace Ui {
class frmImport;
}

// Imports a Bible text: it is chosen, read beside the form and shown with what was found, and written when the person
// says so.
class frmImport : public LoadedDialog {
  Q_OBJECT

 public:
  // `pageLanguage` is the code that pages declare of a text that names no language.
  frmImport(UserInterface& ui, std::string pageLanguage, QWidget* parent = nullptr);
  ~frmImport() override;

  // Reads a text that was chosen; nothing for one that is empty or already there.
  void Take(const std::string& path);

  bool IsBusy() const { return m_import.AtHand() != TextImport::Step::kNone || m_edits.isActive(); }

 signals:
  // The text is in the library of this folder, under this stem; the dialog is hidden.
  void Imported(const std::string& folder, const std::string& stem);

 protected:
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;  // what is dropped is read

 private:
  void Load() override {}
  void reject() override;
  void ConnectControls();
  void ConnectImport();
  void Read();
  void Stop();
  void Import();
  bool IsImporting() const { return m_isImportWanted || m_import.AtHand() == TextImport::Step::kWriting; }
  void ShowStep();
  void ShowFound();
  bool IsRefused();
  void WriteOrAsk();
  void Fail(const ImportError& error);

  UserInterface& m_boxes;
  std::unique_ptr<Ui::frmImport> m_ui;
  TextImport m_import;
  QTimer m_edits;     // runs while names are typed
  QTimer m_progress;  // runs while the form waits
  bool m_isImportWanted = false;
};

}  // namespace folionet
