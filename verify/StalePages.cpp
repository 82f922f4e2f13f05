#include "StalePages.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

#include "FileHandle.h"
#include "FileLock.h"
#include "GeneratorLine.h"
#include "Paths.h"
#include "RunTimeError.h"

namespace folionet {
namespace {

// The folder of a path below `top`, reached through no symbolic link; not open, with errno set, when it is not there.
FileHandle OpenFolderOf(const FileHandle& top, const std::string& path) {
  FileHandle folder = FileHandle::OpenAt(top.Get(), ".", O_RDONLY | O_DIRECTORY);
  for (std::size_t start = 0, slash = path.find('/'); slash != std::string::npos && folder.IsOpen();
       start = slash + 1, slash = path.find('/', start)) {
    const std::string name = path.substr(start, slash - start);
    folder = FileHandle::OpenAt(folder.Get(), name.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW);
  }
  return folder;
}

// 0 when the page is gone, the system's error, or -1 for a file that is not ours.
int Remove(const FileHandle& top, const std::string& path) {
  const FileHandle folder = OpenFolderOf(top, path);
  if (!folder.IsOpen()) return errno;
  const std::string name = path.substr(path.rfind('/') + 1);
  const FileHandle file = FileHandle::OpenAt(folder.Get(), name.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK);
  if (!file.IsOpen() && errno != ELOOP) return errno;
  if (!IsOurPage(file)) return -1;
  return unlinkat(folder.Get(), name.c_str(), 0) == 0 ? 0 : errno;
}

// Whether the open folder, and its index page, are as they were.
bool IsAsVerified(const FileHandle& top, const SiteReport& verified) {
  struct stat folder {};
  struct stat index {};
  return fstat(top.Get(), &folder) == 0 && fstatat(top.Get(), verified.indexName.c_str(), &index, 0) == 0 &&
         verified.folder == StampOf(folder) && verified.index == StampOf(index);
}

}  // namespace

RemovedPages RemovePages(const std::string& folder, const SiteReport& verified) {
  const std::string path = NativePath(folder);
  const FileHandle top = FileHandle::Open(path.c_str(), O_RDONLY | O_DIRECTORY);
  if (!top.IsOpen()) throw RunTimeError::FromErrno(errno, path);
  if (!LockFile(top.Get(), std::chrono::milliseconds(0))) {
    throw RunTimeError(kPermissionDenied, path,
                       LockHolder(top.Get()) + " is writing into this folder. Wait for that to end.");
  }
  if (!IsAsVerified(top, verified)) {
    throw RunTimeError(kPermissionDenied, path, "This site was changed while it was verified. Verify it again.");
  }
  RemovedPages result;
  for (const std::string& page : verified.stale) {
    const int error = Remove(top, page);
    if (error == 0) {
      result.removed.push_back(page);
    } else if (error < 0) {
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
