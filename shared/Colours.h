#pragma once

#include <cstdint>
#include <string>

namespace folionet {

// A colour as a whole number: red + 256 * green + 65536 * blue.
using Colour = std::int32_t;

// Splits a colour into the upper-case hexadecimal texts of its parts, two digits each.
void SeperateRGB(Colour colour, std::string& red, std::string& green, std::string& blue);

// The six digits RRGGBB of an HTML colour, without "#".
std::string HtmlColour(Colour colour);

}  // namespace folionet
