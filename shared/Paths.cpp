#include "Paths.h"

#include <dirent.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <memory>

#include "CodePage.h"
#include "FileHandle.h"
#include "RunTimeError.h"

namespace folionet {
namespace {

bool Exists(const std::string& path) {
  struct stat status {};
  return stat(path.c_str(), &status) == 0;
}

struct CloseFolder {
  void operator()(DIR* folder) const { closedir(folder); }
};

// The path of `component` in `folder`, ignoring case; empty when there is none.
std::string FindEntry(const std::string& folder, const std::string& component) {
  try {
    for (const std::string& entry : ListFolder(folder)) {
      if (EqualIgnoringCase(entry, component)) return folder + entry;
    }
  } catch (const RunTimeError&) {
    // A folder that cannot be listed holds no other name; opening the exact one tells why.
  }
  return {};
}

}  // namespace

std::string NativePath(std::string_view path) {
  std::string native(path);
  std::replace(native.begin(), native.end(), '\\', kFolderSeparator);
  return native;
}

bool EndsInSeparator(std::string_view path) { return !path.empty() && (path.back() == '/' || path.back() == '\\'); }

std::string WithSeparator(std::string_view path) {
  std::string result(path);
  if (!EndsInSeparator(result)) result += kFolderSeparator;
  return result;
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
  const std::string base = NativePath(folder);
  const std::string rest = NativePath(name);
  if (Exists(base + rest)) return base + rest;
  std::string found = base;
  std::size_t at = 0;
  while (at < rest.size()) {
    const std::size_t slash = std::min(rest.find('/', at), rest.size());
    const std::string component = rest.substr(at, slash - at);
    std::string next = found + component;
    if (!component.empty() && !Exists(next)) next = FindEntry(found.empty() ? "./" : found, component);
    if (next.empty()) return base + rest;
    found = next + (slash < rest.size() ? "/" : "");
    at = slash + 1;
  }
  return found;
}

std::vector<std::string> ListFolder(const std::string& folder) {
  const std::string path = NativePath(folder);
  const std::unique_ptr<DIR, CloseFolder> handle(opendir(path.empty() ? "." : path.c_str()));
  if (handle == nullptr) throw RunTimeError::FromErrno(errno, path);
  std::vector<std::string> names;
  errno = 0;
  while (const dirent* entry = readdir(handle.get())) {
    const std::string name = entry->d_name;
    if (name != "." && name != "..") names.push_back(name);
    errno = 0;
  }
  if (errno != 0) throw RunTimeError::FromErrno(errno, path);
  const auto lower = [](const std::string& text) { return CodePage("utf-8").ToLower(text); };
  std::sort(names.begin(), names.end(), [&](const std::string& left, const std::string& right) {
    const std::string lowerLeft = lower(left);
    const std::string lowerRight = lower(right);
    return lowerLeft != lowerRight ? lowerLeft < lowerRight : left < right;
  });
  return names;
}

}  // namespace folionet
