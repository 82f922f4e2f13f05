#pragma once

#include <optional>
#include <string>
#include <vector>

#include "CompileContext.h"
#include "Finding.h"
#include "PageOptions.h"

namespace folionet {

// What a person chose for the pages of every translation, as UTF-8.
struct TypedTexts {
  const PageOptions& options;
  const PageTexts& texts;
  std::string programFolder;  // whose lang.txt lists languages; ends in the separator
};

// What works and is perhaps not meant: words in titles, META texts, header and footer that look dynamic and are not, a
// language that nobody knows.
std::vector<Finding> FindInTypedTexts(const TypedTexts& typed);

// The same of the declared charset: one that no browser knows, or that pages cannot be in. `entry` is what the setting
// "Charset" should be; empty where that cannot be told.
std::optional<Finding> FindInCharset(const std::string& charset, const std::string& entry);

// What a person does about a charset: gives the setting `entry`, or any where it is empty. `step` tells that setting
// with "%1".
Sentence CharsetRemedy(const char* step, const std::string& entry);

// The entry that such a remedy gives, empty for any; nothing for another remedy.
std::optional<std::string> EntryOfRemedy(const Sentence& remedy);

}  // namespace folionet
