#pragma once

#include <string>
#include <string_view>

#include "CodePage.h"
#include "OwnText.h"
#include "PageOptions.h"
#include "SettingsStore.h"
#include "UserInterface.h"
#include "modGlob.h"

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

// The texts of a person's own as the stored charset has them.
OwnFolder StoredOwnFolder(const StoredSettings& store, const std::string& programFolder);

// The same for a run that may have another charset than the stored one, which a person's texts stay in.
OwnFolder OwnFolderOfRun(const StoredSettings& store, const std::string& programFolder);

// Stores the entries of `options.frmEncoding` and, when that changes the code page, brings the custom header and footer
// and the lists of encodings over to it: one change, of which all is made or nothing. Throws RunTimeError.
void SaveEncoding(SettingsStore& store, const std::string& programFolder, PageOptions& options);

// Reads both entries and shows their codes in panels 3 and 2 of the status bar. Throws RunTimeError for the first that
// cannot be read; what comes before it is set and shown.
void LoadPageEncoding(const StoredSettings& store, PageOptions& options, PageEncoding& encoding, UserInterface& ui);

// Takes and shows the codes of an imported translation in the place of those that the person has not set.
void TakeEncodingOf(const ImportedText& text, const StoredSettings& store, PageEncoding& encoding, UserInterface& ui);

}  // namespace folionet
