#pragma once

#include <string>
#include <string_view>

namespace folionet {

// The encoding, in small letters, that browsers read a page in whose charset has this label, in any letter case: the
// table of the WHATWG Encoding Standard. "windows-1252" for "iso-8859-1", and "replacement" for what they refuse to
// read. Empty for a label that they do not know.
std::string_view BrowserEncoding(std::string_view label);

// What ICU calls such an encoding, where it calls something narrower by the browsers' name.
std::string IcuName(std::string_view encoding);

}  // namespace folionet
