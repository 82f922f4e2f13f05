#include "Paths.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <system_error>
#include <utility>

#include "CodePage.h"
#include "FileHandle.h"
#include "FolderLister.h"
#include "FolderReader.h"
#include "RunTimeError.h"

namespace folionet {
namespace {

// Where the longest name ends that begins at `name`, holds the backslash at `at` and is there; `at` when none is.
std::size_t EndOfName(const std::string& path, std::size_t name, std::size_t at) {
  std::size_t end = std::min(path.find(kFolderSeparator, name), path.size());
  while (end > at && !IsThere(path.substr(0, end))) end = path.rfind('\\', end - 1);
  return std::max(end, at);
}

// Whether the path ends in a separator of either kind.
bool EndsInSeparator(std::string_view path) {
  return path.ends_with('/') || (path.ends_with('\\') && !IsThere(std::string(path)));
}

}  // namespace

std::string NativePath(std::string_view path) {
  std::string native(path);
  std::size_t name = 0;  // where the name at hand begins
  for (std::size_t at = native.find('\\'); at != std::string::npos; at = native.find('\\', at)) {
    name = std::max(name, native.substr(0, at).rfind(kFolderSeparator) + 1);
    const std::size_t end = EndOfName(native, name, at);
    if (end > at) {
      at = end;
    } else {
      native[at] = kFolderSeparator;
      name = ++at;
    }
  }
  return native;
}

std::string WithSeparator(std::string_view path) {
  std::string result(path);
  if (!EndsInSeparator(result)) result += kFolderSeparator;
  return result;
}

bool IsSameFolder(std::string_view left, std::string_view right) {
  const auto whole = [](std::string_view path) {
    std::error_code ignored;
    const std::filesystem::path native = NativePath(path);
    const std::filesystem::path absolute = std::filesystem::absolute(native, ignored);
    return WithSeparator((absolute.empty() ? native : absolute).lexically_normal().string());
  };
  return whole(left) == whole(right);
}

std::string RealPath(const std::string& path) {
  const std::unique_ptr<char, decltype(&std::free)> real(realpath(path.c_str(), nullptr), &std::free);
  return real != nullptr ? std::string(real.get()) : std::string();
}

bool IsThere(const std::string& path) {
  struct stat status {};
  return lstat(path.c_str(), &status) == 0;
}

bool MayBeThere(const std::string& path) { return IsThere(path) || (errno != ENOENT && errno != ENOTDIR); }

bool IsMissing(const std::string& path) {
  struct stat status {};
  return stat(path.c_str(), &status) != 0 && (errno == ENOENT || errno == ENOTDIR);
}

bool IsLink(const std::string& path) {
  struct stat status {};
  return lstat(path.c_str(), &status) == 0 && S_ISLNK(status.st_mode);
}

bool FileExists(const std::string& path) {
  const FileHandle file = FileHandle::Open(NativePath(path).c_str(), O_RDONLY | O_NONBLOCK);
  struct stat status {};
  return file.IsOpen() && fstat(file.Get(), &status) == 0 && S_ISREG(status.st_mode);
}

bool FolderExists(const std::string& path) {
  struct stat status {};
  return stat(NativePath(path).c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

std::string LocateIgnoringCase(const std::string& folder, std::string_view name) {
  return FolderLister().Locate(folder, name);
}

std::string UserFolder(const char* variable, std::string_view belowHome) {
  if (const char* folder = std::getenv(variable); folder != nullptr && folder[0] == '/') return WithSeparator(folder);
  const char* home = std::getenv("HOME");
  if (home == nullptr || home[0] != '/') return {};
  return WithSeparator(WithSeparator(home).append(belowHome));
}

std::vector<std::string> FolderEntries(const std::string& folder, int at) {
  const std::string path = NativePath(folder);
  FolderReader reader(path.empty() ? "." : path.c_str(), at);
  if (!reader.IsOpen()) throw RunTimeError::FromErrno(errno, path);
  std::vector<std::string> names;
  while (const dirent* const entry = reader.Next()) names.emplace_back(entry->d_name);
  if (errno != 0) throw RunTimeError::FromErrno(errno, path);
  return names;
}

std::vector<std::string> ListFolder(const std::string& folder, int at) {
  std::vector<std::string> names = FolderEntries(folder, at);
  // The names and what they are sorted by, made once for each.
  std::vector<std::pair<std::string, std::string>> keys;
  keys.reserve(names.size());
  const CodePage utf8("utf-8");
  for (std::string& name : names) keys.emplace_back(utf8.ToLower(name), std::move(name));
  std::sort(keys.begin(), keys.end());
  std::transform(keys.begin(), keys.end(), names.begin(), [](auto& key) { return std::move(key.second); });
  return names;
}

}  // namespace folionet
