#pragma once

#include <exception>
#include <functional>
#include <string>
#include <vector>

#include "ImportedBible.h"

namespace folionet {

struct ImportSource {
  std::vector<std::string> paths;  // files, folders, archives; "-" is standard input
  std::string charset;             // that the files are in; empty where they tell it themselves

  // Told the file at hand, again and again; false ends the reading. May be empty.
  std::function<bool(const std::string& file)> goOn{};
};

// Leaves a reading that `goOn` has ended.
class ReadingStopped : public std::exception {};

// Reads a whole Bible text. Throws RunTimeError for what cannot be read: it names the file, the line, the place in the
// Bible where that is known, and what was expected; ReadingStopped.
ImportedBible ReadBible(const ImportSource& source);

// The name of a translation whose text tells none: that of its file, without what tells the form.
std::string NameOfPath(const std::string& path);

}  // namespace folionet
