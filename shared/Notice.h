#pragma once

#include <string>

#include "Sentence.h"

namespace folionet {

// Something that a person should know, as a value.
using Notice = Sentence;

constexpr const char* Translatable(const char* context, const char* sentence) { return Words(context, sentence); }

inline std::string NoticeText(const Notice& notice) { return notice.InEnglish(); }

}  // namespace folionet
