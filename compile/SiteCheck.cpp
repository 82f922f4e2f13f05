#include "SiteCheck.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <optional>
#include <set>
#include <string_view>
#include <system_error>
#include <unordered_map>
#include <utility>

#include "CharacterReferences.h"
#include "CodePage.h"
#include "PageLinks.h"
#include "Paths.h"
#include "RunTimeError.h"
#include "StyleLinks.h"
#include "WholeFile.h"

namespace folionet {
namespace {

bool HasExtension(std::string_view name, std::string_view extension) {
  return name.size() > extension.size() && EqualIgnoringCase(name.substr(name.size() - extension.size()), extension);
}

bool IsPage(std::string_view name) { return HasExtension(name, ".html") || HasExtension(name, ".htm"); }

bool IsSheet(std::string_view name) { return HasExtension(name, ".css"); }

// Of a path from the folder of the site: the folder that it is in, with "/" at its end; empty for that folder itself.
std::string_view FolderOf(std::string_view path) { return path.substr(0, path.rfind('/') + 1); }

// The path from the folder of the site that a link's target leads to, without "." and ".."; it ends in "/" when it must
// be a folder, and is "./" for the folder of the site. Nothing when it leads out of that folder.
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
    m_indexName = indexName;
    for (const std::string& name : m_names) {
      if (IsPage(name) && !FolderExists(m_folder + name) && m_taken.insert(name).second) m_waiting.push_back(name);
    }
    ReadWaiting();
    FindUnreachable();
    return std::move(m_report);
  }

 private:
  // Where a link leads to.
  struct Goal {
    std::optional<LinkFault> fault{};
    std::string otherCase{};  // of kOtherCase
    std::string file{};       // the page of a folder, or the path itself
  };

  // A page or a style sheet that is at hand.
  struct Source {
    const std::string& path;
    std::set<std::string>& linked;
  };

  void ReadWaiting() {
    for (std::size_t i = 0; i < m_waiting.size(); ++i) ReadFile(std::string(m_waiting[i]));
  }

  void ReadFile(const std::string& path) {
    std::string bytes;
    try {
      bytes = ReadWholeFile(m_folder + path);
    } catch (const RunTimeError& error) {
      if (path == m_indexName) throw;
      m_report.unread.push_back({path, std::string(StandardMessage(error.Number()))});
    }
    if (IsPage(path)) {
      ++m_report.pages;
      FollowPage({path, m_linked[path]}, bytes);
    } else {
      const CodePage codePage(IsUtf8(bytes) ? "utf-8" : "windows-1252");
      FollowAll({path, m_linked[path]}, FindStyleLinks(codePage.Decode(bytes)), 1);
    }
  }

  void FollowPage(const Source& page, const std::string& bytes) {
    const CodePage codePage(FindPageCharset(bytes));
    for (const PageLink& link : FindPageLinks(bytes)) {
      const std::string text = codePage.Decode(link.value);
      switch (link.form) {
        case LinkForm::kAddress:
          Follow(page, {WithoutCharacterReferences(text), link.line}, codePage.DecodeForDisplay(link.value));
          break;
        case LinkForm::kPictureSet:
          FollowAll(page, FindPictures(WithoutCharacterReferences(text)), link.line);
          break;
        case LinkForm::kStyle:
          FollowAll(page, FindStyleLinks(WithoutCharacterReferences(text)), link.line);
          break;
        case LinkForm::kSheet:
          FollowAll(page, FindStyleLinks(text), link.line);
          break;
      }
    }
  }

  void FollowAll(const Source& source, const std::vector<StyleLink>& links, std::size_t firstLine) {
    for (const StyleLink& link : links) Follow(source, {link.address, firstLine + link.line}, link.address);
  }

