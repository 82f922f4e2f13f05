#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "Library.h"
#include "ProgramRun.h"

// Runs of a program whose calls to the file system are seen, and in which one of them may go wrong.

namespace folionet::test {

// A call as the preloaded library saw it; FaultyCalls.cpp has the names.
struct Call {
  std::string name;
  std::string path;
};

// Which call goes wrong, counted from 1 (0 for none), and how: a value of errno, or a word that FaultyCalls.cpp has.
struct Fault {
  std::size_t at = 0;
  std::string kind;
};

struct FaultyRun {
  ProgramResult result;
  std::vector<Call> calls;  // those that were counted, the one that went wrong included
};

// RunProgram that counts the calls that touch what is below `watched`, which ends in a slash. Under the address
// sanitizer, which does not go together with a preloaded library, no call is seen.
FaultyRun RunFaulty(const Command& command, const TemporaryFolder& home, const std::string& watched,
                    const Fault& fault = {});

}  // namespace folionet::test
