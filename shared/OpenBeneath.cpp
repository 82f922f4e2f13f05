#include "OpenBeneath.h"

#include <fcntl.h>
#include <linux/openat2.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <deque>
#include <utility>
#include <vector>

namespace folionet {
namespace {

constexpr int kMostLinks = 40;

FileHandle Failed(int systemError) {
  errno = systemError;
  return {};
}

bool IsLink(int descriptor) {
  struct stat status {};
  return fstat(descriptor, &status) == 0 && S_ISLNK(status.st_mode);
}

// Puts the parts of a path before those that are still to walk.
void PutBefore(std::deque<std::string>& parts, std::string_view path) {
  std::deque<std::string> first;
  for (std::size_t start = 0; start < path.size();) {
    const std::size_t end = std::min(path.find('/', start), path.size());
    if (end > start) first.emplace_back(path.substr(start, end - start));
    start = end + 1;
  }
  parts.insert(parts.begin(), first.begin(), first.end());
}

// As OpenBeneath, step by step, where the kernel has no call for it.
FileHandle WalkBeneath(int folder, const std::string& path, int flags) {
  std::deque<std::string> parts;
  PutBefore(parts, path);
  std::vector<FileHandle> way;  // the folders that were entered
  int links = 0;
  while (!parts.empty()) {
    const std::string part = std::exchange(parts.front(), {});
    parts.pop_front();
    if (part == ".." && way.empty()) return Failed(EXDEV);
    if (part == "..") way.pop_back();
    if (part == "." || part == "..") continue;
    const int at = way.empty() ? folder : way.back().Get();
    FileHandle found = FileHandle::OpenAt(at, part.c_str(), O_PATH | O_NOFOLLOW);
    if (!found.IsOpen()) return found;
    if (IsLink(found.Get())) {
      std::array<char, PATH_MAX> target{};
      const ssize_t length = readlinkat(found.Get(), "", target.data(), target.size());
      if (length <= 0) return Failed(ENOENT);
      if (++links > kMostLinks) return Failed(ELOOP);
      if (target.front() == '/') return Failed(EXDEV);
      PutBefore(parts, {target.data(), static_cast<std::size_t>(length)});
    } else if (parts.empty()) {
      return FileHandle::OpenAt(at, part.c_str(), flags | O_NOFOLLOW);
    } else {
      way.push_back(std::move(found));
    }
  }
  return FileHandle::OpenAt(way.empty() ? folder : way.back().Get(), ".", flags);
}

}  // namespace

FileHandle OpenBeneath(int folder, const std::string& path, int flags) {
  constexpr int kTries = 100;  // the kernel gives up where something is moved meanwhile
  open_how how{};
  how.flags = static_cast<unsigned>(flags | O_CLOEXEC);
  how.resolve = RESOLVE_BENEATH | RESOLVE_NO_MAGICLINKS;
  for (int i = 0; i < kTries; ++i) {
    const long descriptor = syscall(SYS_openat2, folder, path.c_str(), &how, sizeof how);
    if (descriptor >= 0) return FileHandle(static_cast<int>(descriptor));
    if (errno == ENOSYS || errno == EPERM) return WalkBeneath(folder, path, flags);
    if (errno != EAGAIN && errno != EINTR) break;
  }
  return {};
}

}  // namespace folionet
