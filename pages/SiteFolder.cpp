#include "SiteFolder.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <memory>
#include <optional>
#include <utility>

#include "FileLock.h"
#include "FilePlan.h"
#include "FileWriter.h"
#include "GeneratorLine.h"
#include "OpenBeneath.h"
#include "Paths.h"
#include "RunTimeError.h"
#include "WholeFile.h"

namespace folionet {
namespace {

constexpr std::size_t kHead = 2048;  // up to the heading, as a rule

bool MayNotWrite(int systemError) {
  return systemError == EACCES || systemError == EPERM || systemError == EROFS || systemError == ETXTBSY;
}

}  // namespace

std::string KeptName(const std::string& name) { return name + ".before-folionet"; }

void SiteFolder::Check(int systemError, const std::string& name) const {
  if (systemError != 0) throw RunTimeError::FromErrno(systemError, m_path + name);
}

void SiteFolder::Open(const std::string& path, Doing doing) {
  m_path = path;
  m_isPlan = doing == Doing::kPlan;
  m_changes = m_isPlan ? std::unique_ptr<FileChanges>(new FilePlan) : std::make_unique<FileWriter>();
  m_folder = FileHandle::Open(m_path.c_str(), O_RDONLY | O_DIRECTORY);
  if (!m_folder.IsOpen() && !(m_isPlan && errno == ENOENT)) {
    throw RunTimeError::FromErrno(errno, m_path).About(Subject::kOutputFolder);
  }
  m_isOpen = true;
}

void SiteFolder::Lock() const {
  if (!m_folder.IsOpen()) return;
  if (m_isPlan ? !IsLockHeld(m_folder.Get()) : LockFile(m_folder.Get())) return;
  RefuseHeld(LockHolder(m_folder.Get()));
}

void SiteFolder::RefuseHeld(const std::string& holder) const {
  throw RunTimeError(kPermissionDenied, m_path,
                     holder + " is writing into this folder. Wait for that to end, or choose another folder.")
      .About(Subject::kOutputFolder);
}

PageChange SiteFolder::Write(const std::string& name, std::string_view text) {
  m_hasKeptOld = false;
  m_writtenBytes = text.size();
  const bool triesNew = m_expected == PageChange::kNew;
  if (triesNew && WriteNew(name, text)) return m_expected = PageChange::kNew;
  OldFile old = m_folder.IsOpen() ? OpenOld(name) : OldFile{{}, ENOENT};
  if (old.file.IsOpen()) return m_expected = WriteOld(name, std::move(old), text);
  if (old.denied != ENOENT) Check(old.denied, name);
  if (!WriteNew(name, text)) Check(EEXIST, name);
  return m_expected = PageChange::kNew;
}

void SiteFolder::WillChange(const std::string& name) const {
  if (m_watch != nullptr && !m_isPlan) m_watch->WillChange(name);
}

bool SiteFolder::WriteNew(const std::string& name, std::string_view text) {
  WillChange(name);
  const int systemError = m_changes->Make(m_folder.Get(), name, text, nullptr);
  if (systemError == EEXIST) return false;
  Check(systemError, name);
  return true;
}

SiteFolder::OldFile SiteFolder::OpenOld(const std::string& name) {
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

std::string SiteFolder::RealPath() const {
  const std::string place = folionet::RealPath("/proc/self/fd/" + std::to_string(m_folder.Get()));
  return place.empty() ? folionet::RealPath(m_path) : place;
}

// Two files of a run cannot be one: each would get the text of the other.
void SiteFolder::RefuseShared(const std::string& name, const FileHandle& file) {
  const std::string folder = WithSeparator(RealPath());
  const std::string target = folionet::RealPath("/proc/self/fd/" + std::to_string(file.Get()));
  std::string other = target.starts_with(folder) ? target.substr(folder.size()) : std::string();
  if (other == name || !m_isOfRun || !m_isOfRun(other)) {
    const struct stat status = RegularStatus(file, m_path + name);
    other = m_linked.try_emplace({status.st_dev, status.st_ino}, name).first->second;
  }
  if (other == name) return;
  throw RunTimeError(kPathFileAccessError, m_path + name,
                     "It is a link to what \"" + other + "\" is too. Remove it and compile again.");
}

// A link may lead to another file of the folder, by its place in the folder or by its whole path.
FileHandle SiteFolder::OpenThroughLink(const std::string& name, int flags) {
  FileHandle file = OpenBeneath(m_folder.Get(), name, flags);
  if (!file.IsOpen() && errno == EXDEV) {
    const std::string folder = "/proc/self/fd/" + std::to_string(m_folder.Get());
    const std::string inside = WithSeparator(RealPath());
    const std::string target = folionet::RealPath(folder + "/" + name);
    if (target.starts_with(inside)) file = OpenBeneath(m_folder.Get(), target.substr(inside.size()), flags);
  }
  if (file.IsOpen()) RefuseShared(name, file);
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
  if (m_old.empty() && !ReadAll(file.Get(), m_old, kGeneratorHead, 0)) Check(errno, name);
  const std::string_view old = std::string_view(m_old).substr(0, kAlikeStart);
  return m_old.empty() || IsOurPage(m_old) || (old.size() == kAlikeStart && old == text.substr(0, kAlikeStart));
}

PageChange SiteFolder::WriteOld(const std::string& name, OldFile old, std::string_view text) {
  if (HasText(name, old.file, text)) return PageChange::kSame;
  Check(old.denied, name);
  const struct stat status = RegularStatus(old.file, m_path + name);
  if (!IsOurs(name, old.file, text)) Keep(name, old.file, status);
  WillChange(name);
  if (status.st_nlink > 1) {
    Replace(name, text, status);
  } else {
    Overwrite(name, std::move(old.file), text, status);
  }
  return PageChange::kChanged;
}

void SiteFolder::Replace(const std::string& name, std::string_view text, const struct stat& old) const {
  if (IsWayBlocked(m_folder.Get())) {
    throw RunTimeError(kPathFileAccessError, m_path + name,
                       "\"" + std::string(kOnItsWay) + "\" beside it is in the way. Remove it.");
  }
  Check(m_changes->Replace(m_folder.Get(), name, text, old), name);
}

void SiteFolder::Overwrite(const std::string& name, FileHandle file, std::string_view text,
                           const struct stat& old) const {
  Check(m_changes->Overwrite(file, text, old), name);
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
bool SiteFolder::IsKept(const std::string& name) const {
  struct stat status {};
  const bool isThere = fstatat(m_folder.Get(), KeptName(name).c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0;
  return (isThere && S_ISREG(status.st_mode)) || m_kept.contains(name);
}

void SiteFolder::NoteKept(const std::string& name) {
  m_hasKeptOld = true;
  m_kept.insert(name);
}

void SiteFolder::Keep(const std::string& name, const FileHandle& file, const struct stat& status) {
  constexpr std::size_t kLongest = std::size_t{64} << 20;
  if (IsKept(name)) return;
  const std::string bytes = ReadOpenFile(file, m_path + name, kLongest);
  Check(m_changes->Make(m_folder.Get(), KeptName(name), bytes, &status), KeptName(name));
  NoteKept(name);
}

// Whether a regular file is a person's that is not kept yet; nothing where that cannot be known.
std::optional<bool> SiteFolder::IsToKeep(const std::string& name) const {
  const FileHandle file = FileHandle::OpenAt(m_folder.Get(), name.c_str(), O_RDONLY | O_NONBLOCK | O_NOFOLLOW);
  std::string head;
  if (!file.IsOpen() || !ReadAll(file.Get(), head, kGeneratorHead, 0)) return std::nullopt;
  return !head.empty() && !IsOurPage(head) && !IsKept(name);
}

Removal SiteFolder::Remove(const std::string& name) {
  m_hasKeptOld = false;
  const int folder = m_folder.Get();
  struct stat status {};
  if (!m_folder.IsOpen() || fstatat(folder, name.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0) {
    return Removal::kNotThere;
  }
  if (S_ISDIR(status.st_mode)) return Removal::kFailed;
  const std::optional<bool> isToKeep = S_ISREG(status.st_mode) ? IsToKeep(name) : false;
  if (!isToKeep || (*isToKeep && Has(KeptName(name)))) return Removal::kFailed;
  WillChange(name);
  const int systemError =
      *isToKeep ? m_changes->Rename(folder, name, status, KeptName(name)) : m_changes->Remove(folder, name, status);
  if (systemError != 0) return Removal::kFailed;
  if (*isToKeep) NoteKept(name);
  return Removal::kRemoved;
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
