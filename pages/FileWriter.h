#pragma once

#include <string>
#include <string_view>

#include "FileChanges.h"

namespace folionet {

// Changes files. Nobody sees a part of a new one: Make gives it its name when it is whole, and a program that is killed
// before leaves nothing; where the file system knows no files without a name, it has it from the start. Replace is
// whole or nothing too, but a killed program may leave kOnItsWay. Overwrite is in place: who reads meanwhile may see a
// part.
class FileWriter : public FileChanges {
 public:
  int Make(int folder, const std::string& name, std::string_view bytes, const struct stat* like) override;
  int Replace(int folder, const std::string& name, std::string_view bytes, const struct stat& old) override;
  int Overwrite(const FileHandle& file, std::string_view bytes, const struct stat& old) override;
  int Remove(int folder, const std::string& name, const struct stat& old) override;
  int Rename(int folder, const std::string& name, const struct stat& old, const std::string& newName) override;

 private:
  FileHandle OpenNameless(int folder);
  bool GiveName(const FileHandle& file, int folder, const std::string& name);

  bool m_makesNameless = true;
  bool m_linksDescriptors = true;  // else by their path in /proc
};

}  // namespace folionet
