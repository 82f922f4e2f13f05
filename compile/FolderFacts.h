#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "CodePage.h"
#include "CompileRequest.h"
#include "PageNames.h"
#include "modGlob.h"

namespace folionet {

// The names of files that a compile writes, each with what one of ours begins with that is no page; of a page, which
// its GENERATOR line tells, with an empty text.
using WrittenFiles = std::unordered_map<std::string, std::string>;

// What lies in an output folder before a compile, as a person wants to know it before anything is written.
struct FolderFacts {
  bool isThere = false;                             // whether there is such a folder, and it can be read
  std::size_t pages = 0;                            // of an earlier compile: files with our GENERATOR line
  std::map<std::string, std::size_t> translations;  // the names that those pages tell (UTF-8), and how many do
  std::vector<std::string> replaced;  // files that are not ours and bear names that the compile will write
  std::size_t others = 0;             // all other files; they stay untouched
  bool hasFolders = false;            // which stay untouched too
};

// Looks through a folder. `written` are the names that the compile will write, as FilesOfSite gives them. A folder of
// 100,000 files takes about a second, so that `isWanted` is asked between files: once it says no, nothing is given.
// Nothing is told of what is in its folders; what cannot be read is passed over. Nothing is thrown.
std::optional<FolderFacts> LookIntoFolder(const std::string& folder, const WrittenFiles& written,
                                          const std::function<bool()>& isWanted);

// All files that a compile of this request writes: the index page, the chapter pages, the style sheet and the sitemap.
// The pages are those by the numbers of the chapter index and those by the order of its books: the one that the text
// has may be either. Needs the lists and the chapters of `glob`.
WrittenFiles FilesOfSite(const CompileRequest& request, const ModGlob& glob);

// The translation whose pages lie in the output folder of a request, as its index page, or else the page of its start
// book, tells it (UTF-8); empty where neither does. Takes no time to speak of.
std::string TranslationOfSite(const CompileRequest& request, const PageNames& names);

}  // namespace folionet
