#pragma once

#include <string>
#include <string_view>

#include "PageOptions.h"
#include "StoredSettings.h"
#include "UserInterface.h"
#include "modGlob.h"

namespace folionet {

// The language and charset codes that the pages declare, such as "en-us" and "windows-1252".
struct PageEncoding {
  std::string PageLanguage;
  std::string PageCharset;
};

// The code that an entry begins with: "en-us English USA" gives "en-us"; blanks before it do not count. Throws
// RunTimeError (kInvalidProcedureCall), naming the setting `what`, when no code and blank is there.
std::string EncodingCode(std::string_view entry, std::string_view what);

// The code of the stored language, which pages of a text that names none declare; empty when it cannot be read.
std::string StoredLanguage(const StoredSettings& store);

// Reads both entries, with the codes that an imported translation brings in the place of those that the person has not
// set, and shows the codes in panels 3 and 2 of the status bar. Throws RunTimeError for the first that cannot be read;
// what comes before it is shown.
PageEncoding ReadPageEncoding(const StoredSettings& store, PageOptions& options, const ImportedText& imported,
                              UserInterface& ui);

// The code that a translation which was imported brings for "Charset" or "Lang"; empty when it brings none, or the
// person has set one.
std::string CodeOfText(const ImportedText& text, const StoredSettings& store, std::string_view key);

}  // namespace folionet
