#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>

namespace folionet {

// The values of an INI text by "section/key"; those before the first section have the key only.
using IniValues = std::map<std::string, std::string, std::less<>>;

// Reads an INI text whose values stand as they are, commas and backslashes included:
//
//   [Keys]
//   chkCSS=1
//   Keywords=%bible%, Online Bible
//
// A value in double quotes is what they enclose, with \", \\, \r, \n and \t inside. Blanks around keys and values do
// not count; lines that begin with ";" or "#", and those without "=", are passed over; of two values for one key the
// last holds. A line that is not UTF-8 is windows-1252; lines may all end in CR alone. Any text can be read.
IniValues ParseIni(std::string_view text);

// The text `present` with all that was changed from one INI text to another.
std::string ChangedAs(std::string_view present, std::string_view from, std::string_view to);

// The text that ParseIni reads back as these values, section by section. A value stands as it is or, where it begins or
// ends with a blank, or holds a quote, a line break or NUL, in double quotes.
std::string BuildIni(const IniValues& values);

}  // namespace folionet
