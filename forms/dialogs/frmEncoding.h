#pragma once

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "AppState.h"
#include "LoadedDialog.h"
#include "OwnText.h"

class QLineEdit;

namespace folionet {

namespace Ui {
class frmEncoding;
}
class TextCombo;
class frmAddnew;

// Chooses the language and the character set that the pages declare. The lists' entries are stored; what was typed into
// the text boxes is used until the program ends.
class frmEncoding : public LoadedDialog {
  Q_OBJECT

 public:
  explicit frmEncoding(AppState& state, QWidget* parent = nullptr);
  ~frmEncoding() override;

  // As cmdDone, but hides the dialog also after a failure, which was reported: a person must be able to leave.
  void reject() override;

  // Shows frmAddnew until it is closed.
  std::function<void(QDialog&)> openModal = [](QDialog& dialog) { dialog.exec(); };

 protected:
  // Fills the lists from enc.txt and lang.txt and shows the stored entries. A failure is reported.
  void Load() override;

  // A dialog that is shown again shows what is in use by now; lists that could not be filled are read again.
  void showEvent(QShowEvent* event) override;

 private:
  void PopCombo();
  void Fill(const char* fileName, const char* key, TextCombo& list, QLineEdit& box);
  QString EntryInUse(const char* key, const TextCombo& list) const;
  bool ShowInUse(const char* key, const std::string& code, TextCombo& list, QLineEdit& box);
  std::optional<OwnFolder> Folder() const;
  void ShowListsAnew(const OwnFolder& folder);
  void AddNew();
  EncodingOptions Entries() const;
  using HtmlTexts = std::array<std::optional<std::string>, 2>;
  HtmlTexts ReadHtml() const;
  void TakeHtml(const HtmlTexts& before);
  void SaveChanged();
  bool SaveAndUse();

  AppState& m_state;
  std::unique_ptr<Ui::frmEncoding> m_ui;
  EncodingOptions m_shown;        // the entries of the lists but for what the person has changed and is not stored
  bool m_isFilled = false;        // both lists
  std::string m_listedIn;         // the code page that the lists were in when they were read last
  frmAddnew* m_addNew = nullptr;  // made when first opened
};

}  // namespace folionet
