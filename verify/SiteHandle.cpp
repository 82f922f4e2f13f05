#include "SiteHandle.h"

#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <optional>

#include "Paths.h"
#include "RunTimeError.h"
#include "WholeFile.h"

namespace folionet {
namespace {

constexpr char kItself[] = "./";

std::optional<struct stat> StatusAt(int folder, const std::string& path, int flags = 0) {
  struct stat status {};
  if (fstatat(folder, path.c_str(), &status, flags) != 0) return std::nullopt;
  return status;
}

std::optional<FileStamp> StampAt(int folder, const std::string& path) {
  const auto status = StatusAt(folder, path);
  return status ? std::optional(StampOf(*status)) : std::nullopt;
}

}  // namespace

SiteHandle::SiteHandle(const std::string& folder)
    : m_path(folder), m_folder(FileHandle::Open(folder.c_str(), O_RDONLY | O_DIRECTORY)) {
  struct stat status {};
  if (!m_folder.IsOpen() || fstat(Get(), &status) != 0) throw RunTimeError::FromErrno(errno, m_path);
  m_stamp = StampOf(status);
}

std::vector<std::string> SiteHandle::Names() const {
  try {
    return FolderEntries(kItself, Get());
  } catch (const RunTimeError& error) {
    throw RunTimeError(error.Number(), m_path, error.Detail());
  }
}

bool SiteHandle::IsThere(const std::string& path) const { return StatusAt(Get(), path).has_value(); }

bool SiteHandle::IsFolder(const std::string& path) const {
  const auto status = StatusAt(Get(), path);
  return status && S_ISDIR(status->st_mode);
}

bool SiteHandle::IsLink(const std::string& path) const {
  const auto status = StatusAt(Get(), path, AT_SYMLINK_NOFOLLOW);
  return status && S_ISLNK(status->st_mode);
}

bool SiteHandle::IsReadableFile(const std::string& path) const {
  const FileHandle file = FileHandle::OpenAt(Get(), path.c_str(), O_RDONLY | O_NONBLOCK);
  struct stat status {};
  return file.IsOpen() && fstat(file.Get(), &status) == 0 && S_ISREG(status.st_mode);
}

std::string SiteHandle::Read(const std::string& path) {
  constexpr std::size_t kLongest = std::size_t{64} << 20;
  const FileHandle file = FileHandle::OpenAt(Get(), path.c_str(), O_RDONLY | O_NONBLOCK);
  // The state before the reading, so that a change meanwhile is one.
  struct stat status {};
  if (!file.IsOpen() || fstat(file.Get(), &status) != 0) throw RunTimeError::FromErrno(errno, m_path + path);
  m_read[path] = StampOf(status);
  return ReadOpenFile(file, m_path + path, kLongest);
}

bool SiteHandle::IsAsItWasRead() const {
  return StampAt(Get(), kItself) == m_stamp && std::all_of(m_read.begin(), m_read.end(), [&](const auto& file) {
           return StampAt(Get(), file.first) == file.second;
         });
}

}  // namespace folionet
