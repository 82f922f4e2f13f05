#include "Sentence.h"

namespace folionet {

std::string Sentence::InEnglish() const {
  const std::string_view words = pattern;
  std::string text;
  for (std::size_t i = 0; i < words.size(); ++i) {
    const char digit = words[i] == '%' && i + 1 < words.size() ? words[i + 1] : '0';
    const auto argument = static_cast<std::size_t>(digit - '1');
    if (digit < '1' || digit > '9' || argument >= arguments.size()) {
      text += words[i];
    } else {
      text += arguments[argument];
      ++i;
    }
  }
  return text;
}

}  // namespace folionet
