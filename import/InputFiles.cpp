#include "InputFiles.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <system_error>
#include <utility>

#include "Archive.h"
#include "FileHandle.h"
#include "ImportError.h"

namespace folionet {
namespace {

namespace fs = std::filesystem;

// An open file, whose first bytes can be looked at before they are read.
class OpenFile : public ByteSource {
 public:
  OpenFile(std::string name, FileHandle file) : m_name(std::move(name)), m_file(std::move(file)) {
    m_head.resize(kArchiveHead);
    std::size_t have = 0;
    while (have < m_head.size()) {
      const std::size_t count = ReadOn(m_head.data() + have, m_head.size() - have);
      if (count == 0) break;
      have += count;
    }
    m_head.resize(have);
  }

  std::string_view Head() const { return m_head; }

  std::size_t Read(char* bytes, std::size_t size) override {
    if (m_given == m_head.size()) return ReadOn(bytes, size);
    const std::size_t count = std::min(size, m_head.size() - m_given);
    std::memcpy(bytes, m_head.data() + m_given, count);
    m_given += count;
    return count;
  }

 private:
  std::size_t ReadOn(char* bytes, std::size_t size) const {
    for (;;) {
      const ssize_t count = read(m_file.Get(), bytes, size);
      if (count >= 0) return static_cast<std::size_t>(count);
      if (errno != EINTR) throw RunTimeError::FromErrno(errno, m_name);
    }
  }

  std::string m_name;
  FileHandle m_file;
  std::string m_head;
  std::size_t m_given = 0;
};

using Take = std::function<void(const InputFile&)>;

// One that is named itself may be an archive.
void TakeGiven(const std::string& name, FileHandle file, const Take& take) {
  OpenFile open(name, std::move(file));
  if (IsArchive(open.Head())) {
    ForEachEntry(name, open, take);
  } else {
    take({.name = name, .isGiven = true, .bytes = &open});
  }
}

FileHandle OpenRegular(const std::string& path) {
  FileHandle file = FileHandle::Open(path.c_str(), O_RDONLY | O_NONBLOCK);
  struct stat status {};
  if (!file.IsOpen() || fstat(file.Get(), &status) != 0) throw RunTimeError::FromErrno(errno, path);
  if (!S_ISREG(status.st_mode)) {
    throw ImportError(kPathFileAccessError, path, {Words("Import", "It is not a regular file.")});
  }
  return file;
}

void TakeFolder(const std::string& folder, const Take& take) {
  constexpr std::size_t kMostFiles = 10000;
  std::vector<std::string> files;
  std::error_code error;
  for (fs::recursive_directory_iterator at(folder, error), end; !error && at != end; at.increment(error)) {
    std::error_code ignored;
    if (at->is_regular_file(ignored)) files.push_back(at->path().string());
    if (files.size() > kMostFiles) {
      throw ImportError(kPathFileAccessError, folder,
                        {Words("Import", "A folder with at most 10000 files was expected.")});
    }
  }
  if (error) throw RunTimeError::FromErrno(error.value(), folder);
  std::sort(files.begin(), files.end());
  for (const std::string& file : files) {
    OpenFile open(file, OpenRegular(file));
    take({.name = file, .isGiven = false, .bytes = &open});
  }
}

}  // namespace

void ForEachInput(const std::vector<std::string>& paths, const Take& take) {
  for (const std::string& path : paths) {
    std::error_code ignored;
    if (path == "-") {
      TakeGiven("standard input", FileHandle(fcntl(STDIN_FILENO, F_DUPFD_CLOEXEC, 0)), take);
    } else if (fs::is_directory(path, ignored)) {
      TakeFolder(path, take);
    } else {
      TakeGiven(path, OpenRegular(path), take);
    }
  }
}

}  // namespace folionet
