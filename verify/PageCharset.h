#pragma once

#include <string>
#include <string_view>

#include "CodePage.h"

namespace folionet {

// Whether a page begins with the byte-order mark of UTF-16.
bool IsUtf16(std::string_view page);

// The charset that a META line of a page declares, where browsers look for it: in the head, or in the first 1,024
// bytes; windows-1252 when there is none. A page that begins with the byte-order mark of UTF-8 is UTF-8, whatever it
// declares, and so is one that declares UTF-16 in single bytes.
std::string FindPageCharset(std::string_view page);

// The text of a page in UTF-8. A byte that is none of its charset becomes a character that stands for it until one of
// the two below is asked for.
std::string DecodePage(std::string_view page, const CodePage& codePage);

// Of a text of a page: U+FFFD for each such byte, as browsers have it.
std::string AsBrowsersRead(std::string_view text);

// Of a text of a page: such bytes themselves.
std::string AsItIsWritten(std::string_view text);

}  // namespace folionet
