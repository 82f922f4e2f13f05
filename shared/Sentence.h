#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace folionet {

// Marks a pattern that forms show, for the collector of texts to translate. `context` is the one that they translate it
// in, "QObject" where any form may show it; both must be literals.
constexpr const char* Words(const char* /*context*/, const char* pattern) { return pattern; }

// A sentence that is not worded yet, so that a form can do it in the desktop's language and the command line in
// English. All texts are UTF-8.
struct Sentence {
  const char* pattern = "";  // of the program's own: "%1" to "%9" stand for the arguments, as in Qt's patterns
  std::vector<std::string> arguments{};  // names, numbers and quoted texts, which are no words to translate

  friend bool operator==(const Sentence& left, const Sentence& right) {
    return std::string_view(left.pattern) == right.pattern && left.arguments == right.arguments;
  }

  bool IsEmpty() const { return *pattern == '\0'; }

  // The pattern with its arguments in place; "%" and a digit in an argument stay as they are.
  std::string InEnglish() const;
};

}  // namespace folionet
