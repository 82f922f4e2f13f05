#include "CustomHtmlDialog.h"

#include <QFontDatabase>

#include "PageEncoding.h"
#include "ui_CustomHtmlDialog.h"

namespace folionet {

CustomHtmlDialog::CustomHtmlDialog(AppState& state, const CustomHtmlDialogKind& kind, QWidget* parent)
    : LoadedDialog(state.ui, parent), m_state(state), m_kind(kind), m_ui(std::make_unique<Ui::CustomHtmlDialog>()) {
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
  const std::optional<std::string> text = LoadCustomHtml(StoredOwnFolder(m_state.store, m_state.programFolder),
                                                         m_kind.file, m_ui->Text1->Text(), m_state.ui);
  m_isUnread = !text;
  if (m_isUnread) return;
  m_ui->Text1->SetText(*text);
  m_state.texts.*m_kind.sharedText = *text;
  m_ui->Label1->setText(QLatin1String(m_kind.note));
}

// An empty box does not replace a file that could not be read.
bool CustomHtmlDialog::Save() {
  const std::string text = m_ui->Text1->Text();
  if (m_isUnread && text.empty()) return true;
  const bool isSaved =
      SaveCustomHtml(StoredOwnFolder(m_state.store, m_state.programFolder), m_kind.file, text, m_state.ui);
  m_unsaved = isSaved ? std::nullopt : std::optional(text);
  return isSaved;
}

void CustomHtmlDialog::Done() {
  m_state.texts.*m_kind.sharedText = m_ui->Text1->Text();
  if (Save()) hide();
}

void CustomHtmlDialog::reject() {
  const std::optional<std::string> refused = m_unsaved;
  if (!Save() && m_unsaved != refused) return;
  m_unsaved.reset();
  QDialog::reject();
}

}  // namespace folionet
