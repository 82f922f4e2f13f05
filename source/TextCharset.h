#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "CodePage.h"

namespace folionet {

// What the characters of a text beyond ASCII are.
enum class TextKind { kAscii, kUtf8, kOther };

// A text's kind, with a part of it that shows it.
struct TextSample {
  TextKind kind = TextKind::kAscii;
  std::string bytes;  // empty for kAscii
};

TextSample SampleOf(std::string_view text);

// Of a file, read no further than it takes. kAscii for one that cannot be read: its reader tells why.
TextSample SampleOfFile(const std::string& path);

// The entry of the list of charsets for UTF-8.
inline constexpr char kUtf8Entry[] = "utf-8 (Unicode - UTF-8)";

// How a text does not fit pages of a code page.
struct CharsetMismatch {
  TextKind kind;  // of the text: kUtf8 where the pages are not UTF-8, kOther where it is not in their charset
  std::string charsetEntry;  // what the setting "Charset" should be; empty where that cannot be told
};

// Nothing for a text that may well be in the code page. `pageLanguage`, such as "ru", tells single-byte charsets apart.
std::optional<CharsetMismatch> FindMismatch(const TextSample& sample, const CodePage& codePage,
                                            std::string_view pageLanguage);

// The entry of the charset that a text may be in: UTF-8 where it is, or may well be; empty where it cannot be told.
std::string EntryOf(const TextSample& sample, std::string_view pageLanguage);

}  // namespace folionet
