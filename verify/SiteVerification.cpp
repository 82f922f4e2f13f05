#include "SiteVerification.h"

#include <algorithm>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "Addresses.h"
#include "CodePage.h"
#include "FolderLister.h"
#include "GeneratorLine.h"
#include "PageCharset.h"
#include "PageLinks.h"
#include "Paths.h"
#include "RunTimeError.h"
#include "SiteFindings.h"
#include "SiteHandle.h"
#include "StyleLinks.h"
#include "Text.h"
#include "Utf8.h"

namespace folionet {
namespace {

constexpr const char* kIndexPages[] = {"index.html", "index.htm"};

bool HasExtension(std::string_view name, std::string_view extension) {
  return name.size() > extension.size() && EqualIgnoringCase(name.substr(name.size() - extension.size()), extension);
}

bool IsSheet(std::string_view name) { return HasExtension(name, ".css"); }

// Of a path from the folder of the site: the folder that it is in, with "/" at its end; empty for that folder itself.
std::string_view FolderOf(std::string_view path) { return path.substr(0, path.rfind('/') + 1); }

// The path from the folder of the site that a link's target leads to, without "." and ".."; it ends in "/" when it must
// be a folder, and is "./" for the folder of the site. Nothing when it leads out of that folder.
std::optional<std::string> PathInFolder(std::string_view target) {
  if (target.starts_with('/')) return std::nullopt;
  std::vector<std::string_view> parts;
  bool isFolder = false;
  for (const std::string_view part : SplitAt(target, "/")) {
    isFolder = part.empty() || part == "." || part == "..";
    if (part == "..") {
      if (parts.empty()) return std::nullopt;
      parts.pop_back();
    } else if (!isFolder) {
      parts.push_back(part);
    }
  }
  std::string path;
  for (const std::string_view part : parts) path.append(path.empty() ? "" : "/").append(part);
  if (path.empty()) return "./";
  return isFolder ? path + "/" : path;
}

class SiteReader {
 public:
  explicit SiteReader(const SiteRequest& request)
      : m_request(request),
        m_site(std::make_shared<SiteHandle>(WithSeparator(NativePath(request.folder)))),
        m_lister(m_site->Get()),
        m_findings(request.words) {
    for (std::string& name : m_site->Names()) m_names.insert(std::move(name));
  }

  SiteReport Read() {
    const std::string& index = m_request.indexName;
    if (!m_names.contains(index)) {
      throw RunTimeError(kFileNotFound, m_site->Path() + index, "There is no such index page.");
    }
    for (const std::string& name : m_names) {
      if (IsHtmlName(name) && !m_site->IsFolder(name) && m_taken.insert(name).second) m_waiting.push_back(name);
    }
    ReadWaiting();
    std::stable_sort(m_broken.begin(), m_broken.end(),
                     [](const BrokenTarget& a, const BrokenTarget& b) { return a.pages > b.pages; });
    for (const BrokenTarget& broken : m_broken) m_findings.AddBroken(broken);
    TellUnread();
    if (m_report.isWhole) FindUnreached();
    m_findings.MoveTo(m_report);
    m_report.site = std::move(m_site);
    return std::move(m_report);
  }

 private:
  // Where a link leads to.
  struct Goal {
    std::optional<LinkFault> fault{};
    std::string otherCase{};  // of kOtherCase
    std::string file{};       // the index page of a folder, if it has one, or the path itself
    bool isFolder = false;
  };

  // A page or a style sheet that is at hand.
  struct Source {
    const std::string& path;
    std::set<std::string>& linked;
    std::optional<std::string> base{};  // the folder that its links start from; none when that is another site's
  };

  // An address of a page or a style sheet.
  struct Address {
    std::string_view text;  // as browsers read it
    std::size_t line;
    std::string written{};  // of a page's address: as the compile that wrote it took its bytes
    bool isPage = false;    // whether it may be a page's
  };

  void ReadWaiting() {
    while (m_read < m_waiting.size()) {
      m_report.isWhole = !m_request.goOn || m_request.goOn(m_read, m_waiting.size());
      if (!m_report.isWhole) return;
      ReadFile(std::string(m_waiting[m_read++]));
    }
  }

  void ReadFile(const std::string& path) {
    std::string bytes;
    try {
      bytes = m_site->Read(path);
    } catch (const RunTimeError& error) {
      if (path == m_request.indexName) throw;
      m_unread.emplace_back(path, StandardMessage(error.Number()));
    }
    if (IsUtf16(bytes)) {
      m_unread.emplace_back(path, std::string());
      bytes.clear();
    }
    if (IsHtmlName(path)) {
      ++m_report.pages;
      const bool isOurs = IsOurPage(std::string_view(bytes).substr(0, kGeneratorHead));
      if (isOurs && !m_site->IsLink(path)) m_ours.insert(path);
      FollowPage({path, m_linked[path]}, bytes);
    } else {
      const CodePage codePage(IsUtf8(bytes) ? "utf-8" : "windows-1252");
      const Source sheet{path, m_linked[path], std::string(FolderOf(path))};
      FollowAll(sheet, FindStyleLinks(codePage.DecodeForDisplay(bytes)), 1);
    }
  }