  void Follow(const Source& source, const StyleLink& link, const std::string& shown) {
    const std::string target = LocalTarget(link.address);
    if (target.empty()) return;
    const auto path =
        target.starts_with('/') ? std::nullopt : PathInFolder(std::string(FolderOf(source.path)) + target);
    if (!path) {
      ++m_report.leadOut;
      return;
    }
    ++m_report.links;
    const Goal& goal = FindGoal(*path);
    if (goal.fault) {
      m_report.broken.push_back({source.path, link.line, shown, *goal.fault, goal.otherCase});
    } else {
      source.linked.insert(goal.file);
    }
  }

  // Remembers each goal, since most pages lead to the same ones.
  const Goal& FindGoal(const std::string& path) {
    const auto [known, isNew] = m_goals.try_emplace(path);
    if (isNew) known->second = LookForGoal(path);
    return known->second;
  }

  Goal LookForGoal(const std::string& path) {
    if (path.find('\0') != std::string::npos) return {LinkFault::kMissing};
    if (path.find('\\') != std::string::npos && !m_names.contains(path)) return {LinkFault::kBackslash};
    const bool isExact = path.find('/') != std::string::npos || m_names.contains(path);
    std::error_code error;
    if (!isExact || !std::filesystem::exists(m_folder + path, error)) {
      const std::string other = LocateIgnoringCase(m_folder, path);
      if (!FileExists(other) && !FolderExists(other)) return {LinkFault::kMissing};
      return {LinkFault::kOtherCase, other.substr(m_folder.size())};
    }
    Goal goal{std::nullopt, {}, path};
    const bool isFolder = FolderExists(m_folder + path);
    if (isFolder) {
      const std::string folder = path == "./" ? std::string() : WithSeparator(path);
      goal.file = folder + FindIndexPage(m_folder + folder);
    }
    const bool isToRead = IsPage(goal.file) || IsSheet(goal.file);
    if (isToRead && !IsInLinkedFolder(goal.file)) {
      if (m_taken.insert(goal.file).second) m_waiting.push_back(goal.file);
    } else if (!isFolder && !FileExists(m_folder + path)) {
      goal.fault = LinkFault::kUnreadable;
    }
    return goal;
  }

  // Whether a folder on the way to a file is a symbolic link; the report then names it.
  bool IsInLinkedFolder(const std::string& path) {
    for (std::size_t slash = path.find('/'); slash != std::string::npos; slash = path.find('/', slash + 1)) {
      std::error_code error;
      const std::string folder = path.substr(0, slash);
      if (!std::filesystem::is_symlink(m_folder + folder, error)) continue;
      auto& named = m_report.linkedFolders;
      if (std::find(named.begin(), named.end(), folder) == named.end()) named.push_back(folder);
      return true;
    }
    return false;
  }

  void FindUnreachable() {
    std::set<std::string> reached{m_indexName};
    std::vector<std::string> waiting{m_indexName};
    while (!waiting.empty()) {
      const std::string page = std::move(waiting.back());
      waiting.pop_back();
      for (const std::string& target : m_linked[page]) {
        if (m_linked.contains(target) && reached.insert(target).second) waiting.push_back(target);
      }
    }
    for (const auto& [page, links] : m_linked) {
      if (IsPage(page) && !reached.contains(page)) m_report.unreachable.push_back(page);
    }
  }

  std::string m_folder;
  std::string m_indexName;
  std::set<std::string> m_names;
  std::unordered_map<std::string, Goal> m_goals;          // of each path that a link has
  std::vector<std::string> m_waiting;                     // the pages and style sheets to read, in their order
  std::set<std::string> m_taken;                          // those that are in m_waiting
  std::map<std::string, std::set<std::string>> m_linked;  // the files of the site that each of them names
  SiteReport m_report;
};

}  // namespace

std::string FaultText(const BrokenLink& link) {
  switch (link.fault) {
    case LinkFault::kOtherCase:
      return "is there in another letter case only, " + link.otherCase;
    case LinkFault::kBackslash:
      return "holds \"\\\", which no address does";
    case LinkFault::kUnreadable:
      return "cannot be read";
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
