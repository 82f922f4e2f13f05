#include "MakeFolders.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <climits>

#include "Paths.h"

namespace folionet {
namespace {

bool IsThere(const std::string& path) {
  struct stat status {};
  return stat(path.c_str(), &status) == 0;
}

}  // namespace

int WhyNotMake(int folder, const std::string& name) {
  struct stat status {};
  if (fstatat(folder, name.c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0) return EEXIST;
  if (errno != ENOENT) return errno;
  const std::size_t slash = name.rfind('/') + 1;
  const std::string parent = slash == 0 ? "." : name.substr(0, slash);
  return faccessat(folder, parent.c_str(), W_OK | X_OK, AT_EACCESS) == 0 ? 0 : errno;
}

int MakeFolders(const std::string& path, Doing doing) {
  bool isAboveMissing = false;
  for (std::size_t start = 0; start < path.size();) {
    const std::size_t end = std::min(path.find('/', start), path.size());
    const std::string folder = path.substr(0, end);
    const std::size_t length = end - start;
    start = end + 1;
    if (length == 0 || (!isAboveMissing && FolderExists(folder))) continue;
    const bool isLast = path.find_first_not_of('/', end) == std::string::npos;
    if (!isLast && IsThere(folder)) return ENOTDIR;
    if (doing == Doing::kChange) {
      const int systemError = mkdir(folder.c_str(), 0777) == 0 ? 0 : errno;
      if (systemError != 0 && !FolderExists(folder)) return systemError;
    } else if (isAboveMissing) {
      if (length > NAME_MAX) return ENAMETOOLONG;
    } else if (const int systemError = WhyNotMake(AT_FDCWD, folder); systemError != 0) {
      return systemError;
    } else {
      isAboveMissing = true;
    }
  }
  return 0;
}

}  // namespace folionet
