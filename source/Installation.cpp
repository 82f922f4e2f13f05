#include "Installation.h"

#include <filesystem>
#include <system_error>
#include <utility>

#include "OwnLibrary.h"
#include "Paths.h"
#include "StoredSettings.h"

namespace folionet {
namespace {

constexpr char kVersalia[] = "Versalia";
constexpr char kModulePath[] = "Module_Path";

bool IsStoredInstallation(const StoredSettings& store, const std::string& install) {
  std::error_code error;
  const std::string stored = NativePath(store.GetSetting(kVersalia, kModulePath, "VersaliaPath", ""));
  return std::filesystem::equivalent(NativePath(install), stored, error) && !error;
}

}  // namespace

void LocateInstallation(const StoredSettings& store, const GivenFolders& given, ModGlob& glob) {
  const auto folder = [&](const std::string& chosen, const char* key) {
    return chosen.empty() ? store.GetSetting(kVersalia, kModulePath, key, "") : WithSeparator(chosen);
  };
  std::string install = folder(given.versaliaPath, "VersaliaPath");
  const std::string imported = OwnLibraryFolder();
  const bool isUnknown = install.empty() && given.modulePath.empty();
  if (isUnknown && FolderExists(imported) && folder({}, "ModulePath").empty()) install = imported;
  // The stored module folder belongs to the stored installation: one that was given has its own, if anything.
  const std::string own =
      install.empty() ? std::string() : WithSeparator(LocateIgnoringCase(WithSeparator(install), "Modules"));
  const bool isGivenAlone = !given.versaliaPath.empty() && given.modulePath.empty();
  const bool isOwn = isGivenAlone && (FolderExists(own) || !IsStoredInstallation(store, install));
  std::string modules = isOwn ? own : folder(given.modulePath, "ModulePath");
  if (modules.empty()) modules = own;
  SetInstallation(glob, std::move(install), std::move(modules), "Sysdefs");
}

void SetInstallation(ModGlob& glob, std::string installPath, std::string modulesPath, std::string_view sysdefs) {
  glob.InstallPath = std::move(installPath);
  glob.ModulesPath = std::move(modulesPath);
  glob.SysdefsPath = glob.InstallPath + std::string(sysdefs) + kFolderSeparator;
}

std::string SysdefsFile(const ModGlob& glob, std::string_view fileName) {
  const std::string folder = glob.SysdefsPath.substr(glob.InstallPath.size());
  return LocateIgnoringCase(glob.InstallPath, folder + std::string(fileName));
}

std::string VerseFile(const ModGlob& glob, const CodePage& codePage, std::string_view stem) {
  FolderLister folders;
  return VerseFile(glob, codePage, stem, folders);
}

std::string VerseFile(const ModGlob& glob, const CodePage& codePage, std::string_view stem, FolderLister& folders) {
  return folders.Locate(glob.ModulesPath, "Bible/" + codePage.Decode(stem) + ".TXT");
}

std::string IndexFile(const ModGlob& glob, const CodePage& codePage, std::string_view stem) {
  return LocateIgnoringCase(glob.InstallPath, "Index/" + codePage.Decode(stem) + ".TXT.INDEX");
}

}  // namespace folionet
