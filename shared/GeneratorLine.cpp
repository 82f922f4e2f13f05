#include "GeneratorLine.h"

#include <string>

namespace folionet {

bool IsOurPage(std::string_view head) {
  static const std::string mark = "content=\"" + std::string(kGenerator);
  return head.substr(0, kGeneratorHead).find(mark) != std::string_view::npos;
}

}  // namespace folionet
