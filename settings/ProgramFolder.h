#pragma once

#include <string>

#include "MakeFolders.h"

namespace folionet {

// The folder of the running executable, ending in the folder separator.
std::string ExecutableFolder();

// Where imported texts go when nothing else is said, and where they are looked for when no library of Versalia is
// known: $XDG_DATA_HOME/Folionet/library/, or under ~/.local/share; empty where neither is a whole path.
std::string OwnLibraryFolder();

// Why a folder that a person gave cannot be the program folder: it is not there. Empty when it is, or none was given.
std::string MissingFolder(const std::string& chosen);

// The folder of the program's own files (default.css, lang.txt, enc.txt, the custom header and footer), ending in the
// folder separator: `chosen` when it is not empty; else the executable's folder when it holds default.css and can be
// written to; else $XDG_DATA_HOME/Folionet, which is made when missing and given any of the three delivered files for
// which it has no name at all; else, where the environment names no such folder, the one that the delivered files are
// in. Throws RunTimeError when a folder of the person cannot be made or filled, a plan also when it could not: that
// makes and fills none, and gives ProgramFolderToRead.
std::string FindProgramFolder(const std::string& chosen, Doing doing = Doing::kChange);

// The style sheet that is in that folder, or that FindProgramFolder would put there.
std::string StyleSheetToRead(const std::string& chosen);

// Gives a folder those of the delivered files for which it has no name at all: one of the person's own that cannot be
// opened stays, and whoever reads it tells. Both folders end in the separator. Throws RunTimeError.
void DeliverFiles(const std::string& from, const std::string& folder, Doing doing = Doing::kChange);

// The same folder, with nothing made or filled: where the person's own is not there yet, the one that the delivered
// files are in.
std::string ProgramFolderToRead(const std::string& chosen);

}  // namespace folionet
