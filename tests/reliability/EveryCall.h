#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <ostream>
#include <set>
#include <string>
#include <vector>

#include "FaultyRun.h"
#include "FolderContent.h"

// Makes each call to the file system go wrong, one in each run, in every way that can happen to it, and kills the
// program there: before the call, or with half of the bytes written.

namespace folionet::test {

// What is done over and over, each time in a folder of its own.
struct Job {
  std::string name;
  std::function<void(const TemporaryFolder&)> arrange;
  Command command;
  std::set<std::string> calls;  // their names: none that the program makes may go by unseen
  std::string watched = {};     // the folder below the home, where it is not all of it
  bool isSample = false;        // each call that writes is struck once only, each in another way
  std::size_t mostKinds = 99;   // of ways to go wrong that are tried at a call

  FaultyRun Run(const TemporaryFolder& home, const Fault& fault = {}) const {
    return RunFaulty(command, home, home.Path() + watched, fault);
  }
};

inline void PrintTo(const Job& job, std::ostream* stream) { *stream << job.name; }

class EveryCall : public testing::Test {
 protected:
  using Check = std::function<void(const TemporaryFolder&, const FaultyRun&, const Call& struck)>;

  // Looks at what each run leaves, and prints how many there were.
  void TryAll(const Job& job, const Check& check);

  // A change of several files leaves all of them new or none, also one that was killed, once the program has started
  // anew; `note` is the file that tells of a change at work.
  void TryOneChange(const Job& job, const std::string& note, const Command& start);

  // Strikes each call that is meant in each of these ways, and prints how many runs there were. The first look, with no
  // kind, is at a run that nothing befalls.
  using Look = std::function<void(const TemporaryFolder&, const FaultyRun&, const std::string& kind)>;
  void StrikeEach(const Job& job, const std::vector<std::string>& kinds, const std::set<std::string>& names,
                  const Look& look);

  // A line of the table in docs/reliability.md.
  struct Counts {
    std::size_t runs = 0;
    std::size_t kills = 0;
  };
  static void PrintCounts(const std::string& job, std::size_t calls, const Counts& counts);

  void ExpectReport(const FaultyRun& run, const std::string& name) const;

  FolderContent m_before;  // what the folder holds before the job and after it
  FolderContent m_after;
  FolderContent m_notes;  // of the program's own, before a run in which a call is struck
  Call m_struck;
  std::string m_told;  // on standard output, where nothing goes wrong
  bool m_isKilled = false;

 private:
  void Try(const Job& job, const Fault& fault, const Check& check);
};

// What a person has: not the program's own notes of what it has changed.
FolderContent Visible(const TemporaryFolder& home);

// A call to the program's own notes of changes and of the places of windows, which nobody misses.
bool IsNote(const Call& call);

// A call to a file that gets its name when it is whole.
bool IsNameless(const Call& call);

std::string LastPart(std::string path);

}  // namespace folionet::test
