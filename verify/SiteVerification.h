#pragma once

#include <cstddef>
#include <functional>
#include <string>

#include "SiteReport.h"

namespace folionet {

// A site to be read through.
struct SiteRequest {
  std::string folder;
  std::string indexName;  // the file name of its index page
  RemedyWords words{};

  // Told how many files have been read and how many there are as far as is known; false stops the reading.
  std::function<bool(std::size_t read, std::size_t known)> goOn{};
};

// Reads every page (".html" and ".htm") of a folder, the pages and style sheets below it that those lead to, and so on,
// and looks for the file behind each link, picture and style sheet that they name: in the folder or below it, in
// exactly this letter case. Links are read as browsers read them, with the page's charset and "base". A folder will do
// when it has an index page, and the link may lead to a page. Places within a page ("#top") are not looked for.
// Addresses with a scheme or a host, and those that lead out of the folder, are not followed, and nothing is read
// through a symbolic link to a folder, which may lead anywhere. Throws RunTimeError when the folder or the index page
// cannot be read, or when there is no such index page.
SiteReport VerifySite(const SiteRequest& request);

// The index page of a folder: "index.html" or "index.htm"; empty when there is neither.
std::string FindIndexPage(const std::string& folder);

}  // namespace folionet
