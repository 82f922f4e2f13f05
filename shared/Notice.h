#pragma once

#include <string>
#include <vector>

namespace folionet {

// Something that a person should know, as a value: the command line prints it in English, a form in the desktop's
// language, by its English words.
struct Notice {
  const char* sentence = "";        // of Translatable, with "%1" to "%9" where values stand
  std::vector<std::string> values;  // UTF-8

  friend bool operator==(const Notice& left, const Notice& right);
};

// Marks an English sentence of a Notice for script/check-translations; its context is "Notice".
constexpr const char* Translatable(const char* /*context*/, const char* sentence) { return sentence; }

// The English sentence with its values.
std::string NoticeText(const Notice& notice);

}  // namespace folionet
