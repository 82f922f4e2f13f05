#include "LibraryFiles.h"

#include "Paths.h"

namespace folionet {

std::string LibraryFiles::At(const char* below, const std::string& name) const {
  return LocateIgnoringCase(WithSeparator(LocateIgnoringCase(m_folder, below)), name);
}

std::string LibraryFiles::InTheWay(const std::string& stem) const {
  for (const std::string& path : {VerseFile(stem), IndexFile(stem)}) {
    if (IsThere(path)) return path;
  }
  return {};
}

}  // namespace folionet
