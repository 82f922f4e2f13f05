#include "WholeFile.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <optional>

#include "FileHandle.h"
#include "RunTimeError.h"

namespace folionet {
namespace {

// Calls the system again for as long as a signal comes between.
template <typename Call>
bool Succeeds(Call call) {
  int result = 0;
  do {
    result = call();
  } while (result != 0 && errno == EINTR);
  return result == 0;
}

// The file behind a link, so that replacing it leaves the link.
std::string BehindLinks(const std::string& path) {
  const std::unique_ptr<char, decltype(&std::free)> real(realpath(path.c_str(), nullptr), &std::free);
  return real != nullptr ? std::string(real.get()) : path;
}

mode_t ModeOf(const std::string& path) {
  struct stat status {};
  return stat(path.c_str(), &status) == 0 ? status.st_mode & 0777 : 0;
}

bool IsSameFile(int descriptor, const std::string& path) {
  struct stat open {};
  struct stat named {};
  return fstat(descriptor, &open) == 0 && lstat(path.c_str(), &named) == 0 && open.st_dev == named.st_dev &&
         open.st_ino == named.st_ino;
}

// The new content of a file, on its way. "<path>.new" is locked from the start to the end, so that of two programs that
// replace the same file one waits for the other; what a killed program left of it is used again.
class Replacement {
 public:
  explicit Replacement(const std::string& path)
      : m_target(BehindLinks(path)), m_fresh(m_target + ".new"), m_mode(ModeOf(m_target)) {
    // The file that was waited for may have taken its place by then.
    do {
      m_file = FileHandle::Open(m_fresh.c_str(), O_WRONLY | O_CREAT | O_NOFOLLOW | O_NONBLOCK, 0666);
      if (!m_file.IsOpen()) throw RunTimeError::FromErrno(errno, m_target);
    } while (Lock() && !IsSameFile(m_file.Get(), m_fresh));
  }
  Replacement(const Replacement&) = delete;
  Replacement& operator=(const Replacement&) = delete;
  ~Replacement() {
    if (m_file.IsOpen()) unlink(m_fresh.c_str());
  }

  // Writes the content and gives it the target's name. Throws RunTimeError; the old content then stands.
  void Commit(std::string_view bytes) {
    const int file = m_file.Get();
    const bool done = (m_mode == 0 || fchmod(file, m_mode) == 0) && CutToLength(file, 0) && WriteAll(file, bytes, 0) &&
                      Succeeds([&] { return fsync(file); }) && std::rename(m_fresh.c_str(), m_target.c_str()) == 0;
    if (!done) throw RunTimeError::FromErrno(errno, m_target);
    // All bytes are on the disk already; a failure to close would tell nothing.
    static_cast<void>(m_file.Close());
  }

 private:
  // Where the file system knows no locks, as some of a network do, there is nothing to wait for.
  bool Lock() const {
    return Succeeds([&] { return flock(m_file.Get(), LOCK_EX); });
  }

  std::string m_target;
  std::string m_fresh;
  mode_t m_mode;
  FileHandle m_file;
};

}  // namespace

bool WriteAll(int descriptor, std::string_view bytes, std::size_t offset) {
  while (!bytes.empty()) {
    const ssize_t count = pwrite(descriptor, bytes.data(), bytes.size(), static_cast<off_t>(offset));
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return false;
    if (count == 0) {
      errno = ENOSPC;
      return false;
    }
    bytes.remove_prefix(static_cast<std::size_t>(count));
    offset += static_cast<std::size_t>(count);
  }
  return true;
}

bool CutToLength(int descriptor, std::size_t length) {
  return Succeeds([&] { return ftruncate(descriptor, static_cast<off_t>(length)); });
}

bool ReadAll(int descriptor, std::string& bytes, std::size_t wanted, std::size_t offset) {
  bytes.resize(wanted);
  std::size_t have = 0;
  while (have < wanted) {
    const ssize_t count = pread(descriptor, bytes.data() + have, wanted - have, static_cast<off_t>(offset + have));
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return false;
    if (count == 0) break;
    have += static_cast<std::size_t>(count);
  }
  bytes.resize(have);
  return true;
}

std::string ReadWholeFile(const std::string& path, std::size_t longest) {
  const FileHandle file = FileHandle::Open(path.c_str(), O_RDONLY | O_NONBLOCK);
  struct stat status {};
  if (!file.IsOpen() || fstat(file.Get(), &status) != 0) throw RunTimeError::FromErrno(errno, path);
  if (!S_ISREG(status.st_mode)) throw RunTimeError(kPathFileAccessError, path, "It is not a regular file.");
  const auto size = static_cast<std::size_t>(status.st_size);
  if (size > longest) {
    throw RunTimeError(kOutOfMemory, path, "The file is longer than " + std::to_string(longest) + " bytes.");
  }
  std::string bytes;
  if (!ReadAll(file.Get(), bytes, size, 0)) throw RunTimeError::FromErrno(errno, path);
  return bytes;
}

std::optional<std::string> ReadIfThere(const std::string& path, std::size_t longest) {
  try {
    return ReadWholeFile(path, longest);
  } catch (const RunTimeError& error) {
    if (error.Number() == kFileNotFound || error.Number() == kPathNotFound) return std::nullopt;
    throw;
  }
}

void ReplaceWholeFile(const std::string& path, std::string_view bytes) { Replacement(path).Commit(bytes); }

void EditWholeFile(const std::string& path, std::size_t longest,
                   const std::function<std::string(std::string content)>& edit) {
  Replacement replacement(path);
  replacement.Commit(edit(ReadIfThere(path, longest).value_or("")));
}

void AppendToFile(const std::string& path, std::string_view bytes) {
  EditWholeFile(path, std::size_t{64} << 20, [&](std::string content) {
    if (!content.empty() && content.back() != '\n') content += "\r\n";
    return content.append(bytes);
  });
}

}  // namespace folionet
