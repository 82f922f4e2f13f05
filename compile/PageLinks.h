#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace folionet {

// The value of an attribute that names another file, in the bytes of the page.
struct PageLink {
  std::string_view value;
  std::size_t line;  // from 1
};

// The values of every "href", "src" and "background" attribute of a page's tags, in any letter case, quoted or not. A
// tag whose quotes do not match, as one of the index page's does, hides no attribute behind it.
std::vector<PageLink> FindPageLinks(std::string_view page);

// The charset that a page's META line declares; windows-1252 when it declares none.
std::string FindPageCharset(std::string_view page);

// The path that a link leads to, relative to the page's folder, in UTF-8, percent-decoded and without query and
// fragment; empty for a link into the page itself or to another site.
std::string LocalTarget(std::string_view link);

}  // namespace folionet
