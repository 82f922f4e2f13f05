#pragma once

#include <filesystem>
#include <string>

namespace folionet::tools {

// The file of Versalia's settings: Versalia.ini in $XDG_CONFIG_HOME, or in ~/.config when that names no absolute
// folder.
std::filesystem::path VersaliaSettingsFile();

// Whether a folder can be noted: not one with a quote or a backslash in its path, which programs read back in more than
// one way.
bool CanRegister(const std::string& folder);

// Notes in `settings` where the library is: VersaliaPath and ModulePath in the section Module_Path. `folder` is
// absolute and ends in "/". Other settings stay. Throws LibraryError, naming the file, when it cannot be read or
// written.
void RegisterLibrary(const std::filesystem::path& settings, const std::string& folder);

}  // namespace folionet::tools
