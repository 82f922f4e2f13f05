#pragma once

#include <optional>
#include <string>

#include "CodePage.h"
#include "Finding.h"
#include "TextCharset.h"

namespace folionet {

// The words of something that is in another charset than the pages: UTF-8, not UTF-8 as they are, or else. %1 is the
// charset of the pages; the remedy is the step of CharsetRemedy.
struct CharsetWords {
  const char* kind;
  const char* isUtf8;
  const char* isNotUtf8;
  const char* isOther;
  const char* remedy;
};

Finding OtherCharset(const CharsetWords& words, const CharsetMismatch& mismatch, const CodePage& codePage);

// What is wrong with the declared charset: that no browser knows it, or that pages cannot be in it. `entry` is what the
// setting "Charset" should be; empty where that cannot be told.
std::optional<Finding> FindInCharset(const std::string& charset, const std::string& entry);

// What a person does about a charset: gives the setting `entry`, or any where it is empty. `step` tells that setting
// with "%1".
Sentence CharsetRemedy(const char* step, const std::string& entry);

// The entry that such a remedy gives, empty for any; nothing for another remedy.
std::optional<std::string> EntryOfRemedy(const Sentence& remedy);

}  // namespace folionet
