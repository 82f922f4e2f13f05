#pragma once

#include <string>

#include "CodePage.h"
#include "OwnText.h"
#include "PageOptions.h"
#include "SettingsStore.h"

// The charset that a person's own texts are kept in, and how they come over to another one with the settings.

namespace folionet {

// The code page that the stored charset names, be it without a description. The custom header and footer are kept in
// it. Throws RunTimeError when the settings cannot be read.
CodePage StoredCodePage(const StoredSettings& store);

// The texts of a person's own as the charset has them that is stored now, by whatever program: that of the person's own
// settings, as all sites share these texts. Throws RunTimeError when the settings cannot be read and never were.
OwnFolder StoredOwnFolder(const StoredSettings& store, const std::string& programFolder);

// The same to save to: a change that was not finished is completed first. Throws RunTimeError when it cannot be.
OwnFolder OwnFolderToSave(const StoredSettings& store, const std::string& programFolder);

// The same for a run that may have another charset than the stored one, which a person's texts stay in. Where none was
// ever stored, texts that can be in the run's charset were made for it.
OwnFolder OwnFolderOfRun(const StoredSettings& store, const std::string& programFolder);

// Stores the entries that were chosen, those that are not empty, and, when that changes the code page, brings the
// custom header and footer and the lists of encodings over to it, unless it is that of a site: one change, of which all
// is made or nothing. Throws RunTimeError.
void SaveEncoding(SettingsStore& store, const std::string& programFolder, const EncodingOptions& chosen);

// Removes all that is stored, as SettingsStore::DeleteSetting does; what is in another code page than the default one
// comes over to that in the same change. Of a site whose file is in use, SettingsStore::RestoreSite. Throws
// RunTimeError, and everything is as it was.
void RestoreSettings(SettingsStore& store, const std::string& programFolder);

}  // namespace folionet
