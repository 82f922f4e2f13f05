#include "PageFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <memory>
#include <utility>

#include "Paths.h"
#include "RunTimeError.h"
#include "Text.h"
#include "WholeFile.h"

namespace folionet {
namespace {

constexpr std::size_t kHead = 2048;  // up to the heading, as a rule

std::string RealPath(const std::string& path) {
  const std::unique_ptr<char, decltype(&std::free)> real(realpath(path.c_str(), nullptr), &std::free);
  return real != nullptr ? std::string(real.get()) : std::string();
}

}  // namespace

bool IsPageName(std::string_view name) {
  if (name.empty() || name == "." || name == "..") return false;
  for (std::size_t i = 0; i < name.size(); ++i) {
    if (name[i] == '/' || name[i] == '\\' || IsControl(name, i)) return false;
  }
  return true;
}

void PageFile::Open(const std::string& folder, const std::string& name) {
  m_isOpen = false;
  if (folder != m_folder || !m_folderHandle.IsOpen()) {
    m_folder = folder;
    m_folderHandle = FileHandle::Open(NativePath(folder).c_str(), O_RDONLY | O_DIRECTORY);
    const bool isMissing = !m_folderHandle.IsOpen() && errno == ENOENT;
    if (!m_folderHandle.IsOpen() && !(m_dryRun && isMissing)) throw RunTimeError::FromErrno(errno, NativePath(folder));
  }
  if (!IsPageName(name)) {
    throw RunTimeError(kBadFileName, folder + name,
                       "Choose 8.3 file names or another address, for no page can have this name: \"" + name + "\"");
  }
  m_name = name;
  m_size = 0;
  m_isOpen = true;
}

void PageFile::Grow(std::size_t size) {
  if (size > kLongest) {
    throw RunTimeError(kOutOfMemory, NativePath(m_folder) + m_name,
                       "The page is longer than " + std::to_string(kLongest) + " bytes.");
  }
  m_room = std::min(2 * size, kLongest);
  auto text = std::make_unique_for_overwrite<char[]>(m_room);
  std::copy_n(m_text.get(), m_size, text.get());
  m_text = std::move(text);
}

void PageFile::Fail(int systemError) const {
  throw RunTimeError::FromErrno(systemError, NativePath(m_folder) + m_name);
}

// A page is never written through a link that leads out of the folder, nor into anything but a regular file.
FileHandle PageFile::OpenExisting() const {
  constexpr int kFlags = O_RDWR | O_NONBLOCK | O_NOFOLLOW;
  FileHandle file = FileHandle::OpenAt(m_folderHandle.Get(), m_name.c_str(), kFlags);
  if (!file.IsOpen() && errno == ELOOP) {
    const std::string path = NativePath(m_folder) + m_name;
    const std::string target = RealPath(path);
    if (!target.starts_with(WithSeparator(RealPath(NativePath(m_folder))))) {
      throw RunTimeError(kPathFileAccessError, path,
                         "It is a link that leads out of the output folder. Remove it and compile again.");
    }
    file = FileHandle::Open(target.c_str(), kFlags);
  }
  return file;
}

FileHandle PageFile::OpenNew() const {
  constexpr mode_t kMode = 0666;
  return FileHandle::OpenAt(m_folderHandle.Get(), m_name.c_str(), O_WRONLY | O_CREAT | O_EXCL, kMode);
}

FileHandle PageFile::OpenForWriting(bool& isNew) const {
  isNew = m_expected == PageChange::kNew;
  FileHandle file = isNew ? OpenNew() : OpenExisting();
  if (!file.IsOpen() && errno == (isNew ? EEXIST : ENOENT)) {
    isNew = !isNew;
    file = isNew ? OpenNew() : OpenExisting();
  }
  if (!file.IsOpen()) Fail(errno);
  return file;
}

struct stat PageFile::StatusOfRegular(const FileHandle& file) const {
  struct stat status {};
  if (fstat(file.Get(), &status) != 0) Fail(errno);
  if (!S_ISREG(status.st_mode)) {
    throw RunTimeError(kPathFileAccessError, NativePath(m_folder) + m_name, "It is not a regular file.");
  }
  return status;
}

// Asking for the end takes less time than fstat; only what is written into must be known to be a regular file. Where
// the page before was changed, a look at the beginning of this one mostly shows that it is too.
bool PageFile::HasText(const FileHandle& file) {
  if (lseek(file.Get(), 0, SEEK_END) != static_cast<off_t>(m_size)) return false;
  std::size_t end = m_expected == PageChange::kChanged ? std::min(kHead, m_size) : m_size;
  for (std::size_t start = 0;; start = std::exchange(end, m_size)) {
    if (!ReadAll(file.Get(), m_old, end - start, start)) Fail(errno);
    if (m_old != Text().substr(start, end - start)) return false;
    if (end == m_size) return true;
  }
}

PageChange PageFile::Compare() {
  if (!m_folderHandle.IsOpen()) return PageChange::kNew;
  const FileHandle file = OpenExisting();
  if (!file.IsOpen()) {
    if (errno != ENOENT) Fail(errno);
    // Where a page could not be made, the plan fails as the run would.
    if (faccessat(m_folderHandle.Get(), ".", W_OK, AT_EACCESS) != 0) Fail(errno);
    return PageChange::kNew;
  }
  if (HasText(file)) return PageChange::kSame;
  StatusOfRegular(file);
  return PageChange::kChanged;
}

PageChange PageFile::Close() {
  m_isOpen = false;
  if (m_dryRun) return Compare();
  bool isNew = false;
  FileHandle file = OpenForWriting(isNew);
  if (!isNew && HasText(file)) return m_expected = PageChange::kSame;
  off_t oldSize = 0;
  if (!isNew) {
    const struct stat old = StatusOfRegular(file);
    if (old.st_nlink > 1) {  // a copy of the site, made of hard links, keeps its page
      if (unlinkat(m_folderHandle.Get(), m_name.c_str(), 0) != 0) Fail(errno);
      file = OpenNew();
      if (!file.IsOpen()) Fail(errno);
    } else {
      oldSize = old.st_size;
    }
  }
  if (!WriteAll(file.Get(), Text(), 0)) Fail(errno);
  if (oldSize > static_cast<off_t>(m_size) && !CutToLength(file.Get(), m_size)) Fail(errno);
  if (!file.Close()) Fail(errno);
  return m_expected = isNew ? PageChange::kNew : PageChange::kChanged;
}

std::string PageFile::Take() {
  m_isOpen = false;
  return std::string(Text());
}

}  // namespace folionet
