#pragma once

#include <string>
#include <string_view>

namespace folionet {

// Whether bytes are a text in UTF-16, which editors call "Unicode": by the mark at its start or, where there is none,
// by first characters that are ASCII.
bool LooksUtf16(std::string_view bytes);

// Such a text as UTF-8, without the mark; any other bytes as they are. Throws RunTimeError (kTypeMismatch), which names
// `path`, where a character is cut off: what is lost then must not be written over.
std::string FromUtf16(std::string_view bytes, const std::string& path);

}  // namespace folionet
