#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "ProgramRun.h"
#include "TemporaryFolder.h"

namespace folionet::test {

// A small library that compiles, in installation/, and a program's folder with a style sheet, in program/.
inline void MakeSmallLibrary(const TemporaryFolder& home) {
  std::filesystem::copy(std::string(SITE_CASES) + "/defaults/installation", home.Path() + "installation",
                        std::filesystem::copy_options::recursive);
  home.Write("program/default.css", "body { color: black }\r\n");
}

inline constexpr char kCatalogueFile[] = "installation/Sysdefs/Translations.txt";
inline constexpr char kTitlesFile[] = "installation/Sysdefs/BOOKS.TXT";
inline constexpr char kIndexFile[] = "installation/Index/KJV.TXT.INDEX";
inline constexpr char kVersesFile[] = "installation/Modules/Bible/KJV.TXT";

// The command that compiles it into out/.
inline std::vector<std::string> CompileSmall(const std::vector<std::string>& more = {}) {
  std::vector<std::string> command{
      FOLIONET_CLI,           "compile",          "--versalia-path", "installation", "--module-path",
      "installation/Modules", "--program-folder", "program",         "--output=out", "--index-address=index.html"};
  command.insert(command.end(), more.begin(), more.end());
  return command;
}

}  // namespace folionet::test
