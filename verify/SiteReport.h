#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "Finding.h"
#include "SiteHandle.h"

namespace folionet {

// What is found in a written site. Names are paths from its folder.
struct SiteReport {
  // What is named and not there, that which most pages name first; files that cannot be read; links to other folders;
  // pages that the index does not lead to, those of a book together.
  std::vector<Finding> findings;
  std::vector<Sentence> remedies;  // of all of these, each once

  std::vector<std::string> unreached;  // pages that the index does not lead to, however many links are followed
  std::vector<std::string> stale;      // those of them that a compile has written
  bool isStaleCertain = true;          // false when files that could not be read might lead to those

  std::shared_ptr<const SiteHandle> site;  // the folder that was read

  std::size_t pages = 0;
  std::size_t links = 0;        // those that lead to files of the site
  std::size_t brokenLinks = 0;  // of those
  std::size_t leadOut = 0;      // those that lead out of the folder, and were not followed

  bool isWhole = true;  // false when it was stopped
  bool isSound = true;  // whether all is there that is named
};

// How the person who asks knows what remedies speak of.
struct RemedyWords {
  std::string charset;      // the option of this name: "--set Charset=..."
  std::string shortNames;   // that of short file names
  std::string removeStale;  // how stale pages are removed, with a blank before it; empty when that is asked anyway
};

}  // namespace folionet
