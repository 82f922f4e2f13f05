#include "frmAddnew.h"

#include <QKeyEvent>
#include <utility>

#include "EncodingLists.h"
#include "HelpTopics.h"
#include "LabelColumn.h"
#include "OneLine.h"
#include "OwnCharset.h"
#include "QtText.h"
#include "RunTimeError.h"
#include "ShownBoxes.h"
#include "ui_frmAddnew.h"

namespace folionet {

frmAddnew::frmAddnew(AppState& state, QWidget* parent)
    : QDialog(parent), m_state(state), m_ui(std::make_unique<Ui::frmAddnew>()) {
  m_ui->setupUi(this);
  OpenHelpByKey(*this);
  connect(m_ui->cmdUpdLang, &QPushButton::clicked, this,
          [this] { AddRecord(kLanguageList, Procedure::kUpdateLanguages, *m_ui->txtLangAbbr, *m_ui->txtLangLang); });
  connect(m_ui->cmdUpdEnc, &QPushButton::clicked, this,
          [this] { AddRecord(kCharsetList, Procedure::kUpdateCharsets, *m_ui->txtEncAbbr, *m_ui->txtEncLang); });
  connect(m_ui->cmdCancel, &QPushButton::clicked, this, [this] {
    m_hasAdded = false;
    emit ListsChanged();
    hide();
  });
  for (const QLineEdit* box : {m_ui->txtLangAbbr, m_ui->txtLangLang}) {
    connect(box, &QLineEdit::returnPressed, m_ui->cmdUpdLang, &QPushButton::click);
  }
  for (const QLineEdit* box : {m_ui->txtEncAbbr, m_ui->txtEncLang}) {
    connect(box, &QLineEdit::returnPressed, m_ui->cmdUpdEnc, &QPushButton::click);
  }
}

frmAddnew::~frmAddnew() = default;

void frmAddnew::keyPressEvent(QKeyEvent* event) {
  const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (!isEnter) QDialog::keyPressEvent(event);
}

void frmAddnew::showEvent(QShowEvent* event) {
  Dress();
  QDialog::showEvent(event);
}

void frmAddnew::changeEvent(QEvent* event) {
  QDialog::changeEvent(event);
  if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange) Dress();
}

void frmAddnew::Dress() {
  AlignLabels({m_ui->lblLangAbbr, m_ui->lblLangLang, m_ui->lblEncAbbr, m_ui->lblEncLang});
  DressBoxes(*this);
}

void frmAddnew::reject() {
  if (std::exchange(m_hasAdded, false)) emit RecordsAdded();
  QDialog::reject();
}

void frmAddnew::AddRecord(const char* fileName, Procedure procedure, const QLineEdit& abbreviation,
                          const QLineEdit& language) {
  const EncodingRecord record{FromQt(InOneLine(abbreviation.text()).trimmed()),
                              FromQt(InOneLine(language.text()).trimmed())};
  if (record.code.empty() || record.description.empty()) {
    m_state.ui.ShowMessage({MessageIcon::kWarning, "Blank Field(s)", "Both fields must have text in them"});
    return;
  }
  try {
    AppendEncodingRecord(OwnFolderToSave(m_state.store, m_state.programFolder), fileName, record);
    m_hasAdded = true;
    m_state.ui.ShowMessage({MessageIcon::kInformation, "Record Added", "Record Added"});
  } catch (const RunTimeError& error) {
    m_state.ui.ShowErrorReport({procedure, error});
  }
}

}  // namespace folionet
