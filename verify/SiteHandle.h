#pragma once

#include <map>
#include <string>
#include <vector>

#include "FileHandle.h"
#include "FileStamp.h"

namespace folionet {

// The folder of a written site, opened once: whatever its path leads to later, what is read, and perhaps removed, is in
// the folder that was opened. Paths start from it.
class SiteHandle {
 public:
  // `folder` ends in the separator. Throws RunTimeError.
  explicit SiteHandle(const std::string& folder);

  const std::string& Path() const { return m_path; }
  int Get() const { return m_folder.Get(); }

  // The names in the folder. Throws RunTimeError.
  std::vector<std::string> Names() const;

  bool IsThere(const std::string& path) const;
  bool IsFolder(const std::string& path) const;
  bool IsLink(const std::string& path) const;
  bool IsReadableFile(const std::string& path) const;

  // The bytes of a file. Throws RunTimeError.
  std::string Read(const std::string& path);

  // Whether no file was added to the folder or taken away since it was opened, and each that was read is as it was.
  bool IsAsItWasRead() const;

 private:
  std::string m_path;
  FileHandle m_folder;
  FileStamp m_stamp;
  std::map<std::string, FileStamp> m_read;
};

}  // namespace folionet
