// A library to be preloaded into a program: it counts the program's calls to the file system that touch one folder and
// makes one of them go wrong. What it is to do stands in the environment:
//
//   FAULT_FOLDER  the folder, ending in "/"
//   FAULT_LOG     a file outside of it that gets a line for every call counted: its name, a blank, its path
//   FAULT_AT      the number of the call that goes wrong, from 1; 0 for none
//   FAULT_KIND    a value of errno to fail with; "short": half is read or written; "kill": the program is killed
//                 before the call; "torn": it is killed after half of the bytes are written; "stop15": it
//                 gets that signal, and the call is made; "swap": "here" and "there" in the folder change places
//                 before the call; "swap7": and do so again before the seventh one behind it
//   FAULT_NAMED   not empty: there are no files without a name, as some file systems know none
//
// It uses system calls directly, so that nothing it does itself is counted.

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>

namespace {

enum class Strike { kNone, kFail, kShort, kTorn };

class Plan {
 public:
  Plan() : m_folder(Variable("FAULT_FOLDER")), m_kind(Variable("FAULT_KIND")), m_at(std::atol(Variable("FAULT_AT"))) {
    m_log = static_cast<int>(syscall(SYS_openat, AT_FDCWD, Variable("FAULT_LOG"), O_WRONLY | O_APPEND | O_CLOEXEC, 0));
  }

  Strike Meet(std::string_view call, const std::string& path) {
    if (m_folder.empty() || !path.starts_with(m_folder)) return Strike::kNone;
    const std::string line = std::string(call) + " " + path + "\n";
    syscall(SYS_write, m_log, line.data(), line.size());
    const long behind = ++m_count - m_at;
    if (m_kind.starts_with("swap")) {
      if (behind == 0 || (behind > 0 && behind == std::atol(m_kind.c_str() + 4))) Swap();
      return Strike::kNone;
    }
    if (behind != 0) return Strike::kNone;
    if (m_kind == "short") return Strike::kShort;
    if (m_kind == "torn") return Strike::kTorn;
    if (m_kind == "kill") Kill();
    if (m_kind.starts_with("stop")) {
      syscall(SYS_kill, syscall(SYS_getpid), std::atoi(m_kind.c_str() + 4));
      return Strike::kNone;
    }
    errno = std::atoi(m_kind.c_str());
    return Strike::kFail;
  }

  static bool HasNameless() { return *Variable("FAULT_NAMED") == '\0'; }

  [[noreturn]] static void Kill() {
    syscall(SYS_kill, syscall(SYS_getpid), SIGKILL);
    for (;;) pause();
  }

 private:
  void Swap() const {
    const std::string here = m_folder + "here";
    const std::string there = m_folder + "there";
    syscall(SYS_renameat2, AT_FDCWD, here.c_str(), AT_FDCWD, there.c_str(), RENAME_EXCHANGE);
  }

  static const char* Variable(const char* name) {
    const char* value = std::getenv(name);
    return value != nullptr ? value : "";
  }

