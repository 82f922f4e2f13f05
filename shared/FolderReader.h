#pragma once

#include <dirent.h>
#include <fcntl.h>

#include <memory>

namespace folionet {

// Reads the entries of a folder one after the other, "." and ".." among none of them.
class FolderReader {
 public:
  // The folder of a path that starts from the open folder `at`. Not open, with errno set, when it cannot be read.
  explicit FolderReader(const char* path, int at = AT_FDCWD);

  bool IsOpen() const { return m_folder != nullptr; }
  int Descriptor() const { return dirfd(m_folder.get()); }

  // The next entry, which holds until the one after it is asked for; null behind the last one, with errno 0, and on a
  // failure, with errno set.
  const dirent* Next();

 private:
  struct Close {
    void operator()(DIR* folder) const { closedir(folder); }
  };

  std::unique_ptr<DIR, Close> m_folder;
};

}  // namespace folionet
