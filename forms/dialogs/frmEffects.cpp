#include "frmEffects.h"

#include <QFontDatabase>
#include <QSignalBlocker>
#include <tuple>
#include <utility>

#include "Effects.h"
#include "Follow.h"
#include "OptionLoading.h"
#include "PageFonts.h"
#include "SwatchLabel.h"
#include "TrySave.h"
#include "ui_frmEffects.h"

namespace folionet {
namespace {

// The arrow keys go on from the entry that is shown, and start at the first one from a text that is no entry.
void ShowText(QComboBox& list, const std::string& text) {
  list.setCurrentIndex(list.findText(ToQt(text), Qt::MatchExactly | Qt::MatchCaseSensitive));
  list.setEditText(ToQt(text));
}

}  // namespace

frmEffects::frmEffects(AppState& state, QWidget* parent)
    : LoadedDialog(state.ui, parent),
      m_state(state),
      m_record(state.options.frmEffects),
      m_ui(std::make_unique<Ui::frmEffects>()) {
  m_ui->setupUi(this);
  // Text and link are one sentence, in the direction of its words.
  m_ui->fraSample->setLayoutDirection(m_ui->lblSampleText->text().isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
  LetContentScroll();
  ConnectRecord();
  const auto pick = [this](const QPushButton* button, const char* key, Swatch& swatch) {
    connect(button, &QPushButton::clicked, this, [this, key, &swatch] { PickColour(key, swatch); });
  };
  pick(m_ui->cmdHyperlink, "lblHyperlink", m_record.lblHyperlink);
  pick(m_ui->cmdActive, "lblActive", m_record.lblActive);
  pick(m_ui->cmdFollowed, "lblFollowed", m_record.lblFollowed);
  pick(m_ui->cmdRollover, "lblRColor", m_record.lblRColor);
  connect(m_ui->cmdRollover, &QPushButton::clicked, this, &frmEffects::BuildEffects);
  connect(m_ui->cmdRestoreDefaults, &QPushButton::clicked, this, &frmEffects::RestoreDefaults);
  connect(m_ui->cmdClose, &QPushButton::clicked, this, &frmEffects::Close);
}

frmEffects::~frmEffects() = default;

void frmEffects::ConnectRecord() {
  const std::pair<QComboBox*, std::string*> combos[]{
      {m_ui->cboFont, &m_record.cboFont}, {m_ui->cboSize, &m_record.cboSize}, {m_ui->cboStyle, &m_record.cboStyle}};
  for (const auto& [combo, field] : combos) {
    combo->setCompleter(nullptr);  // what is typed is used as typed
    Follow(combo, *field);
    connect(combo, &QComboBox::editTextChanged, this, &frmEffects::ShowLooks);
  }
  const std::tuple<QCheckBox*, bool*, const char*> checks[]{
      {m_ui->chkSmallCaps, &m_record.chkSmallCaps, "chkSmallCaps"},
      {m_ui->chkAllCaps, &m_record.chkAllCaps, "chkAllCaps"},
      {m_ui->chkUnderline, &m_record.chkUnderline, "chkUnderline"},
      {m_ui->chkRollover, &m_record.chkRollover, "chkRollover"}};
  for (const auto& [check, field, key] : checks) {
    Follow(check, *field);
    connect(check, &QCheckBox::clicked, this, [this, key = key] { MarkChosen(key, m_state.options); });
    connect(check, &QCheckBox::toggled, this, &frmEffects::ShowLooks);
  }
}

void frmEffects::Load() {
  {
    const QSignalBlocker fillingChoosesNothing(m_ui->cboFont);
    m_ui->cboFont->clear();
    m_ui->cboFont->addItems(QFontDatabase::families());
  }
  SetDefaultHyperlinkColors(0);
  BuildEffects();
}

void frmEffects::showEvent(QShowEvent* event) {
  LoadedDialog::showEvent(event);
  ShowLooks();  // the page's colours may be others than when the dialog was last open
}

// The caption goes whatever becomes of the choice.
void frmEffects::PickColour(const char* key, Swatch& swatch) {
  const std::optional<Colour> picked = m_state.ui.ChooseColour(swatch.colour);
  swatch = {picked.value_or(swatch.colour), false};
  if (picked) MarkChosen(key, m_state.options);
  ShowLooks();
}

void frmEffects::RestoreDefaults() {
  if (!m_state.ui.AskYesNo("Confirm Restore Defaults", "Are you sure?")) return;
  SetDefaultHyperlinkColors(1);
  ShowRecord();
}

// Any other number than these two asks for nothing.
void frmEffects::SetDefaultHyperlinkColors(int ask) {
  if (ask == 0) LoadOptions(m_state.store, OptionPart::kEffects, m_state.options);
  if (ask != 1) return;
  ResetOptions(OptionPart::kEffects, m_state.options);
  for (Swatch* swatch : {&m_record.lblHyperlink, &m_record.lblActive, &m_record.lblFollowed, &m_record.lblRColor}) {
    swatch->isDefault = true;
  }
}

void frmEffects::BuildEffects() {
  const LinkEffects effects = Effects(m_record);
  m_state.texts.RolloverStyle = effects.RolloverStyle;
  m_state.texts.BodyLinkTag = effects.BodyLinkTag;
}

void frmEffects::Close() {
  BuildEffects();
  TrySave(m_state, Procedure::kSaveHyperlinkColours, OptionPart::kEffects);
  hide();
}

// Setting a control writes its field: each gets its own value back.
void frmEffects::ShowRecord() {
  const EffectsOptions record = m_record;
  ShowText(*m_ui->cboFont, record.cboFont);
  ShowText(*m_ui->cboSize, record.cboSize);
  ShowText(*m_ui->cboStyle, record.cboStyle);
  m_ui->chkSmallCaps->setChecked(record.chkSmallCaps);
  m_ui->chkAllCaps->setChecked(record.chkAllCaps);
  m_ui->chkUnderline->setChecked(record.chkUnderline);
  m_ui->chkRollover->setChecked(record.chkRollover);
  ShowLooks();
}

void frmEffects::ShowLooks() {
  const SampleText& page = m_state.options.txtSample;
  const auto show = [&](const Swatch& swatch, SwatchLabel& label, QLabel& ratio) {
    label.ShowSwatch(swatch);
    ratio.setText(ContrastAdvice(swatch.colour, page.BackColor));
    QStringList heard{ToQt(swatch.colour).name()};
    if (swatch.isDefault) heard << label.text();
    label.setAccessibleName((heard << ratio.text()).join(QStringLiteral(", ")));
  };
  show(m_record.lblHyperlink, *m_ui->lblHyperlink, *m_ui->lblHyperlinkRatio);
  show(m_record.lblActive, *m_ui->lblActive, *m_ui->lblActiveRatio);
  show(m_record.lblFollowed, *m_ui->lblFollowed, *m_ui->lblFollowedRatio);
  show(m_record.lblRColor, *m_ui->lblRColor, *m_ui->lblRColorRatio);
  show({page.ForeColor, false}, *m_ui->lblTextColour, *m_ui->lblTextRatio);
  ShowSample();
}

void frmEffects::ShowSample() {
  constexpr double kSmallest = 6;
  constexpr double kLargest = 24;
  const SampleText& page = m_state.options.txtSample;
  QPalette colours = palette();
  colours.setColor(QPalette::Window, ToQt(page.BackColor));
  colours.setColor(QPalette::WindowText, ToQt(page.ForeColor));
  m_ui->fraSample->setPalette(colours);
  const QFont font = PageFont(page, kSmallest, kLargest);
  m_ui->lblSampleText->setFont(font);
  m_ui->lblSampleLink->SetOptions(m_record, font);
}

}  // namespace folionet
