#include "FileWriter.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

#include "WholeFile.h"

namespace folionet {
namespace {

constexpr mode_t kUsualMode = 0666;

bool Fill(const FileHandle& file, std::string_view bytes, const struct stat* like) {
  if (like == nullptr) return WriteAll(file.Get(), bytes, 0);
  return fchmod(file.Get(), like->st_mode & 0777) == 0 && WriteAll(file.Get(), bytes, 0);
}

}  // namespace

FileHandle FileWriter::OpenNameless(int folder) {
  FileHandle file;
  if (!m_makesNameless) return file;
  file = FileHandle::OpenAt(folder, ".", O_WRONLY | O_TMPFILE, kUsualMode);
  const bool isUnknown = errno == EOPNOTSUPP || errno == EISDIR || errno == EINVAL;
  if (!file.IsOpen() && isUnknown) m_makesNameless = false;
  return file;
}

bool FileWriter::GiveName(const FileHandle& file, int folder, const std::string& name) {
  if (m_linksDescriptors) {
    if (linkat(file.Get(), "", folder, name.c_str(), AT_EMPTY_PATH) == 0) return true;
    if (errno != ENOENT) return false;
    m_linksDescriptors = false;  // older kernels allow it to few
  }
  const std::string path = "/proc/self/fd/" + std::to_string(file.Get());
  return linkat(AT_FDCWD, path.c_str(), folder, name.c_str(), AT_SYMLINK_FOLLOW) == 0;
}

int FileWriter::Make(int folder, const std::string& name, std::string_view bytes, const struct stat* like) {
  FileHandle file = OpenNameless(folder);
  const bool isNameless = file.IsOpen();
  if (!isNameless && m_makesNameless) return errno;
  if (!isNameless) file = FileHandle::OpenAt(folder, name.c_str(), O_WRONLY | O_CREAT | O_EXCL, kUsualMode);
  if (!file.IsOpen()) return errno;
  bool hasName = !isNameless;
  bool done = Fill(file, bytes, like);
  if (done && like != nullptr) {
    const struct timespec times[] = {like->st_atim, like->st_mtim};
    static_cast<void>(futimens(file.Get(), times));
  }
  if (done && isNameless) hasName = done = GiveName(file, folder, name);
  done = done && file.Close();
  if (done) return 0;
  const int systemError = errno;
  if (hasName) unlinkat(folder, name.c_str(), 0);
  return systemError;
}

int FileWriter::Replace(int folder, const std::string& name, std::string_view bytes, const struct stat& old) {
  unlinkat(folder, kOnItsWay, 0);
  FileHandle file = FileHandle::OpenAt(folder, kOnItsWay, O_WRONLY | O_CREAT | O_EXCL, kUsualMode);
  if (!file.IsOpen()) return errno;
  if (Fill(file, bytes, &old) && file.Close() && renameat(folder, kOnItsWay, folder, name.c_str()) == 0) return 0;
  const int systemError = errno;
  unlinkat(folder, kOnItsWay, 0);
  return systemError;
}

int FileWriter::Overwrite(const FileHandle& file, std::string_view bytes, const struct stat& old) {
  const bool isLonger = old.st_size > static_cast<off_t>(bytes.size());
  return WriteAll(file.Get(), bytes, 0) && (!isLonger || CutToLength(file.Get(), bytes.size())) ? 0 : errno;
}

int FileWriter::Remove(int folder, const std::string& name, const struct stat& /*old*/) {
  return unlinkat(folder, name.c_str(), 0) == 0 ? 0 : errno;
}

int FileWriter::Rename(int folder, const std::string& name, const struct stat& /*old*/, const std::string& newName) {
  return renameat(folder, name.c_str(), folder, newName.c_str()) == 0 ? 0 : errno;
}

bool IsWayBlocked(int folder) {
  struct stat status {};
  return fstatat(folder, kOnItsWay, &status, AT_SYMLINK_NOFOLLOW) == 0 &&
         (!S_ISREG(status.st_mode) || status.st_nlink > 1);
}

}  // namespace folionet
