#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace folionet {

// New contents of several files, which take their places together or not at all: each is written beside its file, as
// "<path>.new", and all are renamed when the last is safe on the disk. A failure, and a signal that ends the program,
// leave the files as they were.
class FileSet {
 public:
  FileSet() = default;
  FileSet(const FileSet&) = delete;
  FileSet& operator=(const FileSet&) = delete;
  ~FileSet();

  // Writes the new content of a file. Throws RunTimeError.
  void Add(const std::string& path, std::string_view bytes);

  // Gives all files their new content, in the order in which they were added. Throws RunTimeError.
  void Commit();

 private:
  struct Change {
    std::string path;
    bool hasOld = false;  // "<path>.old" is what stood there
    bool isDone = false;
  };

  void TakePlace(Change& change);
  void TakeBack();

  std::vector<Change> m_changes;
};

}  // namespace folionet
