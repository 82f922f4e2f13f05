#include "Colours.h"

namespace folionet {
namespace {

std::string TwoHexDigits(std::uint32_t part) {
  constexpr char kDigits[] = "0123456789ABCDEF";
  return {kDigits[part / 16 % 16], kDigits[part % 16]};
}

}  // namespace

void SeperateRGB(Colour colour, std::string& red, std::string& green, std::string& blue) {
  const auto bits = static_cast<std::uint32_t>(colour);
  red = TwoHexDigits(bits & 255U);
  green = TwoHexDigits((bits & 65280U) / 256U);
  blue = TwoHexDigits((bits & 16711680U) / 65536U);
}

std::string HtmlColour(Colour colour) {
  std::string red;
  std::string green;
  std::string blue;
  SeperateRGB(colour, red, green, blue);
  return red + green + blue;
}

}  // namespace folionet
