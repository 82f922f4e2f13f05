#include "JournalFile.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <utility>

#include "FileLock.h"
#include "WholeFile.h"

namespace folionet {

JournalFile::~JournalFile() {
  Unmap();
  if (m_file.IsOpen()) CutToLength(m_file.Get(), m_size);
}

bool JournalFile::Open(const std::string& path, std::size_t whole) {
  FileHandle file = FileHandle::Open(path.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK, 0600);
  struct stat status {};
  if (!file.IsOpen() || fstat(file.Get(), &status) != 0) return false;
  if (!S_ISREG(status.st_mode)) {
    errno = EINVAL;
    return false;
  }
  if (!LockFile(file.Get(), std::chrono::milliseconds(0))) {
    errno = EBUSY;
    return false;
  }
  m_size = std::min(whole, static_cast<std::size_t>(status.st_size));
  if (!CutToLength(file.Get(), m_size)) return false;
  m_file = std::move(file);
  return true;
}

bool JournalFile::Add(std::string_view text) {
  if (m_size + text.size() > m_room && !MakeRoom(m_size + text.size())) return false;
  std::memcpy(m_text + m_size, text.data(), text.size());
  m_size += text.size();
  return true;
}

// The room is reserved on the disk before it is written to, since memory that finds no place there ends the program.
bool JournalFile::MakeRoom(std::size_t size) {
  constexpr std::size_t kStep = std::size_t{1} << 16;
  Unmap();
  const std::size_t room = (size + kStep - 1) / kStep * kStep;
  do {
    errno = posix_fallocate(m_file.Get(), 0, static_cast<off_t>(room));
  } while (errno == EINTR);
  if (errno != 0) return false;
  void* const text = mmap(nullptr, room, PROT_READ | PROT_WRITE, MAP_SHARED, m_file.Get(), 0);
  if (text == MAP_FAILED) return false;
  m_text = static_cast<char*>(text);
  m_room = room;
  return true;
}

void JournalFile::Unmap() {
  if (m_text != nullptr) munmap(m_text, m_room);
  m_text = nullptr;
  m_room = 0;
}

}  // namespace folionet
