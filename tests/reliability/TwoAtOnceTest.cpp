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
void RunBoth(const std::string& folder, const std::vector<std::string>& one, const std::vector<std::string>& other,
             int times, const std::function<void(const ProgramResult&)>& check) {
  const auto runAll = [&](const std::vector<std::string>& command, std::vector<ProgramResult>& results) {
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

TEST(TwoAtOnce, SettingsAreThoseOfOneOfBoth) {
  const TemporaryFolder home;
  home.Write("Folionet.ini", "[Keys]\nKeywords=kept\n");
  const auto save = [&](const std::string& text) {
    return std::vector<std::string>{SAVE_PROGRAM, "settings", home.Path(), text};
  };
  const std::string one(3000, '1');
  const std::string other(7000, '2');
  RunBoth(home.Path(), save(one), save(other), kTimes,
          [](const ProgramResult& result) { EXPECT_EQ(result.status, 0) << result.errors; });
  const std::string stored = RunProgram({SAVE_PROGRAM, "read", home.Path()}, home.Path()).output;
  EXPECT_TRUE(stored == one + "\n" || stored == other + "\n") << stored.substr(0, 100);
  EXPECT_NE(home.Read("Folionet.ini").find("Keywords=kept"), std::string::npos);
  EXPECT_EQ(ReadFolder(home.Path()).size(), 1U);
}

TEST(TwoAtOnce, AHeaderIsThatOfOneOfBoth) {
  const TemporaryFolder home;
  const std::string one(30000, '1');
  const std::string other(100000, '2');
  RunBoth(home.Path(), {SAVE_PROGRAM, "header", home.Path(), one}, {SAVE_PROGRAM, "header", home.Path(), other}, kTimes,
          [&](const ProgramResult& result) { EXPECT_EQ(result.status, 0) << result.errors; });
  const std::string stored = home.Read("CustomHeader.txt");
  EXPECT_TRUE(stored == one + "\r\n" || stored == other + "\r\n") << stored.size();
  EXPECT_EQ(ReadFolder(home.Path()).size(), 1U);
}

TEST(TwoAtOnce, NoAddedRecordIsLost) {
  const TemporaryFolder home;
  const auto add = [&](const char* text) {
    return std::vector<std::string>{SAVE_PROGRAM, "record", home.Path(), text};
  };
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
