#include "frmLinkToMAin.h"

#include <algorithm>
#include <array>

#include "ChapterIndex.h"
#include "EncodeOptions.h"
#include "Follow.h"
#include "LinkBack.h"
#include "Numbers.h"
#include "OptionLoading.h"
#include "OptionSaving.h"
#include "PreviewBox.h"
#include "TrySave.h"
#include "ui_frmLinkToMAin.h"

namespace folionet {

frmLinkToMAin::frmLinkToMAin(AppState& state, QWidget* parent)
    : LoadedDialog(state.ui, parent),
      m_state(state),
      m_record(state.options.frmLinkToMAin),
      m_ui(std::make_unique<Ui::frmLinkToMAin>()) {
  m_ui->setupUi(this);
  LetContentScroll();
  Follow(m_ui->txtLinkToMain, m_record.txtLinkToMain);
  int justification = 0;
  for (const QRadioButton* option : {m_ui->OLeft, m_ui->OCenter, m_ui->ORight}) {
    ++justification;
    connect(option, &QRadioButton::clicked, this, [this, justification] { Justify(justification); });
  }
  connect(m_ui->cboSize, &QComboBox::textActivated, this, [this](const QString& size) {
    m_record.cboSize = FromQt(size);
    ShowFontSize(size.toInt());
    SaveFontSize(size.toInt());
    SetString();
  });
  connect(m_ui->cmdRefresh, &QPushButton::clicked, this, &frmLinkToMAin::Refresh);
  connect(m_ui->cmdClose, &QPushButton::clicked, this, &frmLinkToMAin::Close);
}

frmLinkToMAin::~frmLinkToMAin() = default;

void frmLinkToMAin::Load() {
  LoadOptions(m_state.store, OptionPart::kLinkToMain, m_state.options);
  const auto size = static_cast<int>(ReadInteger(m_record.cboSize, kInt16Min, kInt16Max).value);
  const SettingsStore& store = m_state.store;
  const bool isStored = store.Has("LinkBackSize") && store.Text("LinkBackSize") == std::to_string(size);
  ShowFontSize(size);
  // The file of a site changes by what a person chooses alone.
  if (!isStored && store.SitePath().empty()) SaveFontSize(size);
  SetString();
}

void frmLinkToMAin::ShowRecord() {
  m_ui->txtLinkToMain->setText(ToQt(m_record.txtLinkToMain));
  ShowJustification();
  m_ui->cboSize->SetText(ToQt(m_record.cboSize));
}

void frmLinkToMAin::SetSizeEnabled(bool isEnabled) { m_ui->cboSize->setEnabled(isEnabled); }

void frmLinkToMAin::Justify(int justification) {
  m_record.LCR = static_cast<std::int16_t>(justification);
  ShowJustification();
  TrySave(m_state, Procedure::kSetJustification, "LCR");
  m_record.alignment = AlignmentWord(justification);
  SetString();
}

// A value that stands for no alignment leaves everything as it is.
void frmLinkToMAin::ShowJustification() {
  const std::array<QRadioButton*, 3> options{m_ui->OLeft, m_ui->OCenter, m_ui->ORight};
  constexpr std::array kAlignments{Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight};
  if (AlignmentWord(m_record.LCR).empty()) return;
  const auto place = static_cast<std::size_t>(m_record.LCR - 1);
  options[place]->setChecked(true);
  for (QLineEdit* box : {m_ui->txtLinkToMain, m_ui->txtLinkToMainOK}) {
    box->setAlignment(kAlignments[place] | Qt::AlignVCenter);
  }
}

void frmLinkToMAin::ShowFontSize(int size) {
  constexpr int kLargestShown = 72;
  for (QLineEdit* box : {m_ui->txtLinkToMain, m_ui->txtLinkToMainOK}) {
    QFont font = box->font();
    font.setPointSize(std::clamp(size + 8, 1, kLargestShown));
    box->setFont(font);
  }
}

void frmLinkToMAin::SaveFontSize(int size) {
  TrySave(m_state, Procedure::kSetFontSize,
          [&](SettingsStore& store) { SaveOption(store, "LinkBackSize", std::to_string(size), m_state.options); });
}

void frmLinkToMAin::SetString() {
  const auto html =
      folionet::SetString(EncodePageOptions(m_state.options, m_state.codePage), VerseCounts(m_state.glob), m_state.ui);
  if (html) m_ui->txtBackToString->SetText(m_state.codePage.DecodeForDisplay(*html));
}

// What was shown when the dialog was last open may be of another translation.
void frmLinkToMAin::showEvent(QShowEvent* event) {
  LoadedDialog::showEvent(event);
  if (m_ui->txtLinkToMainOK->text().isEmpty()) {
    SetString();
  } else {
    Refresh();
  }
}

void frmLinkToMAin::Refresh() {
  ShowPreview(m_state, m_record.txtLinkToMain, *m_ui->txtLinkToMainOK);
  SetString();
}

void frmLinkToMAin::Close() {
  hide();
  TrySave(m_state, Procedure::kSaveLinkToMain, OptionPart::kLinkToMain);
}

}  // namespace folionet
