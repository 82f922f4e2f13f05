#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>

#include <thread>

#include "FolderContent.h"
#include "Library.h"
#include "ProgramRun.h"

namespace folionet::test {
namespace {

namespace fs = std::filesystem;

// Runs both commands at the same time, so many times each one after the other.
void RunBoth(const std::string& folder, const Command& one, const Command& other, int times,
             const std::function<void(const ProgramResult&)>& check) {
  const auto runAll = [&](const Command& command, std::vector<ProgramResult>& results) {
    for (int i = 0; i < times; ++i) results.push_back(RunProgram(command, folder));
  };
  std::vector<ProgramResult> ofOne;
  std::vector<ProgramResult> ofOther;
  std::thread first(runAll, std::cref(one), std::ref(ofOne));
  std::thread second(runAll, std::cref(other), std::ref(ofOther));
  first.join();
  second.join();
  for (const auto* results : {&ofOne, &ofOther}) {
    for (const ProgramResult& result : *results) check(result);
  }
}

constexpr int kTimes = 40;

TEST(TwoAtOnce, WhatIsSavedIsThatOfOneOfBoth) {
  const struct {
    const char* what;
    const char* file;
    const char* before;
  } cases[] = {{"settings", "Folionet.ini", "[Keys]\nKeywords=kept\n"}, {"header", "CustomHeader.txt", "kept"}};
  for (const auto& c : cases) {
    const auto save = [&](const TemporaryFolder& home, const std::string& text) {
      return Command{SAVE_PROGRAM, c.what, home.Path(), text};
    };
    const std::string one(3000, '1');
    const std::string other(70000, '2');
    FolderContent saved[2];
    for (int i = 0; i < 2; ++i) {
      const TemporaryFolder alone;
      alone.Write(c.file, c.before);
      RunProgram(save(alone, i == 0 ? one : other), alone.Path());
      saved[i] = ReadFolder(alone.Path());
    }
    ASSERT_NE(saved[0], saved[1]);
    const TemporaryFolder home;
    home.Write(c.file, c.before);
    RunBoth(home.Path(), save(home, one), save(home, other), kTimes,
            [](const ProgramResult& result) { EXPECT_EQ(result.status, 0) << result.errors; });
    const FolderContent now = ReadFolder(home.Path());
    EXPECT_TRUE(now == saved[0] || now == saved[1]) << c.what;
  }
}

TEST(TwoAtOnce, NoAddedRecordIsLost) {
  const TemporaryFolder home;
  const auto add = [&](const char* text) { return Command{SAVE_PROGRAM, "record", home.Path(), text}; };
  RunBoth(home.Path(), add("one"), add("other"), kTimes,
          [](const ProgramResult& result) { EXPECT_EQ(result.status, 0) << result.errors; });
  const std::string stored = home.Read("lang.txt");
  const std::string one = "\"xx\",\"one\"\r\n";
  const std::string other = "\"xx\",\"other\"\r\n";
  EXPECT_EQ(stored.size(), kTimes * (one.size() + other.size()));
}

TEST(TwoAtOnce, ASecondCompileIsRefused) {
  const TemporaryFolder home;
  MakeSmallLibrary(home);
  ASSERT_EQ(RunProgram(CompileSmall(), home.Path()).status, 0);
  const FolderContent site = ReadFolder(home.Path() + "out");
  const int held = open((home.Path() + "out").c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  ASSERT_EQ(flock(held, LOCK_EX), 0);
  const ProgramResult run = RunProgram(CompileSmall({"--set=PageTitles=another"}), home.Path());
  EXPECT_EQ(run.status, 3);
  EXPECT_NE(run.errors.find("Error Number : 70\n"), std::string::npos) << run.errors;
  EXPECT_NE(run.errors.find("out/\nAnother compile is writing into this folder."), std::string::npos) << run.errors;
  EXPECT_EQ(DescribeDifference(site, ReadFolder(home.Path() + "out")), "");
  close(held);
  EXPECT_EQ(RunProgram(CompileSmall({"--set=PageTitles=another"}), home.Path()).status, 0);
}

TEST(TwoAtOnce, PagesOfTwoCompilesDoNotMix) {
  const TemporaryFolder home;
  MakeSmallLibrary(home);
  const auto compile = [](const std::string& title) { return CompileSmall({"--set=PageTitles=" + title}); };
  const auto siteOf = [&](const std::string& title) {
    EXPECT_EQ(RunProgram(compile(title), home.Path()).status, 0);
    return ReadFolder(home.Path() + "out");
  };
  const std::string title(20000, 'B');
  const FolderContent one = siteOf("A");
  const FolderContent other = siteOf(title);
  int done = 0;
  RunBoth(home.Path(), compile("A"), compile(title), kTimes, [&](const ProgramResult& result) {
    EXPECT_TRUE(result.status == 0 || result.status == 3) << result.errors;
    if (result.status == 0) ++done;
  });
  EXPECT_GT(done, 0);
  const FolderContent now = ReadFolder(home.Path() + "out");
  EXPECT_TRUE(now == one || now == other);
}

}  // namespace
}  // namespace folionet::test
