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
// tag whose quotes do not match, as one of the index page's does, hides no attribute behind it. What stands in a
// comment, or in an element whose content is no markup (a script, a style, a title, a text area), is passed over.
std::vector<PageLink> FindPageLinks(std::string_view page);

// The charset that a META line of a page declares in either form; windows-1252 when it declares none.
std::string FindPageCharset(std::string_view page);

// The path that a link (in UTF-8) leads to, relative to the page's folder: blanks around it, character references and
// percent-encoding are resolved, query and fragment are gone. Empty for a link into the page itself or to another site.
std::string LocalTarget(std::string_view link);

}  // namespace folionet
