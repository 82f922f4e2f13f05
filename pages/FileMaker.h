#pragma once

#include <sys/types.h>

#include <string>
#include <string_view>

#include "FileHandle.h"

namespace folionet {

// Makes files in an open folder so that nobody sees a part of one: it gets its name when it is whole, and a program
// that is killed before leaves nothing. Where the file system knows no files without a name, it has it from the start.
class FileMaker {
 public:
  // 0, EEXIST when there is such a file already, or what failed as a value of errno; nothing is then left of it.
  // `mode` 0 is the usual one.
  int Make(int folder, const std::string& name, std::string_view bytes, mode_t mode = 0);

  // Puts a file of that name and mode in the place of the one that is there, by a rename. 0 or a value of errno; the
  // old file then stands.
  int Replace(int folder, const std::string& name, std::string_view bytes, mode_t mode) const;

 private:
  FileHandle OpenNameless(int folder);
  bool GiveName(const FileHandle& file, int folder, const std::string& name);

  bool m_makesNameless = true;
  bool m_linksDescriptors = true;  // else by their path in /proc
};

}  // namespace folionet
