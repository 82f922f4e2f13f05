#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace folionet {

// The bytes of a file, one after the other.
class ByteSource {
 public:
  virtual ~ByteSource() = default;

  // Reads up to `size` bytes, at least one; 0 at the end. Throws RunTimeError.
  virtual std::size_t Read(char* bytes, std::size_t size) = 0;
};

// A file that may be one of a Bible text.
struct InputFile {
  std::string name;      // its path; of one in an archive "texts.zip: GEN.usfm"
  bool isGiven = false;  // it was named itself, not its folder or archive
  ByteSource* bytes = nullptr;
};

// Gives each file that the paths stand for to `take`, in sorted order within a folder. A path is a file; a folder, with
// all that is in it; an archive (zip, tar, or one compressed file), which is known by its content; or "-", which is
// standard input and may be any of these but a folder. Throws RunTimeError: for what cannot be read, for an archive
// with a path that leads out of it, and for one that unpacks into more than any Bible needs.
void ForEachInput(const std::vector<std::string>& paths, const std::function<void(const InputFile&)>& take);

}  // namespace folionet
