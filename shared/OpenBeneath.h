#pragma once

#include <string>

#include "FileHandle.h"

namespace folionet {

// Opens a path below an open folder, through links too as long as none of them leads out of it; one that does is EXDEV.
// Nothing that another program moves or swaps meanwhile can lead out. Not open, with errno set, when that fails.
FileHandle OpenBeneath(int folder, const std::string& path, int flags);

}  // namespace folionet
