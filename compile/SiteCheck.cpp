#include "SiteCheck.h"

#include <filesystem>
#include <map>
#include <optional>
#include <set>
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
      ++m_report.links;
      std::string otherCase;
      if (const auto fault = FindFault(target, otherCase)) {
        m_report.broken.push_back({name, link.line, codePage.DecodeForDisplay(link.value), *fault, otherCase});
      } else {
        linked.insert(target);
      }
    }
  }

  // Why there is no file behind a link; nothing when there is one.
  std::optional<LinkFault> FindFault(const std::string& target, std::string& otherCase) const {
    if (m_names.contains(target)) return std::nullopt;
    if (target.front() == '/' || std::filesystem::path(target).lexically_normal().string().starts_with("..")) {
      return LinkFault::kLeadsOut;
    }
    if (target.find('\\') != std::string::npos) return LinkFault::kBackslash;
    if (target.find('/') != std::string::npos && FileExists(m_folder + target)) return std::nullopt;
    const std::string other = LocateIgnoringCase(m_folder, target);
    if (!FileExists(other)) return LinkFault::kMissing;
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
    case LinkFault::kLeadsOut:
      return "leads out of the folder";
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
