#pragma once

#include <string>
#include <vector>

namespace folionet {

// The text of a sitemap (sitemaps.org, schema 0.9) of these pages. `address` is the public address of their folder, in
// UTF-8, with or without its last slash; `names` are file names in UTF-8. Both are percent-encoded where an address
// asks for it (in `address` a "%" too that encodes nothing), and escaped for XML.
std::string BuildSitemap(const std::string& address, const std::vector<std::string>& names);

// Whether a folder of pages can have such an address: http or https and a host (one in other letters in its "xn--"
// form), without a user's name, blanks and control characters.
bool IsPublicAddress(const std::string& address);

// Whether a public address ends in the name of a page instead of a folder's.
bool NamesAPage(const std::string& address);

}  // namespace folionet
