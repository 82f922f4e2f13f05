#include "FilePlan.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <climits>

#include "MakeFolders.h"

namespace folionet {

int FilePlan::Make(int folder, const std::string& name, std::string_view /*bytes*/, const struct stat* /*like*/) {
  if (folder >= 0) return WhyNotMake(folder, name);
  return name.size() > NAME_MAX ? ENAMETOOLONG : 0;
}

int FilePlan::Replace(int folder, const std::string& name, std::string_view /*bytes*/, const struct stat& old) {
  return Remove(folder, name, old);
}

// The file is open for that already.
int FilePlan::Overwrite(const FileHandle& /*file*/, std::string_view /*bytes*/, const struct stat& /*old*/) {
  return 0;
}

// What unlinkat and renameat refuse.
int FilePlan::Remove(int folder, const std::string& name, const struct stat& old) {
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

int FilePlan::Rename(int folder, const std::string& name, const struct stat& old, const std::string& newName) {
  const int systemError = Remove(folder, name, old);
  return systemError != 0 ? systemError : WhyNotMake(folder, newName);
}

}  // namespace folionet
