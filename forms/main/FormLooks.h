#pragma once

class QWidget;

namespace folionet {

namespace Ui {
class frmMain;
}

// Gives the main form what its .ui file cannot hold, from the palette and the font of the desktop: the accent of the
// one button that everything leads to, the ground of boxes that only show, and one column of labels through all groups.
// To be called again when palette or font change.
void DressForm(QWidget& form, const Ui::frmMain& controls);

}  // namespace folionet
