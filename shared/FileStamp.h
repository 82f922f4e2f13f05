#pragma once

#include <sys/stat.h>

#include <ctime>
#include <optional>
#include <string>

namespace folionet {

// Tells whether a file is the one that was read: it is replaced or written anew in another state.
struct FileStamp {
  dev_t device = 0;
  ino_t number = 0;
  off_t size = 0;
  timespec written{};
  timespec changed{};

  friend bool operator==(const FileStamp& left, const FileStamp& right) {
    const auto isSame = [](const timespec& one, const timespec& other) {
      return one.tv_sec == other.tv_sec && one.tv_nsec == other.tv_nsec;
    };
    return left.device == right.device && left.number == right.number && left.size == right.size &&
           isSame(left.written, right.written) && isSame(left.changed, right.changed);
  }
};

inline FileStamp StampOf(const struct stat& status) {
  return {status.st_dev, status.st_ino, status.st_size, status.st_mtim, status.st_ctim};
}

// Nothing where the system tells nothing of the file, as of one that is not there.
inline std::optional<FileStamp> StampOf(const std::string& path) {
  struct stat status {};
  if (stat(path.c_str(), &status) != 0) return std::nullopt;
  return StampOf(status);
}

}  // namespace folionet
