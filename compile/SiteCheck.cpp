#include "SiteCheck.h"

#include <algorithm>
#include <map>
#include <optional>
#include <set>
#include <string_view>
#include <utility>

#include "CodePage.h"
#include "PageLinks.h"
#include "Paths.h"
#include "RunTimeError.h"
#include "WholeFile.h"

namespace folionet {
namespace {

bool IsPage(const std::string& name) {
  for (const std::string_view extension : {".html", ".htm"}) {
    if (name.size() > extension.size() &&
        EqualIgnoringCase(std::string_view(name).substr(name.size() - extension.size()), extension)) {
      return true;
    }
  }
  return false;
}

// The path that a link's target leads to, without "." and ".."; it ends in "/" when it must be a folder, and is "./"
// for the folder of the pages. Nothing when it leads out of that folder.
std::optional<std::string> PathInFolder(std::string_view target) {
  if (target.starts_with('/')) return std::nullopt;
  std::vector<std::string_view> parts;
  bool isFolder = false;
  for (std::size_t start = 0; start <= target.size();) {
    const std::size_t end = std::min(target.find('/', start), target.size());
    const std::string_view part = target.substr(start, end - start);
    isFolder = part.empty() || part == "." || part == "..";
    if (part == "..") {
      if (parts.empty()) return std::nullopt;
      parts.pop_back();
    } else if (!isFolder) {
      parts.push_back(part);
    }
    start = end + 1;
  }
  std::string path;
  for (const std::string_view part : parts) path.append(path.empty() ? "" : "/").append(part);
  if (path.empty()) return "./";
  return isFolder ? path + "/" : path;
}

class SiteChecker {
 public:
  explicit SiteChecker(const std::string& folder) : m_folder(WithSeparator(NativePath(folder))) {
    for (std::string& name : ListFolder(m_folder)) m_names.insert(std::move(name));
  }

  SiteReport Check(const std::string& indexName) {
    if (!m_names.contains(indexName)) {
      throw RunTimeError(kFileNotFound, m_folder + indexName, "There is no such index page.");
    }
    for (const std::string& name : m_names) {
      if (IsPage(name) && FileExists(m_folder + name)) ReadPage(name);
    }
    m_report.pages = m_linked.size();
    FindUnreachable(indexName);
    return std::move(m_report);
  }

 private:
  void ReadPage(const std::string& name) {
    const std::string page = ReadWholeFile(m_folder + name);
    const CodePage codePage(FindPageCharset(page));
    std::set<std::string>& linked = m_linked[name];
    for (const PageLink& link : FindPageLinks(page)) {
      const std::string shown = codePage.Decode(link.value);
      const std::string target = LocalTarget(shown);
      if (target.empty()) continue;
      const auto path = PathInFolder(target);
      if (!path) {
        ++m_report.leadOut;
        continue;
      }
      ++m_report.links;
      std::string otherCase;
      if (const auto fault = FindFault(*path, otherCase)) {
        m_report.broken.push_back({name, link.line, codePage.DecodeForDisplay(link.value), *fault, otherCase});
      } else {
        linked.insert(*path == "./" ? FindIndexPage(m_folder) : *path);
      }
    }
  }

  // Why there is no file behind a link; nothing when there is one.
  std::optional<LinkFault> FindFault(const std::string& path, std::string& otherCase) const {
    if (m_names.contains(path)) return std::nullopt;
    if (path.find('\0') != std::string::npos) return LinkFault::kMissing;
    if (path.find('\\') != std::string::npos) return LinkFault::kBackslash;
    const bool below = path.find('/') != std::string::npos;
    if (below && (FolderExists(m_folder + path) || FileExists(m_folder + path))) return std::nullopt;
    const std::string other = LocateIgnoringCase(m_folder, path);
    if (!FileExists(other) && !FolderExists(other)) return LinkFault::kMissing;
    otherCase = other.substr(m_folder.size());
    return LinkFault::kOtherCase;
  }

  void FindUnreachable(const std::string& indexName) {
    std::set<std::string> reached{indexName};
    std::vector<std::string> waiting{indexName};
    while (!waiting.empty()) {
      const std::string page = std::move(waiting.back());
      waiting.pop_back();
      for (const std::string& target : m_linked[page]) {
        if (m_linked.contains(target) && reached.insert(target).second) waiting.push_back(target);
      }
    }
    for (const auto& [page, links] : m_linked) {
      if (!reached.contains(page)) m_report.unreachable.push_back(page);
    }
  }

  std::string m_folder;
  std::set<std::string> m_names;
  std::map<std::string, std::set<std::string>> m_linked;  // the files of the site that each page names
  SiteReport m_report;
};

}  // namespace

std::string FaultText(const BrokenLink& link) {
  switch (link.fault) {
    case LinkFault::kOtherCase:
      return "is there in another letter case only, " + link.otherCase;
    case LinkFault::kBackslash:
      return "holds \"\\\", which no address does";
    case LinkFault::kMissing:
      break;
  }
  return "is not there";
}

SiteReport CheckSite(const std::string& folder, const std::string& indexName) {
  return SiteChecker(folder).Check(indexName);
}

std::string FindIndexPage(const std::string& folder) {
  for (const char* name : {"index.html", "index.htm"}) {
    if (FileExists(WithSeparator(NativePath(folder)) + name)) return name;
  }
  return {};
}

}  // namespace folionet
