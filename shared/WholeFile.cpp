#include "WholeFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include "FileHandle.h"
#include "Paths.h"
#include "RunTimeError.h"

namespace folionet {
namespace {

// The file behind a link, so that replacing it leaves the link.
std::string BehindLinks(const std::string& path) {
  const std::unique_ptr<char, decltype(&std::free)> real(realpath(path.c_str(), nullptr), &std::free);
  return real != nullptr ? std::string(real.get()) : path;
}

mode_t ModeOf(const std::string& path) {
  struct stat status {};
  return stat(path.c_str(), &status) == 0 ? status.st_mode & 0777 : 0;
}

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
  const FileHandle file(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
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

void ReplaceWholeFile(const std::string& path, std::string_view bytes) {
  const std::string target = BehindLinks(path);
  const std::string fresh = target + ".new";
  const mode_t mode = ModeOf(target);
  FileHandle file(open(fresh.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC | O_NOFOLLOW, 0666));
  if (!file.IsOpen()) throw RunTimeError::FromErrno(errno, target);
  const bool written = (mode == 0 || fchmod(file.Get(), mode) == 0) && WriteAll(file.Get(), bytes, 0) &&
                       fsync(file.Get()) == 0 && file.Close() && std::rename(fresh.c_str(), target.c_str()) == 0;
  if (!written) {
    const RunTimeError error = RunTimeError::FromErrno(errno, target);
    unlink(fresh.c_str());
    throw error;
  }
}

void AppendToFile(const std::string& path, std::string_view bytes) {
  std::string content = FileExists(path) ? ReadWholeFile(path) : std::string();
  if (!content.empty() && content.back() != '\n') content += "\r\n";
  content += bytes;
  ReplaceWholeFile(path, content);
}

}  // namespace folionet