  std::string m_folder;
  std::string m_kind;
  long m_at;
  int m_log;
  std::atomic<long> m_count{0};
};

Plan& ThePlan() {
  static Plan plan;
  return plan;
}

std::string LinkText(const std::string& path) {
  std::array<char, PATH_MAX> buffer{};
  const long length = syscall(SYS_readlinkat, AT_FDCWD, path.c_str(), buffer.data(), buffer.size());
  return length < 0 ? std::string() : std::string(buffer.data(), static_cast<std::size_t>(length));
}

std::string PathOf(int descriptor) { return LinkText("/proc/self/fd/" + std::to_string(descriptor)); }

std::string PathAt(int folder, const char* path) {
  if (path[0] == '/') return path;
  return (folder == AT_FDCWD ? LinkText("/proc/self/cwd") : PathOf(folder)) + "/" + path;
}

bool Fails(std::string_view call, const std::string& path) {
  const int before = errno;
  const Strike strike = ThePlan().Meet(call, path);
  if (strike != Strike::kFail) errno = before;
  return strike == Strike::kFail;
}

// A file without a name has a mode too.
bool HasMode(int flags) { return (flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE; }

int Open(int folder, const char* path, int flags, mode_t mode) {
  if (Fails((flags & O_CREAT) != 0 ? "create" : "open", PathAt(folder, path))) return -1;
  if ((flags & O_TMPFILE) == O_TMPFILE && !Plan::HasNameless()) {
    errno = EOPNOTSUPP;
    return -1;
  }
  return static_cast<int>(syscall(SYS_openat, folder, path, flags, mode));
}

// Reads or writes through `number`, with what the plan has for it. `offset` is -1 for the file's own position.
template <typename Pointer>
ssize_t Transfer(std::string_view call, long number, int descriptor, Pointer bytes, std::size_t count, off_t offset) {
  const int before = errno;
  const Strike strike = ThePlan().Meet(call, PathOf(descriptor));
  if (strike == Strike::kFail) return -1;
  errno = before;
  if (strike != Strike::kNone && count > 1) count /= 2;
  const long done = offset < 0 ? syscall(number, descriptor, bytes, count)
                               : syscall(number, descriptor, bytes, count, static_cast<long>(offset));
  if (strike == Strike::kTorn) Plan::Kill();
  return done;
}

template <typename Function>
Function* Next(const char* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

}  // namespace

// The library's own names stand in the place of the C library's; each does what that one does. They are those that the
// programs call.
extern "C" {

int open(const char* path, int flags, ...) {
  va_list arguments;
  va_start(arguments, flags);
  const mode_t mode = HasMode(flags) ? va_arg(arguments, mode_t) : 0;
  va_end(arguments);
  return Open(AT_FDCWD, path, flags, mode);
}

int openat(int folder, const char* path, int flags, ...) {
  va_list arguments;
  va_start(arguments, flags);
  const mode_t mode = HasMode(flags) ? va_arg(arguments, mode_t) : 0;
  va_end(arguments);
  return Open(folder, path, flags, mode);
}

ssize_t read(int descriptor, void* bytes, std::size_t count) {
  return Transfer("read", SYS_read, descriptor, bytes, count, -1);
}
ssize_t write(int descriptor, const void* bytes, std::size_t count) {
  return Transfer("write", SYS_write, descriptor, bytes, count, -1);
}
ssize_t pread(int descriptor, void* bytes, std::size_t count, off_t offset) {
  return Transfer("read", SYS_pread64, descriptor, bytes, count, offset);
}
ssize_t pwrite(int descriptor, const void* bytes, std::size_t count, off_t offset) {
  return Transfer("write", SYS_pwrite64, descriptor, bytes, count, offset);
}

int ftruncate(int descriptor, off_t length) noexcept {
  if (Fails("ftruncate", PathOf(descriptor))) return -1;
  return static_cast<int>(syscall(SYS_ftruncate, descriptor, length));
}

// The descriptor is gone also when the call fails, as it is here.
int close(int descriptor) {
  const bool fails = Fails("close", PathOf(descriptor));
  const int error = errno;
  const int result = static_cast<int>(syscall(SYS_close, descriptor));
  if (!fails) return result;
  errno = error;
  return -1;
}

int fsync(int descriptor) {
  if (Fails("fsync", PathOf(descriptor))) return -1;
  return static_cast<int>(syscall(SYS_fsync, descriptor));
}

int unlink(const char* path) noexcept {
  if (Fails("unlink", PathAt(AT_FDCWD, path))) return -1;
  return static_cast<int>(syscall(SYS_unlinkat, AT_FDCWD, path, 0));
}

int unlinkat(int folder, const char* path, int flags) noexcept {
  if (Fails("unlink", PathAt(folder, path))) return -1;
  return static_cast<int>(syscall(SYS_unlinkat, folder, path, flags));
}

int renameat(int fromFolder, const char* from, int toFolder, const char* to) noexcept {
  if (Fails("rename", PathAt(toFolder, to))) return -1;
  return static_cast<int>(syscall(SYS_renameat2, fromFolder, from, toFolder, to, 0));
}

// A file that gets its name: by its descriptor, or by the path that /proc has for it.
int linkat(int fromFolder, const char* from, int toFolder, const char* to, int flags) noexcept {
  if (Fails("link", PathAt(toFolder, to))) return -1;
  return static_cast<int>(syscall(SYS_linkat, fromFolder, from, toFolder, to, flags));
}

int fstat(int descriptor, struct stat* status) noexcept {
  if (Fails("stat", PathOf(descriptor))) return -1;
  return static_cast<int>(syscall(SYS_newfstatat, descriptor, "", status, AT_EMPTY_PATH));
}

int fstatat(int folder, const char* path, struct stat* status, int flags) noexcept {
  if (Fails("stat", PathAt(folder, path))) return -1;
  return static_cast<int>(syscall(SYS_newfstatat, folder, path, status, flags));
}

int fchmod(int descriptor, mode_t mode) noexcept {
  if (Fails("chmod", PathOf(descriptor))) return -1;
  return static_cast<int>(syscall(SYS_fchmod, descriptor, mode));
}

// By another name here, which the linker does not see: a struct is called "flock" too.
int Lock(int descriptor, int operation) noexcept __asm__("flock");
int Lock(int descriptor, int operation) noexcept {
  if (Fails("lock", PathOf(descriptor))) return -1;
  return static_cast<int>(syscall(SYS_flock, descriptor, operation));
}

int mkdir(const char* path, mode_t mode) noexcept {
  if (Fails("mkdir", PathAt(AT_FDCWD, path))) return -1;
  return static_cast<int>(syscall(SYS_mkdirat, AT_FDCWD, path, mode));
}

struct dirent* readdir(DIR* folder) {
  if (Fails("readdir", PathOf(dirfd(folder)) + "/")) return nullptr;
  static auto* const real = Next<dirent*(DIR*)>("readdir");
  return real(folder);
}

}  // extern "C"
