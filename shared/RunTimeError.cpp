#include "RunTimeError.h"

#include <sys/stat.h>

#include <array>
#include <cerrno>
#include <system_error>
#include <utility>

#include "Text.h"

namespace folionet {
namespace {

constexpr std::array<std::pair<int, std::string_view>, 17> kMessages{{
    {kInvalidProcedureCall, "Invalid procedure call or argument"},
    {kOverflow, "Overflow"},
    {kOutOfMemory, "Out of memory"},
    {kSubscriptOutOfRange, "Subscript out of range"},
    {kTypeMismatch, "Type mismatch"},
    {kBadFileName, "Bad file name or number"},
    {kFileNotFound, "File not found"},
    {kFileAlreadyOpen, "File already open"},
    {kDeviceIoError, "Device I/O error"},
    {kDiskFull, "Disk full"},
    {kInputPastEnd, "Input past end of file"},
    {kTooManyFiles, "Too many files"},
    {kDeviceUnavailable, "Device unavailable"},
    {kPermissionDenied, "Permission denied"},
    {kDiskNotReady, "Disk not ready"},
    {kPathFileAccessError, "Path/File access error"},
    {kPathNotFound, "Path not found"},
}};

bool FolderOfExists(const std::string& path) {
  const std::size_t slash = path.find_last_of('/');
  if (slash == std::string::npos) return true;
  struct stat status {};
  return stat(path.substr(0, slash + 1).c_str(), &status) == 0;
}

bool IsSocket(const std::string& path) {
  struct stat status {};
  return stat(path.c_str(), &status) == 0 && S_ISSOCK(status.st_mode);
}

int NumberOf(int systemError, const std::string& path) {
  switch (systemError) {
    case ENOENT:
      return FolderOfExists(path) ? kFileNotFound : kPathNotFound;
    case ENOTDIR:
      return kPathNotFound;
    case EACCES:
    case EPERM:
    case EROFS:
    case EBUSY:
    case ETXTBSY:
      return kPermissionDenied;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return kDiskFull;
    case EMFILE:
    case ENFILE:
      return kTooManyFiles;
    case EIO:
      return kDeviceIoError;
    case ENODEV:
    case ENXIO:
      return kDeviceUnavailable;
    case ENOMEDIUM:
      return kDiskNotReady;
    case ENAMETOOLONG:
    case EILSEQ:
    case EINVAL:
      return kBadFileName;
    case ENOMEM:
      return kOutOfMemory;
    default:
      return kPathFileAccessError;
  }
}

}  // namespace

std::string_view StandardMessage(int number) {
  for (const auto& [known, text] : kMessages) {
    if (known == number) return text;
  }
  return "Application-defined or object-defined error";
}

RunTimeError::RunTimeError(int number, std::string item, std::string detail, std::size_t line)
    : m_number(number), m_item(std::move(item)), m_detail(std::move(detail)), m_line(line) {
  m_what = std::string(StandardMessage(number)) + ": " + Escaped(m_item);
  if (m_line != 0) m_what += ", line " + std::to_string(m_line);
  if (!m_detail.empty()) m_what += ": " + Escaped(m_detail);
}

RunTimeError RunTimeError::FromErrno(int systemError, const std::string& path) {
  if (systemError == ENXIO && IsSocket(path)) return {kPathFileAccessError, path, "It is not a regular file."};
  return {NumberOf(systemError, path), path, std::generic_category().message(systemError)};
}

RunTimeError RunTimeError::About(Subject subject) const {
  RunTimeError error = *this;
  error.m_subject = subject;
  return error;
}

bool IsSameFailure(const RunTimeError& left, const RunTimeError& right) {
  return left.Number() == right.Number() && left.About() == right.About() && left.Item() == right.Item() &&
         left.Line() == right.Line() && left.Detail() == right.Detail();
}

std::string RunTimeError::Extra() const {
  std::string text = Escaped(m_item);
  if (m_line != 0) text += "\r\nLine " + std::to_string(m_line);
  if (!m_detail.empty()) text += "\r\n" + Escaped(m_detail);
  return text;
}

}  // namespace folionet
