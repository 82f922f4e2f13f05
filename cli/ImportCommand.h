#pragma once

#include <string>
#include <vector>

#include "CommonOptions.h"
#include "ConsoleUi.h"

namespace folionet {

// The arguments of "folionet-cli import"; an empty text stands for one that was not given.
struct ImportArguments {
  std::vector<std::string> paths;
  std::string name;
  std::string stem;
  std::string into;
  std::string titles;
  std::string charset;
  std::string language;
  bool replace = false;
  bool dryRun = false;
};

// Makes a translation of a library of a Bible text.
ExitStatus RunImport(const CommonOptions& common, const ImportArguments& arguments, ConsoleUi& ui);

}  // namespace folionet
