#pragma once

class QWidget;

namespace folionet {

// Gives the boxes of a form that only show a text the form's own ground, so that they do not look as if they could be
// typed into, and hints a colour that can be read and their room. To be done anew when the form's palette or font
// changed.
void DressBoxes(QWidget& form);

}  // namespace folionet