  void FollowPage(Source page, const std::string& bytes) {
    const CodePage codePage(FindPageCharset(bytes));
    const std::vector<PageLink> links = FindPageLinks(DecodePage(bytes, codePage));
    page.base = FindBase(page.path, links);
    for (const PageLink& link : links) {
      const std::string text = AsBrowsersRead(link.value);
      switch (link.form) {
        case LinkForm::kPage:
        case LinkForm::kFile:
          Follow(page, {text, link.line, AsItIsWritten(link.value), link.form == LinkForm::kPage});
          break;
        case LinkForm::kRefresh:
          Follow(page, {RefreshAddress(text), link.line, {}, true});
          break;
        case LinkForm::kBase:
          break;
        case LinkForm::kPictureSet:
          FollowAll(page, FindPictures(text), link.line);
          break;
        case LinkForm::kStyle:
          FollowAll(page, FindStyleLinks(text), link.line);
          break;
      }
    }
  }

  // The folder that the links of a page start from: its own, or that of its first "base".
  static std::optional<std::string> FindBase(const std::string& path, const std::vector<PageLink>& links) {
    const std::string own(FolderOf(path));
    const auto base =
        std::find_if(links.begin(), links.end(), [](const PageLink& link) { return link.form == LinkForm::kBase; });
    if (base == links.end()) return own;
    const std::string target = LocalTarget(base->value);
    if (IsElsewhere(base->value) || target.starts_with('/')) return std::nullopt;
    return own + std::string(FolderOf(target));
  }

  void FollowAll(const Source& source, const std::vector<StyleLink>& links, std::size_t firstLine) {
    for (const StyleLink& link : links) Follow(source, {link.address, firstLine + link.line});
  }

  void Follow(const Source& source, const Address& address) {
    const std::string target = LocalTarget(address.text);
    if (target.empty()) {
      // A title that begins with "#" or holds ":" makes such an address.
      const Goal goal = WhyMissing(source, address);
      if (goal.fault != LinkFault::kSign) return;
      ++m_report.links;
      AddBroken(source, address, goal);
      return;
    }
    const auto path = source.base && !target.starts_with('/') ? PathInFolder(*source.base + target) : std::nullopt;
    if (!path) {
      ++m_report.leadOut;
      return;
    }
    ++m_report.links;
    const Goal& goal = FindGoal(*path);
    if (!goal.fault && goal.isFolder && (!address.isPage || goal.file.empty())) {
      AddBroken(source, address, {address.isPage ? LinkFault::kFolder : LinkFault::kNoFile});
    } else if (!goal.fault) {
      source.linked.insert(goal.file);
    } else if (goal.fault == LinkFault::kMissing) {
      AddBroken(source, address, WhyMissing(source, address));
    } else {
      AddBroken(source, address, goal);
    }
  }

  // What keeps a browser from the file that a compile wrote for an address.
  Goal WhyMissing(const Source& source, const Address& address) const {
    if (source.base != std::string()) return {LinkFault::kMissing};
    const std::string name(address.text);
    const std::string target = LocalTarget(name);
    if (name != target && m_names.contains(name)) return {LinkFault::kSign, {}, name};
    if (target.empty()) return {LinkFault::kMissing};
    const std::string written = LocalTarget(address.written);
    if (written != target && m_names.contains(written)) return {LinkFault::kCharset, {}, written};
    return {name.find("\uFFFD") == std::string::npos ? LinkFault::kMissing : LinkFault::kCharset};
  }

