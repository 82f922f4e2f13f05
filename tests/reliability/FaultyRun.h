#pragma once

#include <cstddef>
#include <functional>
#include <iosfwd>
#include <string>
#include <vector>

#include "FolderContent.h"
#include "Library.h"
#include "ProgramRun.h"
#include "TemporaryFolder.h"

// Runs of a program in which one call to the file system goes wrong.

namespace folionet::test {

// A call as the preloaded library saw it; FaultyCalls.cpp has the names.
struct Call {
  std::string name;
  std::string path;
};

// Which call goes wrong, counted from 1 (0 for none), and how: a value of errno, "short", "kill" or "torn".
struct Fault {
  std::size_t at = 0;
  std::string kind;
};

struct FaultyRun {
  ProgramResult result;
  std::vector<Call> calls;  // those that were counted, the one that went wrong included
};

// Runs the program in the folder, where calls are counted. One that hangs is ended after a minute with status 124.
FaultyRun RunFaulty(const Command& command, const TemporaryFolder& home, const Fault& fault = {});

// What is done in a test over and over, each time in a folder of its own.
struct Job {
  std::string name;
  std::function<void(const TemporaryFolder&)> arrange;
  std::function<Command(const TemporaryFolder&)> command;
};

// Compiles a small library into a folder that is made for it, and over an older site with the books before the second
// one taken away.
Job CompileAnew();
Job CompileOver();

// Stores the exit settings, the custom header and a language, each over something older.
std::vector<Job> Saves();
inline const std::string kNewText = "the new text, \"quoted\"";

// What the folder holds after the job, nothing going wrong.
FolderContent ContentAfter(const Job& job);

void PrintTo(const Job& job, std::ostream* stream);

// What goes wrong, for the messages of a test.
std::string Describe(const Fault& fault, const Call& call);

}  // namespace folionet::test
