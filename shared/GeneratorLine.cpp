#include "GeneratorLine.h"

#include <sys/stat.h>

#include <string>

#include "Text.h"
#include "WholeFile.h"

namespace folionet {

bool IsOurPage(std::string_view head) {
  static const std::string mark = "content=\"" + std::string(kGenerator);
  return head.substr(0, kGeneratorHead).find(mark) != std::string_view::npos;
}

bool IsOurPage(const FileHandle& file) {
  struct stat status {};
  std::string head;
  return file.IsOpen() && fstat(file.Get(), &status) == 0 && S_ISREG(status.st_mode) &&
         ReadAll(file.Get(), head, kGeneratorHead, 0) && IsOurPage(head);
}

bool IsHtmlName(std::string_view name) {
  const std::size_t dot = name.rfind('.');
  if (dot == std::string_view::npos) return false;
  const std::string ending = AsciiLower(name.substr(dot));
  return ending == ".html" || ending == ".htm";
}

}  // namespace folionet
