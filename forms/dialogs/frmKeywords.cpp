#include "frmKeywords.h"

#include <algorithm>
#include <array>

#include "Follow.h"
#include "KeyReleases.h"
#include "OptionLoading.h"
#include "PreviewBox.h"
#include "TrySave.h"
#include "ui_frmKeywords.h"

namespace folionet {

frmKeywords::frmKeywords(AppState& state, QWidget* parent)
    : LoadedDialog(state.ui, parent), m_state(state), m_ui(std::make_unique<Ui::frmKeywords>()) {
  m_ui->setupUi(this);
  LetContentScroll();
  MetaOptions& record = m_state.options.frmKeywords;
  Follow(m_ui->txtKeywordsI, record.txtKeywordsI);
  Follow(m_ui->txtDescriptionI, record.txtDescriptionI);
  Follow(m_ui->txtKeyWords, record.txtKeyWords);
  Follow(m_ui->txtDescription, record.txtDescription);
  connect(m_ui->cmdCheck, &QPushButton::clicked, this, &frmKeywords::RefreshTitles);
  connect(m_ui->cmdClose, &QPushButton::clicked, this, &frmKeywords::Close);
  new KeyReleases(*this, [this] { return RefreshTitles(); });
}

frmKeywords::~frmKeywords() = default;

void frmKeywords::Load() { LoadOptions(m_state.store, OptionPart::kKeywords, m_state.options); }

void frmKeywords::ShowRecord() {
  const MetaOptions record = m_state.options.frmKeywords;
  m_ui->txtKeywordsI->SetText(record.txtKeywordsI);
  m_ui->txtDescriptionI->SetText(record.txtDescriptionI);
  m_ui->txtKeyWords->SetText(record.txtKeyWords);
  m_ui->txtDescription->SetText(record.txtDescription);
}

// What was shown when the dialog was last open may be of another translation.
void frmKeywords::showEvent(QShowEvent* event) {
  LoadedDialog::showEvent(event);
  const bool wasShown = std::ranges::any_of(
      std::array{m_ui->txtDescriptionOKI, m_ui->txtKeywordsOKI, m_ui->txtDescriptionOK, m_ui->txtKeyWordsOK},
      [](const TextBox* box) { return !box->Text().empty(); });
  if (wasShown) RefreshTitles();
}

bool frmKeywords::RefreshTitles() {
  const MetaOptions& record = m_state.options.frmKeywords;
  bool areAllShown = ShowPreview(m_state, record.txtDescriptionI, *m_ui->txtDescriptionOKI);
  areAllShown &= ShowPreview(m_state, record.txtKeywordsI, *m_ui->txtKeywordsOKI);
  areAllShown &= ShowPreview(m_state, record.txtDescription, *m_ui->txtDescriptionOK);
  areAllShown &= ShowPreview(m_state, record.txtKeyWords, *m_ui->txtKeyWordsOK);
  return areAllShown;
}

void frmKeywords::Close() {
  TrySave(m_state, Procedure::kSaveMeta, OptionPart::kKeywords);
  hide();
}

}  // namespace folionet