  void AddBroken(const Source& source, const Address& address, const Goal& goal) {
    ++m_report.brokenLinks;
    const LinkFault fault = goal.fault.value_or(LinkFault::kMissing);
    const std::string target = LocalTarget(address.text);
    const std::string path = source.base.value_or("") + (target.empty() ? std::string(address.text) : target);
    const auto [known, isNew] =
        m_known.try_emplace({PathInFolder(path).value_or(path), fault}, m_broken.size(), std::string());
    auto& [at, lastPage] = known->second;
    if (isNew) {
      m_broken.push_back({std::string(address.text), fault, goal.otherCase, !address.isPage && !IsSheet(path),
                          source.path, address.line});
    }
    if (isNew || lastPage != source.path) ++m_broken[at].pages;
    lastPage = source.path;
    if (!goal.file.empty()) source.linked.insert(goal.file);
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
    if (!isExact || !m_site->IsThere(path)) {
      const std::string other = m_lister.Locate({}, path);
      if (!m_site->IsReadableFile(other) && !m_site->IsFolder(other)) return {LinkFault::kMissing};
      return {LinkFault::kOtherCase, other};
    }
    Goal goal{std::nullopt, {}, path, m_site->IsFolder(path)};
    if (goal.isFolder) {
      const std::string folder = path == "./" ? std::string() : WithSeparator(path);
      goal.file.clear();
      for (const char* name : kIndexPages) {
        if (goal.file.empty() && m_site->IsReadableFile(folder + name)) goal.file = folder + name;
      }
    }
    const bool isToRead = IsHtmlName(goal.file) || IsSheet(goal.file);
    if (isToRead && !IsInLinkedFolder(goal.file)) {
      if (m_taken.insert(goal.file).second) m_waiting.push_back(goal.file);
    } else if (!goal.isFolder && !m_site->IsReadableFile(path)) {
      goal.fault = LinkFault::kUnreadable;
    }
    return goal;
  }

  // Whether a folder on the way to a file is a symbolic link; the report then names it.
  bool IsInLinkedFolder(const std::string& path) {
    for (std::size_t slash = path.find('/'); slash != std::string::npos; slash = path.find('/', slash + 1)) {
      const std::string folder = path.substr(0, slash);
      if (!m_site->IsLink(folder)) continue;
      if (std::find(m_linkedFolders.begin(), m_linkedFolders.end(), folder) == m_linkedFolders.end()) {
        m_linkedFolders.push_back(folder);
      }
      return true;
    }
    return false;
  }

  void TellUnread() {
    for (const auto& [file, why] : m_unread) {
      if (why.empty()) {
        m_findings.AddUtf16(file);
      } else {
        m_findings.AddUnread(file, why);
      }
    }
    for (const std::string& link : m_linkedFolders) m_findings.AddLinkedFolder(link);
    m_report.isSound = m_broken.empty() && m_unread.empty();
    m_report.isStaleCertain = m_unread.empty() && m_linkedFolders.empty();
  }

  void FindUnreached() {
    const std::string& index = m_request.indexName;
    std::set<std::string> reached{index};
    std::vector<std::string> waiting{index};
    while (!waiting.empty()) {
      const std::string page = std::move(waiting.back());
      waiting.pop_back();
      for (const std::string& target : m_linked[page]) {
        if (m_linked.contains(target) && reached.insert(target).second) waiting.push_back(target);
      }
    }
    std::vector<std::string> own;
    std::size_t chapters = 0;
    for (const auto& [page, links] : m_linked) {
      const bool isOurs = m_ours.contains(page);
      if (reached.contains(page)) {
        if (isOurs && page != index) ++chapters;
      } else if (IsHtmlName(page)) {
        m_report.unreached.push_back(page);
        (isOurs ? m_report.stale : own).push_back(page);
      }
    }
    if (chapters == 0 && !m_report.stale.empty()) {
      m_report.isStaleCertain = false;
      m_findings.AddEmptyIndex(index);
    }
    m_findings.AddUnreached(m_report.stale, index);
    m_findings.AddOwnUnreached(own, index);
    if (!m_report.stale.empty()) m_findings.OfferRemoval();
  }

  const SiteRequest& m_request;
  std::shared_ptr<SiteHandle> m_site;
  FolderLister m_lister;
  std::set<std::string> m_names;
  std::unordered_map<std::string, Goal> m_goals;          // of each path that a link has
  std::vector<std::string> m_waiting;                     // the pages and style sheets to read, in their order
  std::size_t m_read = 0;                                 // how many of them have been read
  std::set<std::string> m_taken;                          // those that are in m_waiting
  std::map<std::string, std::set<std::string>> m_linked;  // the files of the site that each of them names
  std::set<std::string> m_ours;                           // the pages that a compile has written
  std::vector<BrokenTarget> m_broken;
  // Of each path and fault: its place among those, and the last page that has it.
  std::map<std::pair<std::string, LinkFault>, std::pair<std::size_t, std::string>> m_known;
  std::vector<std::pair<std::string, std::string>> m_unread;  // files, and why; no reason for pages in UTF-16
  std::vector<std::string> m_linkedFolders;                   // symbolic links, whose pages are not read
  SiteFindings m_findings;
  SiteReport m_report;
};

}  // namespace

SiteReport VerifySite(const SiteRequest& request) { return SiteReader(request).Read(); }

std::string FindIndexPage(const std::string& folder) {
  for (const char* name : kIndexPages) {
    if (FileExists(WithSeparator(NativePath(folder)) + name)) return name;
  }
  return {};
}

}  // namespace folionet
