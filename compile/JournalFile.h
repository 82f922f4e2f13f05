#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "FileHandle.h"

namespace folionet {

// A file that is only added to, by way of memory that is the file's own: what was added is in it even when the program
// is killed, without a call of the system each time. While it is open, NUL characters stand behind its text.
class JournalFile {
 public:
  JournalFile() = default;
  JournalFile(const JournalFile&) = delete;
  JournalFile& operator=(const JournalFile&) = delete;
  ~JournalFile();  // takes the NUL characters away

  // Opens a regular file, or makes it; the first `whole` bytes of what it holds stay. No other program is to
  // write into it meanwhile. False with errno set.
  bool Open(const std::string& path, std::size_t whole);
  bool IsOpen() const { return m_file.IsOpen(); }

  // Adds to the open file. False with errno set, and the file as it was.
  bool Add(std::string_view text);

 private:
  bool MakeRoom(std::size_t size);
  void Unmap();

  FileHandle m_file;
  char* m_text = nullptr;
  std::size_t m_size = 0;
  std::size_t m_room = 0;
};

}  // namespace folionet
