#pragma once

#include <memory>
#include <optional>
#include <string>

#include "AppState.h"
#include "CustomHtml.h"
#include "LoadedDialog.h"

namespace folionet {

namespace Ui {
class CustomHtmlDialog;
}

// What tells the custom header dialog from the custom footer dialog.
struct CustomHtmlDialogKind {
  const CustomHtmlKind& file;
  const char* formName;
  const char* caption;
  const char* doneButton;  // its name
  const char* note;
  std::string PageTexts::*sharedText;  // what the pages use
};

// Edits a block of HTML for every page, which is kept in a file of its own. Pages use the shared text, which changes
// only when the file is loaded and by Done. Closing the dialog otherwise saves the file and leaves the shared text.
class CustomHtmlDialog : public LoadedDialog {
  Q_OBJECT

 public:
  ~CustomHtmlDialog() override;

  // Saves the file, then hides the dialog, but not when saving failed, which was reported, or was not wanted. A person
  // who then closes it again with the same text gets out all the same: the folder may not be theirs to mend. The text
  // stays in the box.
  void reject() override;

 protected:
  CustomHtmlDialog(AppState& state, const CustomHtmlDialogKind& kind, QWidget* parent);

  // Reads the file into the box and the box into the shared text. A failure is reported, and the note is then not set.
  void Load() override;

 private:
  void Show(const std::string& text);
  bool TakeFromOthers();
  void Done();
  bool Save();
  bool MayWriteOver() const;

  AppState& m_state;
  const CustomHtmlDialogKind& m_kind;
  CustomHtmlFile m_file;
  std::string m_shown;                     // the box's text that the person has not changed
  std::optional<std::string> m_unsaved{};  // the text whose saving failed last
  std::unique_ptr<Ui::CustomHtmlDialog> m_ui;
};

}  // namespace folionet
