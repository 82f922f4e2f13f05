#pragma once

#include <fcntl.h>

#include <map>
#include <string>
#include <string_view>

namespace folionet {

// Looks for files ignoring letter case, paths starting from the open folder `at`. Each folder is listed once in the
// life of a lister, so that thousands of names that are not there cost no more than one; make a new one where the
// folders may have changed.
class FolderLister {
 public:
  explicit FolderLister(int at = AT_FDCWD) : m_at(at) {}

  // As LocateIgnoringCase.
  std::string Locate(const std::string& folder, std::string_view name);

 private:
  using Entries = std::map<std::string, std::string>;  // the first name of each, by the name without letter case

  const Entries& EntriesOf(const std::string& folder);

  bool IsThere(const std::string& path) const;

  int m_at;
  std::map<std::string, Entries> m_folders;
};

}  // namespace folionet
