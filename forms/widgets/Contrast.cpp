#include "Contrast.h"

#include <algorithm>
#include <cmath>

namespace folionet {
namespace {

double Linear(Colour part) {
  const double value = static_cast<double>(part & 0xFF) / 255;
  return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

// The relative luminance, 0 for black to 1 for white, as the Web Content Accessibility Guidelines define it.
double Luminance(Colour colour) {
  return 0.2126 * Linear(colour) + 0.7152 * Linear(colour >> 8) + 0.0722 * Linear(colour >> 16);
}

}  // namespace

double ContrastRatio(Colour one, Colour other) {
  const auto [darker, lighter] = std::minmax({Luminance(one), Luminance(other)});
  return (lighter + 0.05) / (darker + 0.05);
}

}  // namespace folionet
