#include "Colours.h"

#include "Text.h"

namespace folionet {

void SeperateRGB(Colour colour, std::string& red, std::string& green, std::string& blue) {
  const auto bits = static_cast<std::uint32_t>(colour);
  red = TwoHexDigits(static_cast<unsigned char>(bits));
  green = TwoHexDigits(static_cast<unsigned char>(bits >> 8U));
  blue = TwoHexDigits(static_cast<unsigned char>(bits >> 16U));
}

std::string HtmlColour(Colour colour) {
  std::string red;
  std::string green;
  std::string blue;
  SeperateRGB(colour, red, green, blue);
  return red + green + blue;
}

}  // namespace folionet
