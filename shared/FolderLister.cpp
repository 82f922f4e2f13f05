#include "FolderLister.h"

#include <sys/stat.h>

#include <algorithm>

#include "Paths.h"
#include "RunTimeError.h"
#include "Utf8.h"

namespace folionet {

bool FolderLister::IsThere(const std::string& path) const {
  struct stat status {};
  return fstatat(m_at, path.c_str(), &status, 0) == 0;
}

const FolderLister::Entries& FolderLister::EntriesOf(const std::string& folder) {
  const auto [place, isNew] = m_folders.try_emplace(folder);
  Entries& entries = place->second;
  if (!isNew) return entries;
  try {
    for (const std::string& name : ListFolder(folder, m_at)) entries.try_emplace(FoldCase(name), name);
  } catch (const RunTimeError&) {
    // A folder that cannot be listed holds no other name; opening the exact one tells why.
  }
  return entries;
}

std::string FolderLister::Locate(const std::string& folder, std::string_view name) {
  const std::string base = NativePath(folder);
  const std::string rest = NativePath(name);
  if (IsThere(base + rest)) return base + rest;
  std::string found = base;
  std::size_t at = 0;
  while (at < rest.size()) {
    const std::size_t slash = std::min(rest.find('/', at), rest.size());
    const std::string component = rest.substr(at, slash - at);
    if (component.empty() || IsThere(found + component)) {
      found += component;
    } else {
      const Entries& entries = EntriesOf(found.empty() ? "./" : found);
      const auto entry = entries.find(FoldCase(component));
      if (entry == entries.end()) return base + rest;
      found += entry->second;
    }
    if (slash < rest.size()) found += '/';
    at = slash + 1;
  }
  return found;
}

}  // namespace folionet
