#pragma once

#include "Colours.h"

namespace folionet {

// The least contrast at which most people read text of ordinary size well.
inline constexpr double kReadableContrast = 4.5;

// The relative luminance of a colour, 0 for black to 1 for white, as the Web Content Accessibility Guidelines define
// it.
double Luminance(Colour colour);

// The contrast ratio of two colours in either order: 1 for the same colour to 21 for black and white.
double ContrastRatio(Colour one, Colour other);

}  // namespace folionet
