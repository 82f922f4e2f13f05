#pragma once

#include <string>
#include <vector>

namespace folionet::test {

// What a program left behind when it ended.
struct ProgramResult {
  int status = -1;  // the exit status; 128 and the signal's number when a signal ended it
  std::string output;
  std::string errors;
};

// Runs a program to its end in a folder, which is its home as well: what it keeps goes to config/, data/ and state/
// there. `environment` has what else it is told, as NAME=value. One that runs for five minutes is ended by SIGALRM, and
// no file that it writes, or what it prints, grows over 512 MiB.
ProgramResult RunProgram(const std::vector<std::string>& command, const std::string& folder,
                         const std::vector<std::string>& environment = {});

// folionet-cli with these arguments.
ProgramResult RunCli(const std::vector<std::string>& arguments, const std::string& folder);

}  // namespace folionet::test
