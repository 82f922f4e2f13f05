#pragma once

#include <optional>
#include <string>
#include <vector>

#include "Session.h"

namespace folionet {

// The arguments of "folionet-cli compile"; an empty text stands for one that was not given.
struct CompileArguments {
  std::string translation;
  std::string languageFile;
  std::string startBook;
  std::string endBook;
  std::string books;  // both at once
  std::string output;
  std::optional<std::string> indexAddress;
  std::vector<std::string> settings;
  std::string sitemap;       // the public address of the output folder
  bool listChanged = false;  // print the names of the pages whose bytes changed
  bool onlyChosen = false;   // delete the pages of the books after the ending one too
  std::string saveSettings;  // the site's file to make of all this
  bool dryRun = false;       // write nothing, print what would become of each file
};

// Compiles a translation as the form does.
ExitStatus RunCompile(const CommonOptions& common, const CompileArguments& arguments, ConsoleUi& ui);

}  // namespace folionet
