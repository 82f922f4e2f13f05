#pragma once

#include <optional>
#include <string>

#include "CodePage.h"
#include "Finding.h"
#include "TextCharset.h"

namespace folionet {

// The words of something that is in another charset than the pages: UTF-8, not UTF-8 as they are, or else. %1 is the
// charset of the pages, in the remedy the setting that a person gives.
struct CharsetWords {
  FindingKind kind;
  const char* isUtf8 = "";
  const char* isNotUtf8 = "";
  const char* isOther = "";
  const char* remedy = "Give the charset that it is in: --set \"%1\".";
};

Finding OtherCharset(const CharsetWords& words, const CharsetMismatch& mismatch, const CodePage& codePage);

// What is wrong with the declared charset: that no browser knows it, or that pages cannot be in it. `entry` is what the
// setting "Charset" should be; empty where that cannot be told.
std::optional<Finding> FindInCharset(const std::string& charset, const std::string& entry);

}  // namespace folionet
