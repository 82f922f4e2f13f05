#pragma once

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

namespace folionet {

// Owns an open file descriptor.
class FileHandle {
 public:
  FileHandle() = default;
  explicit FileHandle(int descriptor) : m_descriptor(descriptor) {}
  FileHandle(FileHandle&& other) noexcept : m_descriptor(std::exchange(other.m_descriptor, -1)) {}
  FileHandle& operator=(FileHandle&& other) noexcept {
    std::swap(m_descriptor, other.m_descriptor);
    return *this;
  }
  ~FileHandle() { static_cast<void>(Close()); }

  // Opens a file as open(2) does, however often a signal comes between. Not open, with errno set, when that fails.
  static FileHandle Open(const char* path, int flags, mode_t mode = 0) { return OpenAt(AT_FDCWD, path, flags, mode); }

  // As Open, of a file in an open folder.
  static FileHandle OpenAt(int folder, const char* path, int flags, mode_t mode = 0) {
    int descriptor = -1;
    do {
      descriptor = openat(folder, path, flags | O_CLOEXEC, mode);
    } while (descriptor < 0 && errno == EINTR);
    return FileHandle(descriptor);
  }

  bool IsOpen() const { return m_descriptor >= 0; }
  int Get() const { return m_descriptor; }

  // Gives the descriptor away; this one is then not open.
  int Release() { return std::exchange(m_descriptor, -1); }

  // Closes now; false, with errno set, when the system reports a failure. A signal that comes between is none: the file
  // is closed all the same.
  bool Close() {
    if (m_descriptor < 0) return true;
    return close(std::exchange(m_descriptor, -1)) == 0 || errno == EINTR;
  }

 private:
  int m_descriptor = -1;
};

}  // namespace folionet
