#include <gtest/gtest.h>

#include <csignal>

#include "FaultyRun.h"

// Kills a program at its calls to the file system, one in each run: before the call, or with half of the bytes written.

namespace folionet::test {
namespace {

constexpr int kKilled = 128 + SIGKILL;
constexpr std::size_t kMoments = 200;

// The moments of a run, spread over all of it when there are more than are wanted.
std::vector<Fault> MomentsOf(const std::vector<Call>& calls) {
  std::vector<Fault> all;
  for (std::size_t at = 1; at <= calls.size(); ++at) {
    all.push_back({at, "kill"});
    if (calls[at - 1].name == "write") all.push_back({at, "torn"});
  }
  std::vector<Fault> some;
  for (std::size_t i = 0; i < kMoments && i < all.size(); ++i) {
    some.push_back(all[all.size() > kMoments ? i * all.size() / kMoments : i]);
  }
  return some;
}

std::vector<Call> CallsOf(const Job& job) {
  const TemporaryFolder home;
  job.arrange(home);
  return RunFaulty(job.command(home), home).calls;
}

// A site of sixty chapters over one of which every third page is older.
Job CompileMany() {
  Job job = CompileAnew();
  const auto arrangeSmall = job.arrange;
  job.arrange = [=](const TemporaryFolder& home) {
    arrangeSmall(home);
    std::string verses;
    for (int chapter = 1; chapter <= 60; ++chapter) {
      verses += "1\t1\t" + std::to_string(chapter) + "\t1\tA verse of chapter " + std::to_string(chapter) + ".\r\n";
      if (chapter % 3 == 0)
        home.Write("made/site/genesis_" + std::to_string(chapter) + ".html", std::string(9000, 'x'));
    }
    home.Write("installation/Modules/Bible/KJV.TXT", verses);
  };
  return job;
}

TEST(Killed, ACompileIsMadeGoodByTheNext) {
  const Job job = CompileMany();
  const FolderContent whole = ContentAfter(job);
  const std::vector<Fault> moments = MomentsOf(CallsOf(job));
  ASSERT_EQ(moments.size(), kMoments);
  for (const Fault& moment : moments) {
    const TemporaryFolder home;
    job.arrange(home);
    const FolderContent before = ReadFolder(home.Path());
    const FaultyRun run = RunFaulty(job.command(home), home, moment);
    SCOPED_TRACE(Describe(moment, run.calls.back()));
    ASSERT_EQ(run.result.status, kKilled) << run.result.errors;
    for (const auto& [name, bytes] : ReadFolder(home.Path())) {
      EXPECT_TRUE(whole.contains(name)) << name << " does not belong to the site";
      EXPECT_TRUE(name.starts_with("made/") || before.at(name) == bytes) << name << " has changed";
    }
    EXPECT_EQ(RunFaulty(job.command(home), home).result.status, 0);
    ASSERT_EQ(DescribeDifference(whole, ReadFolder(home.Path())), "");
  }
}

class KilledSave : public testing::TestWithParam<Job> {};

TEST_P(KilledSave, LeavesTheOldOrTheNew) {
  const Job& job = GetParam();
  const FolderContent after = ContentAfter(job);
  const std::string file = after.begin()->first;
  const std::vector<Fault> moments = MomentsOf(CallsOf(job));
  ASSERT_GT(moments.size(), 6U);
  const TemporaryFolder home;  // the same for all: what one killed program leaves must not hinder the next
  for (const Fault& moment : moments) {
    job.arrange(home);
    const std::string before = ReadFolder(home.Path()).at(file);
    const FaultyRun run = RunFaulty(job.command(home), home, moment);
    SCOPED_TRACE(Describe(moment, run.calls.back()));
    ASSERT_EQ(run.result.status, kKilled) << run.result.errors;
    const FolderContent now = ReadFolder(home.Path());
    EXPECT_TRUE(now.at(file) == before || now.at(file) == after.at(file)) << now.at(file);
    for (const auto& [name, bytes] : now) EXPECT_TRUE(name.starts_with(file)) << name;
    const FaultyRun next = RunFaulty(job.command(home), home);
    EXPECT_EQ(next.result.status, 0) << next.result.errors;
    job.arrange(home);
    EXPECT_EQ(RunFaulty(job.command(home), home).result.status, 0);
    EXPECT_EQ(DescribeDifference(after, ReadFolder(home.Path())), "") << "something is left over";
  }
  RecordProperty("moments", static_cast<int>(moments.size()));
}

INSTANTIATE_TEST_SUITE_P(Every, KilledSave, testing::ValuesIn(Saves()),
                         [](const auto& parameter) { return parameter.param.name; });

}  // namespace
}  // namespace folionet::test
