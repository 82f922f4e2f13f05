#include "FileMaker.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

#include "WholeFile.h"

namespace folionet {
namespace {

constexpr mode_t kUsualMode = 0666;
constexpr char kOnItsWay[] = ".folionet-new";  // what a killed program left of it is taken away

bool Fill(const FileHandle& file, std::string_view bytes, mode_t mode) {
  return (mode == 0 || fchmod(file.Get(), mode) == 0) && WriteAll(file.Get(), bytes, 0);
}

}  // namespace

FileHandle FileMaker::OpenNameless(int folder) {
  FileHandle file;
  if (!m_makesNameless) return file;
  file = FileHandle::OpenAt(folder, ".", O_WRONLY | O_TMPFILE, kUsualMode);
  const bool isUnknown = errno == EOPNOTSUPP || errno == EISDIR || errno == EINVAL;
  if (!file.IsOpen() && isUnknown) m_makesNameless = false;
  return file;
}

bool FileMaker::GiveName(const FileHandle& file, int folder, const std::string& name) {
  if (m_linksDescriptors) {
    if (linkat(file.Get(), "", folder, name.c_str(), AT_EMPTY_PATH) == 0) return true;
    if (errno != ENOENT) return false;
    m_linksDescriptors = false;  // older kernels allow it to few
  }
  const std::string path = "/proc/self/fd/" + std::to_string(file.Get());
  return linkat(AT_FDCWD, path.c_str(), folder, name.c_str(), AT_SYMLINK_FOLLOW) == 0;
}

int FileMaker::Make(int folder, const std::string& name, std::string_view bytes, mode_t mode) {
  FileHandle file = OpenNameless(folder);
  const bool isNameless = file.IsOpen();
  if (!isNameless && m_makesNameless) return errno;
  if (!isNameless) file = FileHandle::OpenAt(folder, name.c_str(), O_WRONLY | O_CREAT | O_EXCL, kUsualMode);
  if (!file.IsOpen()) return errno;
  bool hasName = !isNameless;
  bool done = Fill(file, bytes, mode);
  if (done && isNameless) hasName = done = GiveName(file, folder, name);
  done = done && file.Close();
  if (done) return 0;
  const int systemError = errno;
  if (hasName) unlinkat(folder, name.c_str(), 0);
  return systemError;
}

int FileMaker::Replace(int folder, const std::string& name, std::string_view bytes, mode_t mode) const {
  unlinkat(folder, kOnItsWay, 0);
  FileHandle file = FileHandle::OpenAt(folder, kOnItsWay, O_WRONLY | O_CREAT | O_EXCL, kUsualMode);
  if (!file.IsOpen()) return errno;
  if (Fill(file, bytes, mode) && file.Close() && renameat(folder, kOnItsWay, folder, name.c_str()) == 0) return 0;
  const int systemError = errno;
  unlinkat(folder, kOnItsWay, 0);
  return systemError;
}

}  // namespace folionet
