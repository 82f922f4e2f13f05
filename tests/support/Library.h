#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "TemporaryFolder.h"

namespace folionet::test {

// A small library that compiles, in installation/, and a program's folder with a style sheet, in program/.
inline void MakeSmallLibrary(const TemporaryFolder& home) {
  std::filesystem::copy(std::string(SITE_CASES) + "/installation", home.Path() + "installation",
                        std::filesystem::copy_options::recursive);
  home.Write("program/default.css", "body { color: black }\r\n");
}

inline constexpr char kCatalogueFile[] = "installation/Sysdefs/Translations.txt";
inline constexpr char kTitlesFile[] = "installation/Sysdefs/BOOKS.TXT";
inline constexpr char kIndexFile[] = "installation/Index/KJV.TXT.INDEX";
inline constexpr char kVersesFile[] = "installation/Modules/Bible/KJV.TXT";

// A library without a fault in the same places: 66 books with one chapter of two verses each.
inline void MakeLibraryOf66Books(const TemporaryFolder& home) {
  std::string titles;
  std::string verses;
  std::string index;
  for (int book = 1; book <= 66; ++book) {
    const std::string number = std::to_string(book);
    titles += number + "\tB" + number + "\tBook " + number + "\r\n";
    for (const char* verse : {"1", "2"}) verses += "0\t" + number + "\t1\t" + verse + "\tText\r\n";
    index += "0,0," + number + ",1,2,0,\"\"\r\n";
  }
  home.Write(kTitlesFile, titles);
  home.Write(kCatalogueFile, "1,0,\"A Bible\",\"KJV\"\r\n");
  home.Write(kIndexFile, index);
  home.Write(kVersesFile, verses);
}

using Command = std::vector<std::string>;

inline Command With(Command before, const Command& command) {
  before.insert(before.end(), command.begin(), command.end());
  return before;
}

// Compiles the library of the folder that it is run in; what it needs beyond that follows.
inline Command CompileCommand(const Command& more) {
  return With({FOLIONET_CLI, "compile", "--versalia-path", "installation", "--module-path", "installation/Modules",
               "--program-folder", "program"},
              more);
}

// Compiles it into out/.
inline Command CompileSmall(const Command& more = {}) {
  return CompileCommand(With({"--output=out", "--index-address=index.html"}, more));
}

}  // namespace folionet::test
