#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "FileHandle.h"

namespace folionet {

// A file that is only added to. What was added is in it even when the program is killed.
class JournalFile {
 public:
  // Opens a regular file, or makes it; the first `whole` bytes of what it holds stay. No other program is to
  // write into it meanwhile: it is locked, and EBUSY where another one has it. False with errno set.
  bool Open(const std::string& path, std::size_t whole);
  bool IsOpen() const { return m_file.IsOpen(); }

  // Adds to the open file. False with errno set, and the file as it was.
  bool Add(std::string_view text);

  // Whether the open file holds all that was added: another program may have cut it, and there are NUL characters then
  // in the place of what is lost.
  bool IsWhole() const;

 private:
  FileHandle m_file;
  std::size_t m_size = 0;
};

}  // namespace folionet
