#include "ProgramFolder.h"

#include <fcntl.h>
#include <unistd.h>

#include <filesystem>
#include <system_error>

#include "BuildInfo.h"
#include "FileNames.h"
#include "Paths.h"
#include "RunTimeError.h"
#include "WholeFile.h"

namespace folionet {
namespace {

// Where the delivered files are that a person's own folder is filled from: beside the program, as in a build that
// belongs to somebody else, or where an installation, moved or not, has them.
std::string InstalledDataFolder() {
  if (FileExists(ExecutableFolder() + kStyleSheetFile)) return ExecutableFolder();
  const std::string beside = ExecutableFolder() + "../share/folionet/";
  return FileExists(beside + kStyleSheetFile) ? beside : std::string(FOLIONET_DATA_FOLDER) + "/";
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
  return MayBeThere(own + kStyleSheetFile) && access(own.c_str(), W_OK) == 0 ? own : UserDataFolder();
}

}  // namespace

std::string MissingFolder(const std::string& chosen) {
  return chosen.empty() || FolderExists(chosen) ? std::string() : "there is no folder \"" + chosen + "\"";
}

void DeliverFiles(const std::string& from, const std::string& folder, Doing doing) {
  for (const std::string name : {kStyleSheetFile, kLanguageList, kCharsetList}) {
    if (MayBeThere(folder + name)) continue;
    const std::string bytes = ReadWholeFile(from + name);
    if (doing == Doing::kChange) {
      ReplaceWholeFile(folder + name, bytes);
    } else if (const int systemError = FolderExists(folder) ? WhyNotMake(AT_FDCWD, folder + name) : 0) {
      throw RunTimeError::FromErrno(systemError, folder + name);
    }
  }
}

std::string FindProgramFolder(const std::string& chosen, Doing doing) {
  const std::string folder = ProgramFolderPath(chosen);
  if (folder.empty()) return InstalledDataFolder();
  if (!chosen.empty() || folder == ExecutableFolder()) return folder;
  WorkAbout(Subject::kProgramFolder, [&] {
    MakeFolders(folder, doing);
    DeliverFiles(InstalledDataFolder(), folder, doing);
  });
  return doing == Doing::kChange ? folder : ProgramFolderToRead(chosen);
}

std::string StyleSheetToRead(const std::string& chosen) {
  const std::string own = ProgramFolderPath(chosen) + kStyleSheetFile;
  return chosen.empty() && !MayBeThere(own) ? InstalledDataFolder() + kStyleSheetFile : own;
}

std::string ProgramFolderToRead(const std::string& chosen) {
  const std::string folder = ProgramFolderPath(chosen);
  return chosen.empty() && !FolderExists(folder) ? InstalledDataFolder() : folder;
}

}  // namespace folionet
