#pragma once

#include <string>
#include <vector>

#include "Finding.h"
#include "PageOptions.h"
#include "PageTexts.h"

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

}  // namespace folionet
