#include "frmPAgeTitles.h"

#include "Follow.h"
#include "KeyReleases.h"
#include "OptionLoading.h"
#include "PreviewBox.h"
#include "TrySave.h"
#include "ui_frmPAgeTitles.h"

namespace folionet {

frmPAgeTitles::frmPAgeTitles(AppState& state, QWidget* parent)
    : LoadedDialog(state.ui, parent), m_state(state), m_ui(std::make_unique<Ui::frmPAgeTitles>()) {
  m_ui->setupUi(this);
  LetContentScroll();
  Follow(m_ui->txtIndex_html, m_state.options.frmPAgeTitles.txtIndex_html);
  Follow(m_ui->txtPageTitles, m_state.options.frmPAgeTitles.txtPageTitles);
  connect(m_ui->cmdCheck, &QPushButton::clicked, this, [this] {
    ShowPreviews();
    SaveTitles();
  });
  connect(m_ui->cmdClose, &QPushButton::clicked, this, [this] {
    SaveTitles();
    hide();
  });
  new KeyReleases(*this, [this] { return ShowPreviews(); });
}

frmPAgeTitles::~frmPAgeTitles() = default;

void frmPAgeTitles::Load() { LoadOptions(m_state.store, OptionPart::kPageTitles, m_state.options); }

void frmPAgeTitles::ShowRecord() {
  const PageTitleOptions titles = m_state.options.frmPAgeTitles;
  m_ui->txtIndex_html->setText(ToQt(titles.txtIndex_html));
  m_ui->txtPageTitles->setText(ToQt(titles.txtPageTitles));
}

// What was shown when the dialog was last open may be of another translation.
void frmPAgeTitles::showEvent(QShowEvent* event) {
  LoadedDialog::showEvent(event);
  if (!m_ui->txtPrevIndex->text().isEmpty() || !m_ui->txtPrevOther->text().isEmpty()) ShowPreviews();
}

void frmPAgeTitles::SaveTitles() { TrySave(m_state, Procedure::kSaveTitles, OptionPart::kPageTitles); }

bool frmPAgeTitles::ShowPreviews() {
  const PageTitleOptions& titles = m_state.options.frmPAgeTitles;
  const bool hasIndex = ShowPreview(m_state, titles.txtIndex_html, *m_ui->txtPrevIndex);
  return ShowPreview(m_state, titles.txtPageTitles, *m_ui->txtPrevOther) && hasIndex;
}

}  // namespace folionet
