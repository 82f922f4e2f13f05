#include "FileSet.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>

#include "FileHandle.h"
#include "RunTimeError.h"
#include "WholeFile.h"

namespace folionet {
namespace {

std::string NewOf(const std::string& path) { return path + ".new"; }
std::string OldOf(const std::string& path) { return path + ".old"; }

// Holds back the signals that end a program, so that none comes between two renames.
class SignalsHeld {
 public:
  SignalsHeld() {
    sigset_t held;
    sigemptyset(&held);
    for (const int signal : {SIGHUP, SIGINT, SIGQUIT, SIGTERM}) sigaddset(&held, signal);
    pthread_sigmask(SIG_BLOCK, &held, &m_before);
  }
  SignalsHeld(const SignalsHeld&) = delete;
  SignalsHeld& operator=(const SignalsHeld&) = delete;
  ~SignalsHeld() { pthread_sigmask(SIG_SETMASK, &m_before, nullptr); }

 private:
  sigset_t m_before{};
};

}  // namespace

FileSet::~FileSet() {
  for (const Change& change : m_changes) {
    if (!change.isDone) unlink(NewOf(change.path).c_str());
  }
}

void FileSet::Add(const std::string& path, std::string_view bytes) {
  const std::string fresh = NewOf(path);
  // What a killed run left goes; a name that was put there to lead elsewhere is not followed.
  unlink(fresh.c_str());
  FileHandle file = FileHandle::Open(fresh.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW, 0666);
  if (!file.IsOpen()) throw RunTimeError::FromErrno(errno, path);
  m_changes.push_back({path});
  struct stat status {};
  const bool isFile = lstat(path.c_str(), &status) != 0 || S_ISREG(status.st_mode) || S_ISLNK(status.st_mode);
  if (!isFile) throw RunTimeError(kPathFileAccessError, path, "It is not a regular file.");
  if (!WriteAll(file.Get(), bytes, 0) || fsync(file.Get()) != 0 || !file.Close()) {
    throw RunTimeError::FromErrno(errno, path);
  }
}

void FileSet::Commit() {
  const SignalsHeld held;
  try {
    for (Change& change : m_changes) TakePlace(change);
  } catch (const RunTimeError&) {
    TakeBack();
    throw;
  }
  for (const Change& change : m_changes) {
    if (change.hasOld) unlink(OldOf(change.path).c_str());
  }
}

void FileSet::TakePlace(Change& change) {
  const std::string old = OldOf(change.path);
  unlink(old.c_str());
  // Where the file system has no second names, as on a memory stick, the old file gives its own up.
  change.hasOld = link(change.path.c_str(), old.c_str()) == 0 ||
                  (errno != ENOENT && std::rename(change.path.c_str(), old.c_str()) == 0);
  if (!change.hasOld && errno != ENOENT) throw RunTimeError::FromErrno(errno, change.path);
  if (std::rename(NewOf(change.path).c_str(), change.path.c_str()) != 0) {
    throw RunTimeError::FromErrno(errno, change.path);
  }
  change.isDone = true;
}

void FileSet::TakeBack() {
  for (const Change& change : m_changes) {
    if (change.hasOld) {
      static_cast<void>(std::rename(OldOf(change.path).c_str(), change.path.c_str()));
      unlink(OldOf(change.path).c_str());  // two names of one file stay two
    } else if (change.isDone) {
      unlink(change.path.c_str());
    }
  }
}

}  // namespace folionet
