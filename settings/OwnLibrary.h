#pragma once

#include <string>

namespace folionet {

// Where imported texts go when nothing else is said, and where they are looked for when no library of Versalia is
// known: $XDG_DATA_HOME/Folionet/library/, or under ~/.local/share; empty
// where neither is a whole path.
std::string OwnLibraryFolder();

}  // namespace folionet
