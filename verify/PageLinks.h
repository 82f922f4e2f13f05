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
  kStyle        // a style, of one element or a <style>: "background: url(paper.png)"
};

// A text that names other files.
struct PageLink {
  std::string value;  // its character references resolved
  std::size_t line;   // from 1
  LinkForm form = LinkForm::kPage;
};

// The values of every attribute of a page's tags that names files ("href", "src", "background", "poster", "srcset",
// "imagesrcset", "style", an object's "data" and the "content" of a refresh), and the content of its <style> elements,
// as browsers read them. The page is UTF-8.
std::vector<PageLink> FindPageLinks(std::string_view page);

}  // namespace folionet
