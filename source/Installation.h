#pragma once

#include <string>
#include <string_view>

#include "CodePage.h"
#include "FolderLister.h"
#include "modGlob.h"

namespace folionet {

class StoredSettings;

// Folders that were given for one run; each is empty when it was not, and may lack its trailing separator.
struct GivenFolders {
  std::string versaliaPath;
  std::string modulePath;
};

// Sets InstallPath and ModulesPath, each to the folder given or else to what Versalia's own settings hold (application
// "Versalia", section "Module_Path"), empty when unknown, and SysdefsPath. Where neither tells, our own library of
// imported texts is it, when there is one. A module folder that is still unknown is the one under the installation's,
// and so is that of an installation that was given without one, whether it is there or not: the stored one is another
// library's, unless the stored installation is the one given.
void LocateInstallation(const StoredSettings& store, const GivenFolders& given, ModGlob& glob);

// Sets the folders from texts, used as they are; `sysdefs` is the name of the folder of definitions under InstallPath.
void SetInstallation(ModGlob& glob, std::string installPath, std::string modulesPath, std::string_view sysdefs);

// Where files of the library are. A file that is there in another letter case only is found; for one that is missing
// the exact path is given. `stem` is in the bytes of the catalogue, which may be in another code page than the pages:
// a file that their code page does not find is looked for by the others.
std::string SysdefsFile(const ModGlob& glob, std::string_view fileName);
std::string VerseFile(const ModGlob& glob, const CodePage& codePage, std::string_view stem);
std::string VerseFile(const ModGlob& glob, const CodePage& codePage, std::string_view stem, FolderLister& folders);
std::string IndexFile(const ModGlob& glob, const CodePage& codePage, std::string_view stem);

}  // namespace folionet
