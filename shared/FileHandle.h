#pragma once

#include <unistd.h>

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

  bool IsOpen() const { return m_descriptor >= 0; }
  int Get() const { return m_descriptor; }

  // Closes now; false, with errno set, when the system reports a failure.
  bool Close() {
    if (m_descriptor < 0) return true;
    return close(std::exchange(m_descriptor, -1)) == 0;
  }

 private:
  int m_descriptor = -1;
};

}  // namespace folionet
