#include "FolderFacts.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <string_view>

#include "ChapterIndex.h"
#include "FileHandle.h"
#include "FileNames.h"
#include "FolderReader.h"
#include "GeneratorLine.h"
#include "OptionTable.h"
#include "OutputFolder.h"
#include "PageNames.h"
#include "SiteFolder.h"
#include "Sitemap.h"
#include "WholeFile.h"

namespace folionet {
namespace {

// What stands between two texts; empty when they are not there.
std::string_view Between(std::string_view text, std::string_view before, std::string_view after) {
  const std::size_t start = text.find(before);
  if (start == std::string_view::npos) return {};
  text.remove_prefix(start + before.size());
  const std::size_t end = text.find(after);
  return end == std::string_view::npos ? std::string_view() : text.substr(0, end);
}

// A file of the folder, as far as it has been read.
struct FileFacts {
  bool isFolder = false;
  bool isOurs = false;
  std::string translation;  // UTF-8; empty when the page does not tell it
  std::string head;
};

// Its GENERATOR line has three parts of the version, that of a chapter's page two, whatever the program's version is.
bool IsIndexPage(std::string_view page) { return std::ranges::count(Between(page, kGenerator, "\""), '.') > 1; }

// A chapter's page tells the name in its link back to the index page, where that has the words of its default.
std::string_view NameInChapter(std::string_view page) {
  const std::string_view link = FindOption("LinkToMain")->defaultText;
  return Between(page, link.substr(0, link.find('%')), "<");
}

// An index page has the name as its heading.
std::string_view NameInIndex(std::string_view page) {
  const std::string_view body = page.substr(std::min(page.find("<p>&nbsp;</p>"), page.size()));
  const std::string_view heading = Between(body, "<h1>", "</h1>");
  return heading.empty() ? Between(body, "<u>", "<br><br></u>") : heading;
}

FileFacts LookAtFile(int folder, const char* name) {
  constexpr std::size_t kLongestHead = std::size_t{64} << 10;
  FileFacts old;
  const FileHandle file = FileHandle::OpenAt(folder, name, O_RDONLY | O_NONBLOCK | O_NOFOLLOW);
  struct stat status {};
  if (!file.IsOpen() || fstat(file.Get(), &status) != 0) return old;
  old.isFolder = S_ISDIR(status.st_mode);
  std::string& head = old.head;
  if (!S_ISREG(status.st_mode) || !ReadAll(file.Get(), head, kGeneratorHead, 0)) return old;
  old.isOurs = IsOurPage(head);
  const std::size_t length = std::min(kLongestHead, static_cast<std::size_t>(status.st_size));
  if (!old.isOurs || (length > head.size() && !ReadAll(file.Get(), head, length, 0))) return old;
  const CodePage codePage{std::string(Between(head, "charset=", "\""))};
  old.translation = codePage.DecodeForDisplay(IsIndexPage(head) ? NameInIndex(head) : NameInChapter(head));
  return old;
}

// Empty when it cannot be read, which the compile tells.
std::string StartOfStyleSheet(const CompileRequest& request) {
  std::string start;
  const FileHandle file = FileHandle::Open(StyleSheetOf(request).c_str(), O_RDONLY | O_NONBLOCK);
  return file.IsOpen() && ReadAll(file.Get(), start, kAlikeStart, 0) ? start : std::string();
}

}  // namespace

std::optional<FolderFacts> LookIntoFolder(const std::string& folder, const WrittenFiles& written,
                                          const std::function<bool()>& isWanted) {
  FolderFacts facts;
  FolderReader reader(folder.c_str());
  if (!reader.IsOpen()) return facts;
  facts.isThere = true;
  while (const dirent* const entry = reader.Next()) {
    if (!isWanted()) return std::nullopt;
    const std::string name = entry->d_name;
    if (entry->d_type == DT_DIR) {
      facts.hasFolders = true;
      continue;
    }
    const auto of = written.find(name);
    const bool isWritten = of != written.end();
    FileFacts old;
    const bool isFile = entry->d_type == DT_REG || entry->d_type == DT_UNKNOWN;
    if (isFile && (isWritten || IsHtmlName(name))) old = LookAtFile(reader.Descriptor(), entry->d_name);
    if (old.isFolder) {
      facts.hasFolders = true;
    } else if (old.isOurs) {
      ++facts.pages;
      if (!old.translation.empty()) ++facts.translations[old.translation];
    } else if (isWritten) {
      if (of->second.empty() || !old.head.starts_with(of->second)) facts.replaced.push_back(name);
    } else {
      ++facts.others;
    }
  }
  return facts;
}

WrittenFiles FilesOfSite(const CompileRequest& request, const ModGlob& glob) {
  const PageNames names = PageNamesOf(request, glob);
  const int books = static_cast<int>(glob.cboStartBook.size());
  WrittenFiles files;
  files.reserve(glob.ChapterIndex.size());
  files.try_emplace(IndexFileName(request.options.txthttpRoot));
  if (request.cboStartBook >= 0 && request.cboStartBook < books) {
    files.try_emplace(names.OnDisk(request.cboStartBook + 1, 1));
  }
  for (const ChapterEntry& entry : glob.ChapterIndex) {
    if (entry.Book >= 1 && entry.Book <= books) files.try_emplace(names.OnDisk(entry.Book, entry.Chapter));
  }
  const ChapterCounts chapters = CountChapters(glob);
  std::size_t place = 0;
  for (int book = 1; book <= books; ++book) {
    ForEachChapter(glob, book, chapters[static_cast<std::size_t>(book)], [&](int chapter) {
      const ChapterEntry& entry = glob.ChapterIndex[std::min(place++, glob.ChapterIndex.size() - 1)];
      if (entry.Book != book || entry.Chapter != chapter) files.try_emplace(names.OnDisk(book, chapter));
    });
  }
  if (request.options.chkCSS) files.insert_or_assign(kStyleSheetFile, StartOfStyleSheet(request));
  if (!request.sitemapAddress.empty()) {
    files.insert_or_assign(kSitemapFile, BuildSitemap(request.sitemapAddress, {}).substr(0, kAlikeStart));
  }
  return files;
}

std::string TranslationOfSite(const CompileRequest& request, const PageNames& names) {
  const FileHandle folder = FileHandle::Open(request.txtOutputPath.c_str(), O_RDONLY | O_DIRECTORY | O_NONBLOCK);
  if (!folder.IsOpen()) return {};
  for (const std::string& name :
       {IndexFileName(request.options.txthttpRoot), names.OnDisk(request.cboStartBook + 1, 1)}) {
    if (name.empty() || name.find('/') != std::string::npos) continue;
    const FileFacts old = LookAtFile(folder.Get(), name.c_str());
    if (!old.translation.empty()) return old.translation;
  }
  return {};
}

}  // namespace folionet
