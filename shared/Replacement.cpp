#include "Replacement.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>

#include "FileLock.h"
#include "MakeFolders.h"
#include "Paths.h"
#include "RunTimeError.h"
#include "WholeFile.h"

namespace folionet {
namespace {

// The file behind a link, so that replacing it leaves the link.
std::string BehindLinks(const std::string& path) {
  std::string real = RealPath(path);
  if (!real.empty()) return real;
  const int systemError = errno;
  if (IsLink(path)) {
    if (systemError != ENOENT) throw RunTimeError::FromErrno(systemError, path);
    throw RunTimeError(kPathFileAccessError, path, "It is a link to a file that is not there. Remove it.");
  }
  return path;
}

std::string FolderOf(const std::string& path) {
  const std::size_t slash = path.rfind('/') + 1;
  return slash == 0 ? "." : path.substr(0, slash);
}

// Looks at a file on its way to take the place of `path`, which could be opened or not, with errno set.
void CheckOnItsWay(const FileHandle& file, const std::string& path, const std::string& name) {
  struct stat status {};
  if (!file.IsOpen() || fstat(file.Get(), &status) != 0) throw RunTimeError::FromErrno(errno, path);
  if (!S_ISREG(status.st_mode) || status.st_nlink > 1) {
    throw RunTimeError(kPathFileAccessError, path, "\"" + name + "\" beside it is in the way. Remove it.");
  }
}

[[noreturn]] void RefuseHeld(const FileHandle& file, const std::string& path) {
  throw RunTimeError(kPermissionDenied, path,
                     LockHolder(file.Get()) + " is saving it. Wait for that to end, and try again.");
}

}  // namespace

Replacement::Replacement(const std::string& path, mode_t modeIfNew) : m_path(BehindLinks(path)), m_mode(modeIfNew) {
  m_name = m_path.substr(m_path.rfind('/') + 1);
  m_fresh = OnItsWay(m_name);
  m_folder = FileHandle::Open(FolderOf(m_path).c_str(), O_PATH | O_DIRECTORY);
  if (!m_folder.IsOpen()) throw RunTimeError::FromErrno(errno, m_path);
  LookAtTarget();
  GetHold();
}

Replacement::~Replacement() {
  if (m_file.IsOpen() && !m_isCommitted) unlinkat(m_folder.Get(), m_fresh.c_str(), 0);
}

void Replacement::LookAtTarget() {
  struct stat status {};
  if (fstatat(m_folder.Get(), m_name.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0) {
    if (errno != ENOENT) throw RunTimeError::FromErrno(errno, m_path);
  } else if (!S_ISREG(status.st_mode)) {
    throw RunTimeError(kPathFileAccessError, m_path, "It is not a regular file.");
  } else {
    m_mode = status.st_mode & 0777;
  }
}

void Replacement::GetHold() {
  const auto end = std::chrono::steady_clock::now() + kLongestWait;
  do {
    m_file = FileHandle::OpenAt(m_folder.Get(), m_fresh.c_str(), O_WRONLY | O_CREAT | O_NOFOLLOW | O_NONBLOCK, 0666);
    CheckOnItsWay(m_file, m_path, m_fresh);
    const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(end - std::chrono::steady_clock::now());
    if (!LockFile(m_file.Get(), left)) break;
    if (IsStillNamed()) return;
    // What was waited for has taken the file's place by then.
  } while (std::chrono::steady_clock::now() < end);
  RefuseHeld(m_file, m_path);
}

bool Replacement::IsStillNamed() const {
  struct stat open {};
  struct stat named {};
  if (fstat(m_file.Get(), &open) != 0) throw RunTimeError::FromErrno(errno, m_path);
  if (fstatat(m_folder.Get(), m_fresh.c_str(), &named, AT_SYMLINK_NOFOLLOW) != 0) {
    if (errno != ENOENT) throw RunTimeError::FromErrno(errno, m_path);
    return false;
  }
  return open.st_dev == named.st_dev && open.st_ino == named.st_ino;
}

std::optional<std::string> Replacement::OldContent(std::size_t longest) const {
  const FileHandle file = FileHandle::OpenAt(m_folder.Get(), m_name.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK);
  if (!file.IsOpen() && errno == ENOENT) return std::nullopt;
  return ReadOpenFile(file, m_path, longest);
}

void Replacement::Prepare(std::string_view bytes) {
  BeginContent();
  AddContent(bytes);
  EndContent();
}

void Replacement::BeginContent() {
  const bool done = (m_mode == 0 || fchmod(m_file.Get(), m_mode) == 0) && CutToLength(m_file.Get(), 0);
  if (!done) throw RunTimeError::FromErrno(errno, m_path);
  m_length = 0;
}

void Replacement::AddContent(std::string_view bytes) {
  if (!WriteAll(m_file.Get(), bytes, m_length)) throw RunTimeError::FromErrno(errno, m_path);
  m_length += bytes.size();
}

void Replacement::EndContent() const {
  if (!SyncToDisk(m_file.Get())) throw RunTimeError::FromErrno(errno, m_path);
}

void TryReplacement(const std::string& path) {
  const std::string target = BehindLinks(path);
  struct stat status {};
  const int found = lstat(target.c_str(), &status) == 0 ? 0 : errno;
  if (found == 0 && !S_ISREG(status.st_mode)) {
    throw RunTimeError(kPathFileAccessError, target, "It is not a regular file.");
  }
  const std::string fresh = OnItsWay(target);
  const int systemError = found == 0 || found == ENOENT ? WhyNotMake(AT_FDCWD, fresh) : found;
  if (systemError == 0 || (systemError == ENOENT && !FolderExists(FolderOf(fresh)))) return;
  if (systemError != EEXIST) throw RunTimeError::FromErrno(systemError, target);
  // One that a killed program left is used again; of another program's one the end is waited for.
  const FileHandle file = FileHandle::Open(fresh.c_str(), O_WRONLY | O_NOFOLLOW | O_NONBLOCK);
  if (!file.IsOpen() && errno == ENOENT) return;
  CheckOnItsWay(file, target, fresh.substr(fresh.rfind('/') + 1));
  if (IsLockHeld(file.Get(), kLongestWait)) RefuseHeld(file, target);
}

std::string OnItsWay(const std::string& path) {
  const std::size_t slash = path.rfind('/') + 1;
  return path.substr(0, slash) + "." + path.substr(slash) + ".folionet-new";
}

void Replacement::Commit() {
  LookAtTarget();
  if (renameat(m_folder.Get(), m_fresh.c_str(), m_folder.Get(), m_name.c_str()) != 0) {
    throw RunTimeError::FromErrno(errno, m_path);
  }
  m_isCommitted = true;
}

}  // namespace folionet
