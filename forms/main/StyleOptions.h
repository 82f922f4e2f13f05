#pragma once

#include <QObject>
#include <string>

#include "AppState.h"

namespace folionet {

namespace Ui {
class frmMain;
}

// The looks of the pages on the main form: the sample text with its colour and font pickers, the alignment of links,
// and which of them can be used beside a style sheet or a background image.
class StyleOptions : public QObject {
  Q_OBJECT

 public:
  StyleOptions(AppState& state, Ui::frmMain& controls, QObject* parent);

  // The alignment from its two settings.
  void LoadAlignment();

  // Colours, font and size from the settings, into the sample; bold and italic stay. Throws RunTimeError.
  void GetDefaults();

  // Rebuilds the sample text.
  void ShowSample();

  // With a style sheet, what it decides cannot be changed here.
  void EnableDisableOptions();

 private:
  void PickColour(const char* key, Colour SampleText::*colour);
  void PickFont();
  void SetAlignment(const std::string& text);

  AppState& m_state;
  Ui::frmMain& m_controls;
};

}  // namespace folionet
