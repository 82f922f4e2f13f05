#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace folionet {

// An address in a text that names several.
struct StyleLink {
  std::string address;   // its escapes ("\\28 ") resolved
  std::size_t line = 0;  // of the text, from 0
};

// What a style sheet (in UTF-8), or the style of one element, names: each "url(...)", quoted or not, and the text
// behind each "@import". What stands in a comment or in any other quoted text is passed over.
std::vector<StyleLink> FindStyleLinks(std::string_view sheet);

// The addresses of a set of pictures: "small.png 1x, large.png 2x".
std::vector<StyleLink> FindPictures(std::string_view set);

}  // namespace folionet
