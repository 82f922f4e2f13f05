#pragma once

#include <string>
#include <vector>

#include "ImportedBible.h"

namespace folionet {

struct ImportSource {
  std::vector<std::string> paths;  // files, folders, archives; "-" is standard input
  std::string charset;             // that the files are in; empty where they tell it themselves
};

// Reads a whole Bible text. Throws RunTimeError for what cannot be read: it names the file, the line, the place in the
// Bible where that is known, and what was expected.
ImportedBible ReadBible(const ImportSource& source);

}  // namespace folionet
