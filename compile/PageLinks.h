#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace folionet {

// How a text of a page names other files.
enum class LinkForm {
  kAddress,     // it is an address
  kPictureSet,  // addresses with a size each: "small.png 1x, large.png 2x"
  kStyle,       // the style of one element: "background: url(paper.png)"
  kSheet        // what a <style> element holds, where "&amp;" is no reference
};

// A text that names other files, in the bytes of the page.
struct PageLink {
  std::string_view value;
  std::size_t line;  // from 1
  LinkForm form = LinkForm::kAddress;
};

// The values of every attribute of a page's tags that names files ("href", "src", "background", "poster", "srcset",
// "imagesrcset", "style", and an object's "data"), in any letter case, quoted or not, and the content of its <style>
// elements. A tag whose quotes do not match, as one of the index page's does, hides no attribute behind it. What stands
// in a comment, or in another element whose content is no markup (a script, a title, a text area), is passed over.
std::vector<PageLink> FindPageLinks(std::string_view page);

// The charset that a META line of a page declares in either form; windows-1252 when it declares none.
std::string FindPageCharset(std::string_view page);

// The path that an address (in UTF-8, without character references) leads to, relative to the page's folder: blanks
// around it and percent-encoding are resolved, query and fragment are gone. Empty for an address of the page itself or
// of another site.
std::string LocalTarget(std::string_view address);

}  // namespace folionet
