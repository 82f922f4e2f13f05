#include "FolderReader.h"

#include <cerrno>
#include <string_view>

#include "FileHandle.h"

namespace folionet {

FolderReader::FolderReader(const char* path, int at) {
  FileHandle folder = FileHandle::OpenAt(at, path, O_RDONLY | O_DIRECTORY);
  if (!folder.IsOpen()) return;
  m_folder.reset(fdopendir(folder.Get()));
  if (m_folder) folder.Release();
}

const dirent* FolderReader::Next() {
  const dirent* entry = nullptr;
  do {
    errno = 0;
    entry = readdir(m_folder.get());
  } while (entry != nullptr && (std::string_view(entry->d_name) == "." || std::string_view(entry->d_name) == ".."));
  return entry;
}

}  // namespace folionet
