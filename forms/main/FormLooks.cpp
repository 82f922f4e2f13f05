#include "FormLooks.h"

#include <QPushButton>

#include "Contrast.h"
#include "LabelColumn.h"
#include "QtText.h"
#include "ShownBoxes.h"
#include "ui_frmMain.h"

namespace folionet {
namespace {

// `ground`, made darker until light text can be read on it.
QColor ReadableGround(QColor ground, const QColor& text) {
  // Styles make a button's upper half much lighter than its colour, under the mouse more so.
  constexpr double kEnough = 11;
  constexpr int kStep = 105;  // percent
  while (text.lightness() > ground.lightness() && ground.lightness() > 0 &&
         ContrastRatio(FromQt(ground), FromQt(text)) < kEnough) {
    ground = ground.darker(kStep);
  }
  return ground;
}

// The desktop's accent.
void DressCompile(const QPalette& desktop, QPushButton& compile) {
  const QColor text = desktop.color(QPalette::Active, QPalette::HighlightedText);
  const QColor accent = ReadableGround(desktop.color(QPalette::Active, QPalette::Highlight), text);
  QPalette button = desktop;
  for (const auto group : {QPalette::Active, QPalette::Inactive}) {
    button.setColor(group, QPalette::Button, accent);
    button.setColor(group, QPalette::ButtonText, text);
  }
  compile.setPalette(button);
}

// On a large screen the content stays one block in the middle, in which nothing is far from what belongs to it.
void HoldTogether(QWidget& content) {
  constexpr int kColumns = 200;
  constexpr int kLines = 48;
  const QFontMetrics metrics = content.fontMetrics();
  content.setMaximumSize(kColumns * metrics.averageCharWidth(), kLines * metrics.height());
}

}  // namespace

void DressForm(QWidget& form, const Ui::frmMain& controls) {
  DressCompile(form.palette(), *controls.cmdCompile);
  DressBoxes(form);
  AlignLabels({controls.lblBibleName, controls.lblBibleSel, controls.lblFilename, controls.lblStartBook,
               controls.lblEndBook, controls.lblLang, controls.lblDrive, controls.lblDir1, controls.lblOutputPath,
               controls.lblhttpRoot});
  HoldTogether(*controls.page);
}

}  // namespace folionet
