#include "WholeFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <optional>

#include "FileHandle.h"
#include "Replacement.h"
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

bool SyncToDisk(int descriptor) {
  return Succeeds([&] { return fsync(descriptor); });
}

struct stat RegularStatus(const FileHandle& file, const std::string& path) {
  struct stat status {};
  if (!file.IsOpen() || fstat(file.Get(), &status) != 0) throw RunTimeError::FromErrno(errno, path);
  if (!S_ISREG(status.st_mode)) throw RunTimeError(kPathFileAccessError, path, "It is not a regular file.");
  return status;
}

std::string ReadOpenFile(const FileHandle& file, const std::string& path, std::size_t longest) {
  const auto size = static_cast<std::size_t>(RegularStatus(file, path).st_size);
  if (size > longest) {
    throw RunTimeError(kOutOfMemory, path, "The file is longer than " + std::to_string(longest) + " bytes.");
  }
  std::string bytes;
  if (!ReadAll(file.Get(), bytes, size, 0)) throw RunTimeError::FromErrno(errno, path);
  return bytes;
}

std::string ReadWholeFile(const std::string& path, std::size_t longest) {
  return ReadOpenFile(FileHandle::Open(path.c_str(), O_RDONLY | O_NONBLOCK), path, longest);
}

std::optional<std::string> ReadIfThere(const std::string& path, std::size_t longest) {
  try {
    return ReadWholeFile(path, longest);
  } catch (const RunTimeError& error) {
    if (error.Number() == kFileNotFound || error.Number() == kPathNotFound) return std::nullopt;
    throw;
  }
}

void ReplaceWholeFile(const std::string& path, std::string_view bytes) {
  Replacement replacement(path);
  replacement.Prepare(bytes);
  replacement.Commit();
}

void EditWholeFile(const std::string& path, std::size_t longest,
                   const std::function<std::string(std::string content)>& edit) {
  Replacement replacement(path);
  replacement.Prepare(edit(replacement.OldContent(longest).value_or("")));
  replacement.Commit();
}

}  // namespace folionet
