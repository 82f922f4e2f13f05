#include "FilePlan.h"

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

int FilePlan::Remove(int folder, const std::string& name, const struct stat& old) {
  return WhyNotRemove(folder, name, old);
}

int FilePlan::Rename(int folder, const std::string& name, const struct stat& old, const std::string& newName) {
  const int systemError = Remove(folder, name, old);
  return systemError != 0 ? systemError : WhyNotMake(folder, newName);
}

}  // namespace folionet
