#pragma once

#include <string>
#include <string_view>

#include "CodePage.h"
#include "PageOptions.h"
#include "StoredSettings.h"
#include "UserInterface.h"

namespace folionet {

// The language and charset codes that the pages declare, such as "en-us" and "windows-1252".
struct PageEncoding {
  std::string PageLanguage;
  std::string PageCharset;
};

// The code that an entry begins with: "en-us English USA" gives "en-us". Throws RunTimeError (kInvalidProcedureCall)
// when the entry holds no blank.
std::string EncodingCode(std::string_view entry, std::string_view what);

// The code page that the stored charset names, windows-1252 when it cannot be read. The custom header and footer are
// kept in it.
CodePage StoredCodePage(const StoredSettings& store);

// Reads both entries and shows their codes in panels 3 and 2 of the status bar. Throws RunTimeError for the first that
// cannot be read; what comes before it is set and shown.
void LoadPageEncoding(const StoredSettings& store, PageOptions& options, PageEncoding& encoding, UserInterface& ui);

}  // namespace folionet
