#include "FolderReader.h"

#include <cerrno>
#include <string_view>

namespace folionet {

const dirent* FolderReader::Next() {
  const dirent* entry = nullptr;
  do {
    errno = 0;
    entry = readdir(m_folder.get());
  } while (entry != nullptr && (std::string_view(entry->d_name) == "." || std::string_view(entry->d_name) == ".."));
  return entry;
}

}  // namespace folionet
