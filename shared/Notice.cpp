#include "Notice.h"

#include <cstring>

namespace folionet {

bool operator==(const Notice& left, const Notice& right) {
  return std::strcmp(left.sentence, right.sentence) == 0 && left.values == right.values;
}

std::string NoticeText(const Notice& notice) {
  std::string text;
  for (const char* at = notice.sentence; *at != '\0'; ++at) {
    const std::size_t place =
        at[0] == '%' && at[1] >= '1' && at[1] <= '9' ? static_cast<std::size_t>(at[1] - '1') : notice.values.size();
    if (place >= notice.values.size()) {
      text += *at;
      continue;
    }
    text += notice.values[place];
    ++at;
  }
  return text;
}

}  // namespace folionet
