#pragma once

#include <string>

#include "Installation.h"

namespace folionet {

// The options that every command knows.
struct CommonOptions {
  GivenFolders folders;
  std::string programFolder;
  std::string site;     // a site's file of settings; empty for none
  bool quiet = false;   // say nothing when all goes well
  bool strict = false;  // a warning makes the exit status kExitRefused
  bool json = false;    // what is found goes to standard output as JSON, an object a line
};

}  // namespace folionet
