#pragma once

#include <cstddef>
#include <set>
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

// Something that pages or style sheets name and that is not there.
struct BrokenTarget {
  std::string target;  // as the first page has it, decoded to UTF-8
  LinkFault fault;
  std::string otherCase;   // of kOtherCase: the name that is there
  bool isPicture = false;  // whether it is no page and no style sheet
  std::string page{};      // the first that names it: path from the folder of the site
  std::size_t line = 0;    // of that page, from 1
  std::size_t pages = 0;   // how many name it
};

// A page or style sheet that is there, and cannot be read.
struct UnreadFile {
  std::string name;  // path from the folder of the site
  std::string why;   // a few words
  bool isUtf16 = false;
};

// What is found in a written site.
struct SiteReport {
  std::vector<BrokenTarget> broken;  // that which most pages name first
  std::vector<UnreadFile> unread;
  std::vector<std::string> linkedFolders;  // symbolic links to folders, whose pages are not read
  std::vector<std::string> unreachable;    // pages that the index does not lead to, however many links are followed
  std::size_t pages = 0;
  std::size_t links = 0;        // those that lead to files of the site
  std::size_t brokenLinks = 0;  // of those
  std::size_t leadOut = 0;      // those that lead out of the folder, and were not followed

  bool IsSound() const { return broken.empty() && unread.empty(); }
};

// What a person does about a site that is not sound.
enum class SiteStep {
  kPermissions,  // see that files may be read
  kUtf8,         // save pages in UTF-16 anew
  kCharset,      // choose a charset that fits the titles, or short file names
  kTitles,       // choose other titles, or short file names
  kPictures,     // put the pictures there, or choose others
  kCorrect       // compile again, and correct one's own pages
};

// The steps that fit what was found; none for a sound site.
std::set<SiteStep> StepsFor(const SiteReport& report);

// The fault in English words that go on a sentence: "is not there".
std::string FaultText(const BrokenTarget& target);

}  // namespace folionet
