#include "FileLock.h"

#include <sys/file.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>

#include <cerrno>
#include <cstdio>
#include <fstream>
#include <optional>
#include <sstream>
#include <thread>

namespace folionet {
namespace {

// A file as /proc/locks names it: "fe:00:12345".
std::string NameInLocks(const struct stat& status) {
  std::ostringstream name;
  name.setf(std::ios::hex, std::ios::basefield);
  for (const unsigned part : {major(status.st_dev), minor(status.st_dev)}) {
    name << (part < 16 ? "0" : "") << part << ':';
  }
  name.setf(std::ios::dec, std::ios::basefield);
  name << status.st_ino;
  return name.str();
}

// Reads the lines "1: FLOCK  ADVISORY  WRITE 4711 fe:00:12345 0 EOF"; a number in the place of a process that is not
// seen from here is 0 or less.
std::optional<int> HoldingProcess(int descriptor) {
  struct stat status {};
  if (fstat(descriptor, &status) != 0) return std::nullopt;
  const std::string wanted = NameInLocks(status);
  std::ifstream locks("/proc/locks");
  for (std::string line; std::getline(locks, line);) {
    std::istringstream fields(line);
    std::string number;
    std::string kind;
    std::string mandatory;
    std::string access;
    std::string file;
    int process = 0;
    if (fields >> number >> kind >> mandatory >> access >> process >> file && kind == "FLOCK" && file == wanted &&
        process > 0) {
      return process;
    }
  }
  return std::nullopt;
}

// False when another program has a lock still that this one does not go with.
bool GetLock(int descriptor, int operation, std::chrono::milliseconds patience) {
  constexpr std::chrono::milliseconds kBetween(5);
  const auto end = std::chrono::steady_clock::now() + patience;
  while (flock(descriptor, operation | LOCK_NB) != 0) {
    if (errno == EINTR) continue;
    if (errno != EWOULDBLOCK) return true;
    if (std::chrono::steady_clock::now() >= end) return false;
    std::this_thread::sleep_for(kBetween);
  }
  return true;
}

}  // namespace

bool LockFile(int descriptor, std::chrono::milliseconds patience) { return GetLock(descriptor, LOCK_EX, patience); }

bool IsLockHeld(int descriptor, std::chrono::milliseconds patience) {
  if (!GetLock(descriptor, LOCK_SH, patience)) return true;
  flock(descriptor, LOCK_UN);
  return false;
}

std::string LockHolderName(int descriptor) {
  const std::optional<int> process = HoldingProcess(descriptor);
  if (!process) return "?";
  std::string name;
  std::getline(std::ifstream("/proc/" + std::to_string(*process) + "/comm"), name);
  return name + (name.empty() ? "" : " ") + "(process " + std::to_string(*process) + ")";
}

std::string LockHolder(int descriptor) {
  const std::string name = LockHolderName(descriptor);
  return name == "?" ? "Another program" : "Another program, " + name + ",";
}

}  // namespace folionet
