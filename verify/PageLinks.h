#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace folionet {

// How a text of a page names other files.
enum class LinkForm {
  kPage,        // it is the address of a page, or of any other file
  kFile,        // it is the address of a file that is no page: a picture, a style sheet
  kRefresh,     // a time and an address: "0; url=next.html"
  kBase,        // the address that all others of the page start from
  kPictureSet,  // addresses with a size each: "small.png 1x, large.png 2x"
  kStyle,       // the style of one element: "background: url(paper.png)"
  kSheet        // what a <style> element holds, where "&amp;" is no reference
};

// A text that names other files, in the bytes of the page.
struct PageLink {
  std::string_view value;
  std::size_t line;  // from 1
  LinkForm form = LinkForm::kPage;
};

// The values of every attribute of a page's tags that names files ("href", "src", "background", "poster", "srcset",
// "imagesrcset", "style", an object's "data" and the "content" of a refresh), in any letter case, quoted or not, and
// the content of its <style> elements. A tag whose quotes do not match, as one of the index page's does, hides no
// attribute behind it. What stands in a comment, or in another element whose content is no markup (a script, a title, a
// text area), is passed over.
std::vector<PageLink> FindPageLinks(std::string_view page);

// Whether a page begins with the byte-order mark of UTF-16.
bool IsUtf16(std::string_view page);

// The charset that a META line of a page declares in either form; windows-1252 when it declares none. A page that
// begins with the byte-order mark of UTF-8 is UTF-8, whatever it declares.
std::string FindPageCharset(std::string_view page);

// The charset in which browsers read a page that declares this one: windows-1252 for iso-8859-1, and so on.
std::string BrowserCharset(std::string_view declared);

// The address that a refresh, "0; url=next.html", leads to; empty when it names none.
std::string_view RefreshAddress(std::string_view content);

// The path that an address (in UTF-8, without character references) leads to, relative to the page's folder: blanks
// around it and percent-encoding are resolved, query and fragment are gone. Empty for an address of the page itself or
// of another site.
std::string LocalTarget(std::string_view address);

// Whether an address (in UTF-8) is one of another site.
bool IsElsewhere(std::string_view address);

}  // namespace folionet
