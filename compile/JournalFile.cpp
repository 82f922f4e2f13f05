#include "JournalFile.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <utility>

#include "FileLock.h"
#include "WholeFile.h"

namespace folionet {

bool JournalFile::Open(const std::string& path, std::size_t whole) {
  FileHandle file = FileHandle::Open(path.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK, 0600);
  if (!file.IsOpen()) return false;
  const bool isLocked = LockFile(file.Get());
  struct stat status {};
  if (fstat(file.Get(), &status) != 0) return false;
  if (!S_ISREG(status.st_mode)) {
    errno = EINVAL;
    return false;
  }
  // One without a name was forgotten by the program that had it.
  if (!isLocked || status.st_nlink == 0) {
    errno = EBUSY;
    return false;
  }
  m_size = std::min(whole, static_cast<std::size_t>(status.st_size));
  if (!CutToLength(file.Get(), m_size)) return false;
  m_file = std::move(file);
  return true;
}

bool JournalFile::Add(std::string_view text) {
  if (!WriteAll(m_file.Get(), text, m_size)) {
    const int systemError = errno;
    CutToLength(m_file.Get(), m_size);
    errno = systemError;
    return false;
  }
  m_size += text.size();
  return true;
}

bool JournalFile::IsWhole() const {
  std::string text;
  return ReadAll(m_file.Get(), text, m_size, 0) && text.size() == m_size && text.find('\0') == std::string::npos;
}

}  // namespace folionet
