#pragma once

#include <functional>
#include <string>

#include "CommonOptions.h"
#include "ConsoleUi.h"
#include "ExitStatus.h"

namespace folionet {

// What a command line asks for.
struct Arguments {
  CommonOptions common;
  std::function<ExitStatus(const CommonOptions& common, ConsoleUi& ui)> run;  // the command; empty for none

  // Where there is none: the status to end with, and the help or what is wrong, with their line ends.
  ExitStatus status = kExitDone;
  std::string output;
  std::string errors;
};

// Reads the command line. This is the one unit that knows how arguments are parsed.
Arguments ParseArguments(int argc, char** argv);

}  // namespace folionet
