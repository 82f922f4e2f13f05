#pragma once

#include "Colours.h"

namespace folionet {

// The least contrast at which most people read text of ordinary size well.
inline constexpr double kReadableContrast = 4.5;

// The contrast ratio of two colours in either order: 1 for the same colour to 21 for black and white.
double ContrastRatio(Colour one, Colour other);

}  // namespace folionet
