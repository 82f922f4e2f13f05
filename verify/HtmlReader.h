#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace folionet {

struct HtmlAttribute {
  std::string name;   // in lower case
  std::string value;  // its character references resolved; empty when it has none
  std::size_t line;   // of the page, from 1
};

struct HtmlTag {
  std::string element;  // in lower case
  std::vector<HtmlAttribute> attributes;
  std::size_t line;   // where its content begins
  std::size_t end;    // the byte behind it
  std::string style;  // what a <style> element holds

  // The value of an attribute; nullptr when the tag lacks it.
  const std::string* Find(std::string_view name) const;
};

// Gives the start tags of a page, in their order, until the page ends or `take` gives false. The page is UTF-8. What
// stands in a comment, a script, a style, a title or a text area is no tag. The time that it takes grows as the page
// does, for which a tag ends at its 500th attribute. Throws RunTimeError when the library that reads HTML is not there.
void ReadHtml(std::string_view page, const std::function<bool(const HtmlTag&)>& take);

}  // namespace folionet
