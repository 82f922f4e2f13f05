#include "StyleOptions.h"

#include <new>
#include <utility>

#include "OptionLoading.h"
#include "RunTimeError.h"
#include "ui_frmMain.h"

namespace folionet {

StyleOptions::StyleOptions(AppState& state, Ui::frmMain& controls, QObject* parent)
    : QObject(parent), m_state(state), m_controls(controls) {
  connect(m_controls.cmdBackColour, &QPushButton::clicked, this,
          [this] { PickColour("BackColor", &SampleText::BackColor); });
  connect(m_controls.cmdForeColour, &QPushButton::clicked, this,
          [this] { PickColour("ForeColor", &SampleText::ForeColor); });
  connect(m_controls.cmdFont, &QPushButton::clicked, this, &StyleOptions::PickFont);
  for (const auto& [option, word] : {std::pair{m_controls.optAlignLeft, "Left"},
                                     {m_controls.OptAlignCenter, "Center"},
                                     {m_controls.OptAlignJust, "Justify"}}) {
    connect(option, &QRadioButton::clicked, this, [this, word = word] {
      SetAlignment(word);
      for (const char* key : {"alignmentLR", "Index_Alignment"}) MarkChosen(key, m_state.options);
    });
  }
}

void StyleOptions::LoadAlignment() {
  LoadOptions(m_state.store, OptionPart::kAlignment, m_state.options);
  const std::string selected = SelectedAlignment(m_state.options.main);
  m_controls.optAlignLeft->setChecked(selected == "Left");
  m_controls.OptAlignCenter->setChecked(selected == "Center");
  m_controls.OptAlignJust->setChecked(selected == "Justify");
  SetAlignment(m_state.options.main.alignment);  // whatever it holds
}

void StyleOptions::GetDefaults() {
  LoadOptions(m_state.store, OptionPart::kSample, m_state.options);
  ShowSample();
}

void StyleOptions::ShowSample() { m_controls.txtSample->ShowSample(m_state.options.txtSample); }

void StyleOptions::EnableDisableOptions() {
  const bool isFree = !m_state.options.chkCSS;
  for (QWidget* control : std::initializer_list<QWidget*>{
           m_controls.chkBack, m_controls.txtSample, m_controls.cmdForeColour, m_controls.cmdFont,
           m_controls.frmAlignment, m_controls.optAlignLeft, m_controls.OptAlignCenter, m_controls.OptAlignJust}) {
    control->setEnabled(isFree);
  }
  m_controls.cmdBackColour->setEnabled(isFree && !m_state.options.chkBack);
}

void StyleOptions::PickColour(const char* key, Colour SampleText::*colour) {
  Colour& shown = m_state.options.txtSample.*colour;
  const std::optional<Colour> picked = m_state.ui.ChooseColour(shown);
  if (!picked) return;
  shown = *picked;
  MarkChosen(key, m_state.options);
  ShowSample();
}

void StyleOptions::PickFont() {
  try {
    SampleText& sample = m_state.options.txtSample;
    const std::optional<SampleText> chosen = m_state.ui.ChooseFont(sample);
    if (!chosen) return;
    sample.FontName = chosen->FontName;
    sample.FontSize = chosen->FontSize;
    sample.FontBold = chosen->FontBold;
    sample.FontItalic = chosen->FontItalic;
    for (const char* key : {"Font", "FontSize", "FontBold", "FontItalic"}) MarkChosen(key, m_state.options);
    ShowSample();
  } catch (const RunTimeError& error) {
    m_state.ui.ShowErrorReport({Procedure::kSelectFont, error.Number(), ""});
  } catch (const std::bad_alloc&) {
    m_state.ui.ShowErrorReport({Procedure::kSelectFont, kOutOfMemory, ""});
  }
}

void StyleOptions::SetAlignment(const std::string& text) {
  m_state.options.main.alignment = text;
  if (IsKnownAlignment(text)) m_state.options.main.alignmentLR = text;
  m_state.texts.LinkAlignment = text;
}

}  // namespace folionet
