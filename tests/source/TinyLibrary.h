#pragma once

#include <string>

#include "Installation.h"
#include "TemporaryFolder.h"
#include "modGlob.h"

namespace folionet::test {

// 66 lines of book titles: "1<TAB>B1<TAB>Book 1" and so on.
inline std::string TitleLines(int count = kBooks) {
  std::string lines;
  for (int i = 1; i <= count; ++i) {
    const std::string number = std::to_string(i);
    lines += number + "\tB" + number + "\tBook " + number + "\r\n";
  }
  return lines;
}

// A library folder whose files a test writes, with the folders set in `glob`.
struct TinyLibrary {
  TinyLibrary() { SetInstallation(glob, folder.Path(), folder.Path() + "Modules/", "Sysdefs"); }

  TemporaryFolder folder;
  ModGlob glob;
};

}  // namespace folionet::test
