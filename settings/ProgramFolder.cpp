#include "ProgramFolder.h"

#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <filesystem>
#include <system_error>

#include "BuildInfo.h"
#include "OwnLibrary.h"
#include "Paths.h"
#include "RunTimeError.h"
#include "WholeFile.h"

namespace folionet {
namespace {

// A file that cannot be opened, or a link that leads nowhere, is the person's all the same.
bool IsNameTaken(const std::string& path) {
  struct stat status {};
  return lstat(path.c_str(), &status) == 0 || (errno != ENOENT && errno != ENOTDIR);
}

// Where the delivered files are that a person's own folder is filled from: beside the program, as in a build that
// belongs to somebody else, or where an installation, moved or not, has them.
std::string InstalledDataFolder() {
  if (FileExists(ExecutableFolder() + "default.css")) return ExecutableFolder();
  const std::string beside = ExecutableFolder() + "../share/folionet/";
  return FileExists(beside + "default.css") ? beside : std::string(FOLIONET_DATA_FOLDER) + "/";
}

std::string UserDataFolder() {
  const std::string folder = UserFolder("XDG_DATA_HOME", ".local/share");
  return folder.empty() ? folder : folder + kApplicationTitle + "/";
}

}  // namespace

std::string OwnLibraryFolder() {
  const std::string folder = UserDataFolder();
  return folder.empty() ? folder : folder + "library/";
}

std::string ExecutableFolder() {
  std::error_code error;
  const std::filesystem::path path = std::filesystem::read_symlink("/proc/self/exe", error);
  return error ? "./" : path.parent_path().string() + "/";
}

namespace {

std::string ProgramFolderPath(const std::string& chosen) {
  if (!chosen.empty()) return WithSeparator(NativePath(chosen));
  const std::string own = ExecutableFolder();
  return IsNameTaken(own + "default.css") && access(own.c_str(), W_OK) == 0 ? own : UserDataFolder();
}

}  // namespace

std::string MissingFolder(const std::string& chosen) {
  return chosen.empty() || FolderExists(chosen) ? std::string() : "there is no folder \"" + chosen + "\"";
}

void DeliverFiles(const std::string& from, const std::string& folder) {
  for (const std::string name : {"default.css", "lang.txt", "enc.txt"}) {
    if (!IsNameTaken(folder + name)) ReplaceWholeFile(folder + name, ReadWholeFile(from + name));
  }
}

std::string FindProgramFolder(const std::string& chosen) {
  std::string folder = ProgramFolderPath(chosen);
  if (folder.empty()) return InstalledDataFolder();
  if (!chosen.empty() || folder == ExecutableFolder()) return folder;
  std::error_code error;
  std::filesystem::create_directories(folder, error);
  if (error) throw RunTimeError::FromErrno(error.value(), folder).About(Subject::kProgramFolder);
  WorkAbout(Subject::kProgramFolder, [&] { DeliverFiles(InstalledDataFolder(), folder); });
  return folder;
}

std::string ProgramFolderToRead(const std::string& chosen) {
  const std::string folder = ProgramFolderPath(chosen);
  return chosen.empty() && !FolderExists(folder) ? InstalledDataFolder() : folder;
}

}  // namespace folionet
