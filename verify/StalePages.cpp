#include "StalePages.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "FileHandle.h"
#include "FileLock.h"
#include "GeneratorLine.h"
#include "MakeFolders.h"
#include "RunTimeError.h"

namespace folionet {
namespace {

// The folder of a path below `top`, reached through no symbolic link; not open, with errno set, when it is not there.
FileHandle OpenFolderOf(int top, const std::string& path) {
  FileHandle folder = FileHandle::OpenAt(top, "./", O_RDONLY | O_DIRECTORY);
  for (std::size_t start = 0, slash = path.find('/'); slash != std::string::npos && folder.IsOpen();
       start = slash + 1, slash = path.find('/', start)) {
    const std::string name = path.substr(start, slash - start);
    folder = FileHandle::OpenAt(folder.Get(), name.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW);
  }
  return folder;
}

// What comes of a page: 0 when it is gone, else the system's error or one of these.
constexpr int kNotOurs = -1;
constexpr int kStopped = -2;

int Remove(int top, const std::string& path, const std::function<bool(const std::string& page)>& announce) {
  const FileHandle folder = OpenFolderOf(top, path);
  if (!folder.IsOpen()) return errno;
  const std::string name = path.substr(path.rfind('/') + 1);
  const FileHandle file = FileHandle::OpenAt(folder.Get(), name.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK);
  if (!file.IsOpen() && errno != ELOOP) return errno;
  struct stat status {};
  if (!IsOurPage(file) || fstat(file.Get(), &status) != 0) return kNotOurs;
  if (const int systemError = WhyNotRemove(folder.Get(), name, status)) return systemError;
  if (announce && !announce(path)) return kStopped;
  return unlinkat(folder.Get(), name.c_str(), 0) == 0 ? 0 : errno;
}

}  // namespace

RemovedPages RemovePages(const SiteReport& verified, const std::function<bool(const std::string& page)>& announce) {
  const SiteHandle& site = *verified.site;
  const FileHandle top = FileHandle::OpenAt(site.Get(), "./", O_RDONLY | O_DIRECTORY);
  if (!top.IsOpen()) throw RunTimeError::FromErrno(errno, site.Path());
  if (!LockFile(top.Get())) {
    throw RunTimeError(kPermissionDenied, site.Path(),
                       LockHolder(top.Get()) + " is writing into this folder. Wait for that to end.");
  }
  if (!site.IsAsItWasRead()) {
    throw RunTimeError(kPermissionDenied, site.Path(), "This site was changed while it was verified. Verify it again.");
  }
  RemovedPages result;
  for (const std::string& page : verified.stale) {
    const int error = Remove(top.Get(), page, announce);
    if (error == kStopped) {
      result.left = verified.stale.size() - result.removed.size() - result.kept.size();
      break;
    }
    if (error == 0) {
      result.removed.push_back(page);
    } else if (error == kNotOurs) {
      result.kept.push_back({.kind = "not-ours",
                             .file = page,
                             .what = {Words("QObject", "is no page of Folionet, and was not removed.")}});
    } else {
      result.kept.push_back({.kind = "not-removed",
                             .file = page,
                             .what = {Words("QObject", "cannot be removed: %1."),
                                      {std::string(StandardMessage(RunTimeError::FromErrno(error, page).Number()))}}});
    }
  }
  return result;
}

}  // namespace folionet
