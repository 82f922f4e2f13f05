#pragma once

#include <string>
#include <string_view>

#include "FileChanges.h"

namespace folionet {

// Asks whether files could be changed, and leaves all of them as they are. A folder that is not open will be a new one,
// in which everything can be done.
class FilePlan : public FileChanges {
 public:
  int Make(int folder, const std::string& name, std::string_view bytes, const struct stat* like) override;
  int Replace(int folder, const std::string& name, std::string_view bytes, const struct stat& old) override;
  int Overwrite(const FileHandle& file, std::string_view bytes, const struct stat& old) override;
  int Remove(int folder, const std::string& name, const struct stat& old) override;
  int Rename(int folder, const std::string& name, const struct stat& old, const std::string& newName) override;
};

}  // namespace folionet
