#include "MakeFolders.h"

#include <fcntl.h>
#include <linux/magic.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <climits>

#include "FileHandle.h"
#include "Paths.h"
#include "RunTimeError.h"

namespace folionet {
namespace {

// What a folder answers that is a view of the system itself, in which no person makes a file, whatever its mode says; 0
// for one of a disk.
int WhyMakesNone(const FileHandle& folder) {
  struct statfs status {};
  if (fstatfs(folder.Get(), &status) != 0) return 0;
  if (status.f_type == PROC_SUPER_MAGIC) return ENOENT;
  return status.f_type == SYSFS_MAGIC || status.f_type == DEVPTS_SUPER_MAGIC ? EACCES : 0;
}

int WhyNotMakeFolders(const std::string& path, Doing doing) {
  bool isAboveMissing = false;
  for (std::size_t start = 0; start < path.size();) {
    const std::size_t end = std::min(path.find('/', start), path.size());
    const std::string folder = path.substr(0, end);
    const std::size_t length = end - start;
    start = end + 1;
    struct stat status {};
    // One look, as another program may make the folder meanwhile.
    const bool isThere = !isAboveMissing && stat(NativePath(folder).c_str(), &status) == 0;
    if (length == 0 || (isThere && S_ISDIR(status.st_mode))) continue;
    const bool isLast = path.find_first_not_of('/', end) == std::string::npos;
    if (!isLast && isThere) return ENOTDIR;
    if (doing == Doing::kChange) {
      const int systemError = mkdir(folder.c_str(), 0777) == 0 ? 0 : errno;
      if (systemError != 0 && !FolderExists(folder)) return systemError;
    } else if (isAboveMissing) {
      if (length > NAME_MAX) return ENAMETOOLONG;
    } else if (const int systemError = WhyNotMake(AT_FDCWD, folder); systemError != 0) {
      if (!FolderExists(folder)) return systemError;
    } else {
      isAboveMissing = true;
    }
  }
  return 0;
}

}  // namespace

int WhyNotMake(int folder, const std::string& name) {
  struct stat status {};
  if (fstatat(folder, name.c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0) return EEXIST;
  if (errno != ENOENT) return errno;
  const std::size_t slash = name.rfind('/') + 1;
  const std::string parent = slash == 0 ? "." : name.substr(0, slash);
  if (faccessat(folder, parent.c_str(), W_OK | X_OK, AT_EACCESS) != 0) return errno;
  const FileHandle above = FileHandle::OpenAt(folder, parent.c_str(), O_PATH | O_DIRECTORY);
  // The current folder, or one that was opened, may have been deleted.
  if (above.IsOpen() && fstat(above.Get(), &status) == 0 && status.st_nlink == 0) return ENOENT;
  return WhyMakesNone(above);
}

// What unlinkat and renameat refuse.
int WhyNotRemove(int folder, const std::string& name, const struct stat& old) {
  struct stat parent {};
  if (fstat(folder, &parent) != 0 || faccessat(folder, ".", W_OK | X_OK, AT_EACCESS) != 0) return errno;
  const uid_t user = geteuid();
  if ((parent.st_mode & S_ISVTX) != 0 && user != 0 && user != parent.st_uid && user != old.st_uid) return EPERM;
  constexpr auto kFixed = STATX_ATTR_IMMUTABLE | STATX_ATTR_APPEND;
  struct statx file {};
  struct statx above {};
  const bool known = statx(folder, name.c_str(), AT_SYMLINK_NOFOLLOW, 0, &file) == 0 &&
                     statx(folder, "", AT_EMPTY_PATH, 0, &above) == 0;
  return known && ((file.stx_attributes | above.stx_attributes) & kFixed) != 0 ? EPERM : 0;
}

void MakeFolders(const std::string& path, Doing doing) {
  if (const int systemError = WhyNotMakeFolders(path, doing)) throw RunTimeError::FromErrno(systemError, path);
}

void MakeFolderOf(const std::string& file) { WhyNotMakeFolders(file.substr(0, file.rfind('/') + 1), Doing::kChange); }

}  // namespace folionet
