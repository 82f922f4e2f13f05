#pragma once

#include <string>
#include <vector>

namespace folionet {

// The text of a sitemap (sitemaps.org, schema 0.9) of these pages. `address` is the public address of their folder, in
// UTF-8, with or without its last slash; `names` are file names in UTF-8. Both are percent-encoded where an address
// asks for it, and escaped for XML.
std::string BuildSitemap(const std::string& address, const std::vector<std::string>& names);

// Whether pages can have such an address: http or https and a host.
bool IsPublicAddress(const std::string& address);

}  // namespace folionet
