#include "CustomHtmlDialog.h"

#include <QFontDatabase>

#include "OwnCharset.h"
#include "QtText.h"
#include "RunTimeError.h"
#include "ui_CustomHtmlDialog.h"

namespace folionet {

CustomHtmlDialog::CustomHtmlDialog(AppState& state, const CustomHtmlDialogKind& kind, QWidget* parent)
    : LoadedDialog(state.ui, parent),
      m_state(state),
      m_kind(kind),
      m_file(state.store, state.programFolder, kind.file),
      m_ui(std::make_unique<Ui::CustomHtmlDialog>()) {
  m_ui->setupUi(this);
  setObjectName(QLatin1String(kind.formName));
  setWindowTitle(QLatin1String(kind.caption));
  m_ui->cmdDone->setObjectName(QLatin1String(kind.doneButton));
  m_ui->Text1->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  m_ui->Text1->setFocus();
  connect(m_ui->cmdDone, &QPushButton::clicked, this, &CustomHtmlDialog::Done);
}

CustomHtmlDialog::~CustomHtmlDialog() = default;

void CustomHtmlDialog::Load() {
  const std::optional<std::string> text = m_file.Load(m_ui->Text1->Text(), m_state.ui);
  if (!text) return;
  Show(*text);
  m_state.texts.*m_kind.sharedText = *text;
  m_state.texts.OwnCharset = StoredOwnFolder(m_state.store, m_state.programFolder).codePage.Name();
  m_ui->Label1->setText(QLatin1String(m_kind.note));
}

void CustomHtmlDialog::Show(const std::string& text) {
  m_ui->Text1->SetText(text);
  m_shown = m_ui->Text1->Text();
}

// Shows what others have written since, in the place of a text that the person has not changed.
bool CustomHtmlDialog::TakeFromOthers() {
  const std::optional<std::string> text = m_file.Load(m_shown, m_state.ui);
  if (text) Show(*text);
  return text.has_value();
}

bool CustomHtmlDialog::MayWriteOver() const {
  const QString question =
      tr("%1 has changed since it was read here, or could not be read. Write this text over it all the same?");
  return m_state.ui.AskYesNo(FromQt(windowTitle()), FromQt(question.arg(ToQt(m_kind.file.fileName))));
}

// False when that failed, which was reported, or was not wanted. An empty box does not replace a file that could not be
// read.
bool CustomHtmlDialog::Save() {
  const std::string text = m_ui->Text1->Text();
  if (m_file.IsUnread() && text.empty()) return true;
  m_unsaved = text;
  try {
    const bool hasChanged = m_file.HasChanged();
    if (hasChanged && text == m_shown) {
      if (!TakeFromOthers()) return false;
    } else {
      if (hasChanged && !MayWriteOver()) return false;
      m_file.Write(text);
      m_shown = text;
    }
  } catch (const RunTimeError& error) {
    ReportCustomHtml(error, m_kind.file, Procedure::kUnloadCustomHtml, m_state.ui);
    return false;
  }
  m_unsaved.reset();
  return true;
}

void CustomHtmlDialog::Done() {
  std::string& shared = m_state.texts.*m_kind.sharedText;
  shared = m_ui->Text1->Text();
  const bool isSaved = Save();
  shared = m_ui->Text1->Text();
  if (isSaved) hide();
}

void CustomHtmlDialog::reject() {
  const std::optional<std::string> refused = m_unsaved;
  if (!Save() && m_unsaved != refused) return;
  m_unsaved.reset();
  QDialog::reject();
}

}  // namespace folionet
