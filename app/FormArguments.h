#pragma once

#include <string>
#include <variant>

#include "AppState.h"
#include "ExitStatus.h"

namespace folionet {

// The arguments of "folionet", beside those that every Qt program takes; an empty text stands for one that was not
// given.
struct FormArguments {
  GivenFolders folders;
  std::string programFolder;
  std::string site;  // a site's file of settings
};

// The arguments, or the status to end with where that was asked for, or where they cannot be used: what there is to say
// has been printed then.
std::variant<FormArguments, ExitStatus> ParseFormArguments(int argc, char** argv);

}  // namespace folionet
