#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace folionet {

// Why there is no file behind a link.
enum class LinkFault {
  kMissing,
  kOtherCase,
  kBackslash,
  kUnreadable,
  kFolder,   // a folder that has no index page
  kNoFile,   // a folder, where a picture or a style sheet should be
  kCharset,  // the bytes of the link are no text of the page's charset, or another one than its writer meant
  kSign      // a sign of the file's name, such as "#", has a meaning in addresses
};

// A page or style sheet that names something that is not there.
struct BrokenLink {
  std::string page;    // path from the folder of the site
  std::size_t line;    // of the page, from 1
  std::string target;  // as the page has it, decoded to UTF-8
  LinkFault fault;
  std::string otherCase;  // of kOtherCase: the name that is there
};

// The fault in English words that go on a sentence: "is not there".
std::string FaultText(const BrokenLink& link);

// A page or style sheet that is there, and cannot be read.
struct UnreadFile {
  std::string name;  // path from the folder of the site
  std::string why;   // a few words
};

// What is found in a written site.
struct SiteReport {
  std::vector<BrokenLink> broken;
  std::vector<UnreadFile> unread;
  std::vector<std::string> linkedFolders;  // symbolic links to folders, whose pages are not read
  std::vector<std::string> unreachable;    // pages that the index does not lead to, however many links are followed
  std::size_t pages = 0;
  std::size_t links = 0;    // those that lead to files of the site
  std::size_t leadOut = 0;  // those that lead out of the folder, and were not followed

  bool IsSound() const { return broken.empty() && unread.empty(); }
};

// Reads every page (".html" and ".htm") of a folder, the pages and style sheets below it that those lead to, and so on,
// and looks for the file behind each link, picture and style sheet that they name: in the folder or below it, in
// exactly this letter case. Links are read as browsers read them, with the page's charset and "base". A folder will do
// when it has an index page, and the link may lead to a page. Places within a page ("#top") are not looked for.
// Addresses with a scheme or a host, and those that lead out of the folder, are not followed, and nothing is read
// through a symbolic link to a folder, which may lead anywhere. `indexName` is the file name of the index page. Throws
// RunTimeError when the folder or the index page cannot be read, or when there is no such index page.
SiteReport CheckSite(const std::string& folder, const std::string& indexName);

// The index page of a folder: "index.html" or "index.htm"; empty when there is neither.
std::string FindIndexPage(const std::string& folder);

}  // namespace folionet
