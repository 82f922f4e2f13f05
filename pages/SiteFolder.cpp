#include "SiteFolder.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <optional>
#include <utility>

#include "FileLock.h"
#include "GeneratorLine.h"
#include "OpenBeneath.h"
#include "Paths.h"
#include "RunTimeError.h"
#include "WholeFile.h"

namespace folionet {
namespace {

constexpr std::size_t kHead = 2048;  // up to the heading, as a rule

std::string RealPath(const std::string& path) {
  const std::unique_ptr<char, decltype(&std::free)> real(realpath(path.c_str(), nullptr), &std::free);
  return real != nullptr ? std::string(real.get()) : std::string();
}

bool MayNotWrite(int systemError) {
  return systemError == EACCES || systemError == EPERM || systemError == EROFS || systemError == ETXTBSY;
}

struct stat StatusOf(const FileHandle& file, const std::string& path) {
  struct stat status {};
  if (fstat(file.Get(), &status) != 0) throw RunTimeError::FromErrno(errno, path);
  if (!S_ISREG(status.st_mode)) throw RunTimeError(kPathFileAccessError, path, "It is not a regular file.");
  return status;
}

}  // namespace

std::string KeptName(const std::string& name) { return name + ".before-folionet"; }

void SiteFolder::Check(int systemError, const std::string& name) const {
  if (systemError != 0) throw RunTimeError::FromErrno(systemError, m_path + name);
}

void SiteFolder::Open(const std::string& path) {
  m_path = path;
  m_folder = FileHandle::Open(m_path.c_str(), O_RDONLY | O_DIRECTORY);
  if (!m_folder.IsOpen() && !(m_dryRun && errno == ENOENT)) {
    throw RunTimeError::FromErrno(errno, m_path).About(Subject::kOutputFolder);
  }
  m_isOpen = true;
}

void SiteFolder::OpenToPlan(const std::string& path) {
  m_dryRun = true;
  Open(path);
}

void SiteFolder::Lock() const {
  if (m_dryRun || LockFile(m_folder.Get(), std::chrono::milliseconds(0))) return;
  throw RunTimeError(
      kPermissionDenied, m_path,
      LockHolder(m_folder.Get()) + " is writing into this folder. Wait for that to end, or choose another folder.")
      .About(Subject::kOutputFolder);
}

PageChange SiteFolder::Write(const std::string& name, std::string_view text) {
  m_hasKeptOld = false;
  m_writtenBytes = text.size();
  const bool triesNew = m_expected == PageChange::kNew && !m_dryRun;
  if (triesNew && WriteNew(name, text)) return m_expected = PageChange::kNew;
  OldFile old = m_folder.IsOpen() ? OpenOld(name) : OldFile{{}, ENOENT};
  if (old.file.IsOpen()) return m_expected = WriteOld(name, std::move(old), text);
  if (old.denied != ENOENT) Check(old.denied, name);
  if (m_dryRun) {
    // Where a file could not be made, the plan fails as the run would.
    if (m_folder.IsOpen() && faccessat(m_folder.Get(), ".", W_OK, AT_EACCESS) != 0) Check(errno, name);
  } else if (!WriteNew(name, text)) {
    Check(EEXIST, name);
  }
  return m_expected = PageChange::kNew;
}

bool SiteFolder::WriteNew(const std::string& name, std::string_view text) {
  if (m_watch != nullptr) m_watch->WillChange(name);
  const int systemError = m_maker.Make(m_folder.Get(), name, text);
  if (systemError == EEXIST) return false;
  Check(systemError, name);
  return true;
}

SiteFolder::OldFile SiteFolder::OpenOld(const std::string& name) const {
  constexpr int kFlags = O_NONBLOCK | O_NOFOLLOW;
  OldFile old{FileHandle::OpenAt(m_folder.Get(), name.c_str(), O_RDWR | kFlags)};
  if (old.file.IsOpen()) return old;
  old.denied = errno;
  if (old.denied == ELOOP) {
    old.file = OpenThroughLink(name, O_RDWR | O_NONBLOCK);
    old.denied = old.file.IsOpen() ? 0 : errno;
    if (MayNotWrite(old.denied)) old.file = OpenThroughLink(name, O_RDONLY | O_NONBLOCK);
  } else if (MayNotWrite(old.denied)) {
    old.file = FileHandle::OpenAt(m_folder.Get(), name.c_str(), O_RDONLY | kFlags);
  }
  return old;
}

// A link may lead to another file of the folder, by its place in the folder or by its whole path.
FileHandle SiteFolder::OpenThroughLink(const std::string& name, int flags) const {
  FileHandle file = OpenBeneath(m_folder.Get(), name, flags);
  if (!file.IsOpen() && errno == EXDEV) {
    const std::string folder = "/proc/self/fd/" + std::to_string(m_folder.Get());
    const std::string inside = WithSeparator(RealPath(folder));
    const std::string target = RealPath(folder + "/" + name);
    if (target.starts_with(inside)) file = OpenBeneath(m_folder.Get(), target.substr(inside.size()), flags);
  }
  if (file.IsOpen() || MayNotWrite(errno)) return file;
  throw RunTimeError(kPathFileAccessError, m_path + name,
                     errno == ENOENT
                         ? "It is a link to a file that is not there. Remove it and compile again."
                         : "It is a link that leads out of the output folder. Remove it and compile again.");
}

// Asking for the end takes less time than fstat; only what is written into must be known to be a regular file. Where
// the file before was changed, a look at the beginning of this one mostly shows that it is too.
bool SiteFolder::HasText(const std::string& name, const FileHandle& file, std::string_view text) {
  const bool isDoubtful = m_watch != nullptr && m_watch->IsDoubtful(name);
  if (isDoubtful || lseek(file.Get(), 0, SEEK_END) != static_cast<off_t>(text.size())) {
    m_old.clear();
    return false;
  }
  // What was read of the file before stays until this one is read: clearing the room for it would cost as much again.
  std::size_t end = m_expected == PageChange::kChanged ? std::min(kHead, text.size()) : text.size();
  for (std::size_t start = 0;; start = std::exchange(end, text.size())) {
    if (!ReadAll(file.Get(), m_old, end - start, start)) Check(errno, name);
    if (m_old != text.substr(start, end - start)) {
      if (start > 0) m_old = text.substr(0, start);
      return false;
    }
    if (end == text.size()) return true;
  }
}

// A file of ours is a page with our GENERATOR line, or one that begins like the new one; of an empty one there is
// nothing to keep.
bool SiteFolder::IsOurs(const std::string& name, const FileHandle& file, std::string_view text) {
  constexpr std::size_t kAlike = 64;
  if (m_old.empty() && !ReadAll(file.Get(), m_old, kGeneratorHead, 0)) Check(errno, name);
  const std::string_view old = std::string_view(m_old).substr(0, kAlike);
  return m_old.empty() || IsOurPage(m_old) || (old.size() == kAlike && old == text.substr(0, kAlike));
}

PageChange SiteFolder::WriteOld(const std::string& name, OldFile old, std::string_view text) {
  if (HasText(name, old.file, text)) return PageChange::kSame;
  Check(old.denied, name);
  const struct stat status = StatusOf(old.file, m_path + name);
  if (!IsOurs(name, old.file, text)) Keep(name, old.file, status);
  if (m_dryRun) return PageChange::kChanged;
  if (m_watch != nullptr) m_watch->WillChange(name);
  if (status.st_nlink > 1) {
    Check(m_maker.Replace(m_folder.Get(), name, text, status.st_mode & 0777), name);
  } else {
    Overwrite(name, std::move(old.file), text, status.st_size);
  }
  return PageChange::kChanged;
}

void SiteFolder::Overwrite(const std::string& name, FileHandle file, std::string_view text, off_t oldSize) const {
  if (!WriteAll(file.Get(), text, 0)) Check(errno, name);
  if (oldSize > static_cast<off_t>(text.size()) && !CutToLength(file.Get(), text.size())) Check(errno, name);
  if (file.Close()) return;
  const int systemError = errno;
  if (m_watch != nullptr) m_watch->CouldNotClose(name);
  Check(systemError, name);
}

bool SiteFolder::Has(const std::string& name) const {
  struct stat status {};
  return m_folder.IsOpen() && fstatat(m_folder.Get(), name.c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0;
}

bool SiteFolder::IsOneFile(const std::string& name, const std::string& other) const {
  struct stat one {};
  struct stat two {};
  constexpr int kFlags = AT_SYMLINK_NOFOLLOW;
  return m_folder.IsOpen() && fstatat(m_folder.Get(), name.c_str(), &one, kFlags) == 0 &&
         fstatat(m_folder.Get(), other.c_str(), &two, kFlags) == 0 && one.st_dev == two.st_dev &&
         one.st_ino == two.st_ino;
}

// Once is enough: what a person puts there later was put over a page of ours.
void SiteFolder::Keep(const std::string& name, const FileHandle& file, const struct stat& status) {
  constexpr std::size_t kLongest = std::size_t{64} << 20;
  const std::string kept = KeptName(name);
  if (Has(kept)) return;
  if (!m_dryRun) {
    const std::string bytes = ReadOpenFile(file, m_path + name, kLongest);
    const int systemError = m_maker.Make(m_folder.Get(), kept, bytes, status.st_mode & 0777);
    if (systemError != EEXIST) Check(systemError, kept);
    const struct timespec times[] = {status.st_atim, status.st_mtim};
    utimensat(m_folder.Get(), kept.c_str(), times, AT_SYMLINK_NOFOLLOW);
  }
  m_hasKeptOld = true;
}

// Whether a regular file is a person's that is not kept yet; nothing where that cannot be known.
std::optional<bool> SiteFolder::IsToKeep(const std::string& name) const {
  const FileHandle file = FileHandle::OpenAt(m_folder.Get(), name.c_str(), O_RDONLY | O_NONBLOCK | O_NOFOLLOW);
  std::string head;
  if (!file.IsOpen() || !ReadAll(file.Get(), head, kGeneratorHead, 0)) return std::nullopt;
  return !head.empty() && !IsOurPage(head) && !Has(KeptName(name));
}

Removal SiteFolder::Remove(const std::string& name) {
  m_hasKeptOld = false;
  struct stat status {};
  if (!m_folder.IsOpen() || fstatat(m_folder.Get(), name.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0) {
    return Removal::kNotThere;
  }
  if (!MayRemove(name, status)) return Removal::kFailed;
  const std::optional<bool> isToKeep = S_ISREG(status.st_mode) ? IsToKeep(name) : false;
  if (!isToKeep) return Removal::kFailed;
  m_hasKeptOld = *isToKeep;
  if (m_dryRun) return Removal::kRemoved;
  const int folder = m_folder.Get();
  const int result =
      m_hasKeptOld ? renameat(folder, name.c_str(), folder, KeptName(name).c_str()) : unlinkat(folder, name.c_str(), 0);
  if (result == 0) return Removal::kRemoved;
  m_hasKeptOld = false;
  return Removal::kFailed;
}

// What unlinkat refuses, so that a plan says what a run will do.
bool SiteFolder::MayRemove(const std::string& name, const struct stat& status) const {
  if (S_ISDIR(status.st_mode)) return false;
  struct stat folder {};
  if (fstat(m_folder.Get(), &folder) != 0 || faccessat(m_folder.Get(), ".", W_OK | X_OK, AT_EACCESS) != 0) return false;
  const uid_t user = geteuid();
  if ((folder.st_mode & S_ISVTX) != 0 && user != 0 && user != folder.st_uid && user != status.st_uid) return false;
  constexpr auto kFixed = STATX_ATTR_IMMUTABLE | STATX_ATTR_APPEND;
  struct statx file {};
  struct statx parent {};
  const bool known = statx(m_folder.Get(), name.c_str(), AT_SYMLINK_NOFOLLOW, 0, &file) == 0 &&
                     statx(m_folder.Get(), "", AT_EMPTY_PATH, 0, &parent) == 0;
  return !known || ((file.stx_attributes | parent.stx_attributes) & kFixed) == 0;
}

std::time_t SiteFolder::LastChange(const std::string& name) const {
  struct stat status {};
  const bool isThere = m_folder.IsOpen() && fstatat(m_folder.Get(), name.c_str(), &status, 0) == 0;
  return isThere ? status.st_mtim.tv_sec : std::time(nullptr);
}

bool SiteFolder::IsSameFile(const std::string& name, const std::string& path) const {
  struct stat one {};
  struct stat other {};
  return m_folder.IsOpen() && fstatat(m_folder.Get(), name.c_str(), &one, 0) == 0 && stat(path.c_str(), &other) == 0 &&
         one.st_dev == other.st_dev && one.st_ino == other.st_ino;
}

}  // namespace folionet
