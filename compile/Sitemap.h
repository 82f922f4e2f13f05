#pragma once

#include <ctime>
#include <string>
#include <vector>

namespace folionet {

struct SitemapPage {
  std::string name;  // of its file, in UTF-8
  std::time_t lastChange;
};

// The text of a sitemap (sitemaps.org, schema 0.9) of these pages. `address` is the public address of their folder, in
// UTF-8, with or without its last slash. It and the names are percent-encoded where an address asks for it (in
// `address` a "%" too that encodes nothing), and escaped for XML. The dates are those of the day in Greenwich.
std::string BuildSitemap(const std::string& address, const std::vector<SitemapPage>& pages);

// Whether a folder of pages can have such an address: http or https and a host (one in other letters in its "xn--"
// form), without a user's name, blanks and control characters.
bool IsPublicAddress(const std::string& address);

// Whether a public address ends in the name of a page instead of a folder's.
bool NamesAPage(const std::string& address);

}  // namespace folionet
