#pragma once

#include <sys/stat.h>

#include <string>
#include <string_view>

#include "FileHandle.h"

namespace folionet {

// What is done to the files of an open folder. A run does it, a plan asks whether it could be done: whatever a run may
// be refused is asked here, so that the two agree. Each routine gives 0, or what failed, or would fail, as a value of
// errno; the files are then as they were, but for Overwrite.
class FileChanges {
 public:
  virtual ~FileChanges() = default;

  // Makes a file; EEXIST when there is one of that name. `like` has the mode and the times that it gets, if any.
  virtual int Make(int folder, const std::string& name, std::string_view bytes, const struct stat* like) = 0;

  // Puts a file of the same name and mode in the place of the one that `old` is of, by a rename.
  virtual int Replace(int folder, const std::string& name, std::string_view bytes, const struct stat& old) = 0;

  // Gives an open file other bytes; they may be there in part when that fails.
  virtual int Overwrite(const FileHandle& file, std::string_view bytes, const struct stat& old) = 0;

  // Takes away the file that `old` is of, or gives it the name `newName` in the folder, which is free.
  virtual int Remove(int folder, const std::string& name, const struct stat& old) = 0;
  virtual int Rename(int folder, const std::string& name, const struct stat& old, const std::string& newName) = 0;
};

// The name of a file on its way to replace another. What a killed program left of one is taken away.
inline constexpr char kOnItsWay[] = ".folionet-new";

// Whether something else bears that name in a folder, so that none can be replaced.
bool IsWayBlocked(int folder);

}  // namespace folionet
