#include "Installation.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>
#include <vector>

#include "FileNames.h"
#include "Paths.h"
#include "ProgramFolder.h"
#include "StoredSettings.h"
#include "Utf8.h"

namespace folionet {
namespace {

constexpr char kVersalia[] = "Versalia";
constexpr char kModulePath[] = "Module_Path";

bool IsStoredInstallation(const StoredSettings& store, const std::string& install) {
  std::error_code error;
  const std::string stored = NativePath(store.GetSetting(kVersalia, kModulePath, "VersaliaPath", ""));
  return std::filesystem::equivalent(NativePath(install), stored, error) && !error;
}

// A stem as it may stand on disk. The catalogue is in the code page of the computer that Versalia has run on, which
// need not be that of the pages: theirs comes first, and the others only where there is no such file.
std::vector<std::string> NamesOf(std::string_view stem, const CodePage& codePage, const char* ending) {
  std::vector<std::string> names{codePage.Decode(stem) + ending};
  if (IsAscii(stem)) return names;
  names.push_back(std::string(stem) + ending);
  for (const char* charset :
       {"windows-1252", "windows-1250", "windows-1251", "windows-1253", "windows-1254", "windows-1255", "windows-1256",
        "windows-1257", "windows-1258", "windows-874", "shift_jis", "gbk", "euc-kr", "big5"}) {
    names.push_back(CodePage(charset).Decode(stem) + ending);
  }
  // In another code page the bytes of a letter may be a separator.
  const auto leadsOut = [](const std::string& name) { return name.find_first_of("/\\") != std::string::npos; };
  names.erase(std::remove_if(names.begin() + 1, names.end(), leadsOut), names.end());
  return names;
}

// The first of a stem's files that is there, in a folder below `base`; where the first should be when none is.
std::string FileOfStem(const std::string& base, const std::string& folder, const std::vector<std::string>& names,
                       FolderLister& folders) {
  for (const std::string& name : names) {
    std::string path = folders.Locate(base, folder + name);
    if (!IsMissing(path)) return path;
  }
  return folders.Locate(base, folder + names.front());
}

}  // namespace

void LocateInstallation(const StoredSettings& store, const GivenFolders& given, ModGlob& glob) {
  const auto folder = [&](const std::string& chosen, const char* key) {
    return chosen.empty() ? store.GetSetting(kVersalia, kModulePath, key, "") : WithSeparator(chosen);
  };
  std::string install = folder(given.versaliaPath, "VersaliaPath");
  const std::string imported = OwnLibraryFolder();
  const bool isUnknown = install.empty() && given.modulePath.empty();
  if (isUnknown && !imported.empty() && FolderExists(imported) && folder({}, "ModulePath").empty()) install = imported;
  // The stored module folder belongs to the stored installation: one that was given has its own, if anything.
  const std::string own =
      install.empty() ? std::string() : WithSeparator(LocateIgnoringCase(WithSeparator(install), "Modules"));
  const bool isGivenAlone = !given.versaliaPath.empty() && given.modulePath.empty();
  const bool isOwn = isGivenAlone && (FolderExists(own) || !IsStoredInstallation(store, install));
  std::string modules = isOwn ? own : folder(given.modulePath, "ModulePath");
  const bool isOtherCase = !FolderExists(modules) && EqualIgnoringCase(NativePath(modules), own);
  if (modules.empty() || isOtherCase) modules = own;
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
  return FileOfStem(glob.ModulesPath, kVerseFolder, NamesOf(stem, codePage, kVerseEnding), folders);
}

std::string IndexFile(const ModGlob& glob, const CodePage& codePage, std::string_view stem) {
  FolderLister folders;
  return FileOfStem(glob.InstallPath, kIndexFolder, NamesOf(stem, codePage, kIndexEnding), folders);
}

}  // namespace folionet
