#pragma once

#include <QString>

#include "PageOptions.h"

class QLabel;

namespace folionet {

// Shows a colour as a label's background, with the caption "Default" when the person has not picked it.
void ShowSwatch(const Swatch& swatch, QLabel& label);

// The contrast of a colour on a background, such as "8.59 : 1", with a word of advice when it is too low to read well.
QString ContrastAdvice(Colour colour, Colour background);

}  // namespace folionet
