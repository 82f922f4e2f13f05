#pragma once

#include <QDialog>
#include <memory>

#include "AppState.h"

class QLineEdit;

namespace folionet {

namespace Ui {
class frmAddnew;
}

// Adds records to the lists of languages and of character sets.
class frmAddnew : public QDialog {
  Q_OBJECT

 public:
  explicit frmAddnew(AppState& state, QWidget* parent = nullptr);
  ~frmAddnew() override;

  // Leaves everything in the dialog as it is.
  void reject() override;

 signals:
  // The person is done with adding: lists that show the records must be filled again.
  void ListsChanged();

  // The dialog was left otherwise, by its title bar or Esc, after records had been added.
  void RecordsAdded();

 protected:
  void showEvent(QShowEvent* event) override;
  void changeEvent(QEvent* event) override;

  // Enter adds the record that is being typed; a dialog's own would press one and the same button for both.
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Dress();  // by palette and font
  void AddRecord(const char* fileName, Procedure procedure, const QLineEdit& abbreviation, const QLineEdit& language);

  AppState& m_state;
  std::unique_ptr<Ui::frmAddnew> m_ui;
  bool m_hasAdded = false;  // since the lists were last filled
};

}  // namespace folionet
