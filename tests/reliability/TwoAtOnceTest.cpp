#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <future>
#include <set>

#include "FolderContent.h"
#include "Library.h"
#include "ProgramRun.h"

namespace folionet::test {
namespace {

constexpr std::size_t kTimes = 40;

// Runs both commands at the same time, so many times each one after the other.
std::vector<ProgramResult> RunBoth(const std::string& folder, const Command& one, const Command& other,
                                   std::size_t times = kTimes) {
  std::vector<ProgramResult> results(2 * times);
  const auto runAll = [&](const Command& command, std::size_t first) {
    for (std::size_t i = first; i < results.size(); i += 2) results[i] = RunProgram(command, folder);
  };
  const auto meanwhile = std::async(std::launch::async, runAll, one, 0);
  runAll(other, 1);
  meanwhile.wait();
  return results;
}

TEST(TwoAtOnce, NoAddedRecordIsLost) {
  const TemporaryFolder home;
  const auto add = [&](const char* text) { return Command{SAVE_PROGRAM, "record", home.Path(), text}; };
  for (const ProgramResult& run : RunBoth(home.Path(), add("one"), add("two"))) EXPECT_EQ(run.status, 0) << run.errors;
  EXPECT_EQ(home.Read("lang.txt").size(), 2 * kTimes * std::string("\"xx\",\"one\"\r\n").size());
}

TEST(TwoAtOnce, EveryImportIsMade) {
  constexpr std::size_t kImports = 8;
  const TemporaryFolder home;
  home.Write("text", "Ge1:1 a verse\n");
  const Command import{"/bin/sh", "-c", "exec " FOLIONET_CLI " import text --name N$$ --stem S$$ --into lib --quiet"};
  for (const ProgramResult& run : RunBoth(home.Path(), import, import, kImports))
    EXPECT_EQ(run.status, 0) << run.errors;
  const std::string catalogue = home.Read("lib/Sysdefs/Translations.txt");
  EXPECT_EQ(std::count(catalogue.begin(), catalogue.end(), '\n'), static_cast<std::ptrdiff_t>(2 * kImports))
      << catalogue;
}

TEST(TwoAtOnce, ALockThatNeverEndsIsWaitedForTwoSecondsAndItsHolderNamed) {
  const TemporaryFolder home;
  home.Write("lang.txt", "old,one");
  const int held =
      open(home.Write(".lang.txt.folionet-new", "").c_str(), O_RDWR | O_CLOEXEC);  // as another program's save
  ASSERT_EQ(flock(held, LOCK_EX), 0);
  const auto start = std::chrono::steady_clock::now();
  const ProgramResult run = RunProgram({SAVE_PROGRAM, "record", home.Path(), "one"}, home.Path());
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20));
  EXPECT_EQ(run.status, 3);
  EXPECT_EQ(run.errors, "Permission denied: " + home.Path() + "lang.txt: Another program, reliability_tes (process " +
                            std::to_string(getpid()) + "), is saving it. Wait for that to end, and try again.\n");
  EXPECT_EQ(home.Read("lang.txt"), "old,one");
  close(held);
}

TEST(TwoAtOnce, ASecondCompileIsRefused) {
  const TemporaryFolder home;
  MakeSmallLibrary(home);
  ASSERT_EQ(RunProgram(CompileSmall(), home.Path()).status, 0);
  home.Write("out/stale.html", "<meta name=\"GENERATOR\" content=\"Versalia Folionet Ver 1.0\">");
  const FolderContent site = ReadFolder(home.Path() + "out");
  const int held = open((home.Path() + "out").c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  ASSERT_EQ(flock(held, LOCK_EX), 0);
  const std::string why = "Another program, reliability_tes (process " + std::to_string(getpid()) +
                          "), is writing into this folder. Wait for that to end";
  for (const char* more : {"--set=PageTitles=another", "--dry-run"}) {
    const ProgramResult run = RunProgram(CompileSmall({more}), home.Path());
    EXPECT_EQ(run.status, 3);
    EXPECT_NE(run.errors.find("Error Number : 70\n"), std::string::npos) << run.errors;
    EXPECT_NE(run.errors.find("out/\n" + why + ", or choose another folder."), std::string::npos) << run.errors;
  }
  const ProgramResult removal = RunProgram({FOLIONET_CLI, "verify", "out", "--remove-stale"}, home.Path());
  EXPECT_EQ(removal.status, 3);
  EXPECT_EQ(removal.errors, "Permission denied: out/: " + why + ".\n");
  EXPECT_EQ(DescribeDifference(site, ReadFolder(home.Path() + "out")), "");
  close(held);
  EXPECT_EQ(RunProgram(CompileSmall({"--set=PageTitles=another"}), home.Path()).status, 0);
}

TEST(TwoAtOnce, PagesOfTwoCompilesDoNotMix) {
  const TemporaryFolder home;
  MakeSmallLibrary(home);
  const Command compiles[] = {CompileSmall({"--set=PageTitles=A"}),
                              CompileSmall({"--set=PageTitles=" + std::string(20000, 'B')})};
  std::set<FolderContent> sites;
  for (const Command& compile : compiles) {
    EXPECT_EQ(RunProgram(compile, home.Path()).status, 0);
    sites.insert(ReadFolder(home.Path() + "out"));
  }
  EXPECT_EQ(sites.size(), 2U);
  const std::vector<ProgramResult> runs = RunBoth(home.Path(), compiles[0], compiles[1]);
  for (const ProgramResult& run : runs) EXPECT_TRUE(run.status == 0 || run.status == 3) << run.errors;
  EXPECT_TRUE(std::any_of(runs.begin(), runs.end(), [](const ProgramResult& run) { return run.status == 0; }));
  EXPECT_TRUE(sites.contains(ReadFolder(home.Path() + "out")));
}

}  // namespace
}  // namespace folionet::test
