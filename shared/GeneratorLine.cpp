#include "GeneratorLine.h"

#include <string>

#include "Text.h"

namespace folionet {

bool IsOurPage(std::string_view head) {
  static const std::string mark = "content=\"" + std::string(kGenerator);
  return head.substr(0, kGeneratorHead).find(mark) != std::string_view::npos;
}

bool IsHtmlName(std::string_view name) {
  const std::size_t dot = name.rfind('.');
  if (dot == std::string_view::npos) return false;
  const std::string ending = AsciiLower(name.substr(dot));
  return ending == ".html" || ending == ".htm";
}

}  // namespace folionet
