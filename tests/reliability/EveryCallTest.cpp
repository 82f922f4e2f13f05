#include <gtest/gtest.h>

#include <cerrno>
#include <map>

#include "FaultyRun.h"

// Makes each call to the file system go wrong, one in each run, in every way that can happen to it.

namespace folionet::test {
namespace {

constexpr int kFirstCrash = 124;  // the statuses of a program that hung or was ended by a signal

const std::vector<std::string>& KindsOf(const std::string& call) {
  const auto kinds = [](std::initializer_list<int> errors, std::initializer_list<const char*> more = {}) {
    std::vector<std::string> texts;
    for (const int error : errors) texts.push_back(std::to_string(error));
    texts.insert(texts.end(), more.begin(), more.end());
    return texts;
  };
  static const std::map<std::string, std::vector<std::string>> table{
      {"open", kinds({EACCES, EMFILE, EIO, EINTR})},
      {"create", kinds({EACCES, EMFILE, ENOSPC, EIO, EINTR})},
      {"read", kinds({EIO, EINTR}, {"short"})},
      {"write", kinds({ENOSPC, EIO, EINTR}, {"short"})},
      {"ftruncate", kinds({EIO, EINTR})},
      {"close", kinds({EIO, ENOSPC, EINTR})},
      {"fsync", kinds({EIO, ENOSPC, EINTR})},
      {"unlink", kinds({EACCES, EIO})},
      {"rename", kinds({EACCES, ENOSPC, EIO})},
      {"link", kinds({EACCES, ENOSPC})},
      {"mkdir", kinds({EACCES, ENOSPC, EIO})},
      {"opendir", kinds({EACCES, EMFILE})},
      {"readdir", kinds({EIO})}};
  return table.at(call);
}

// What every program must take in its stride.
bool IsHarmless(const std::string& kind) { return kind == "short" || kind == std::to_string(EINTR); }

std::string LastPart(std::string path) {
  if (path.ends_with('/')) path.pop_back();
  return path.substr(path.rfind('/') + 1);
}

class EveryCall : public testing::Test {
 protected:
  void TryAll(const Job& job, const std::function<void(const TemporaryFolder&, const FaultyRun&, const Call&)>& check) {
    const TemporaryFolder first;
    job.arrange(first);
    const std::vector<Call> calls = RunFaulty(job.command(first), first).calls;
    ASSERT_GT(calls.size(), 5U);
    m_after = ReadFolder(first.Path());
    int runs = 0;
    for (std::size_t at = 1; at <= calls.size(); ++at) {
      for (const std::string& kind : KindsOf(calls[at - 1].name)) {
        const Fault fault{at, kind};
        SCOPED_TRACE(Describe(fault, calls[at - 1]));
        const TemporaryFolder home;
        job.arrange(home);
        m_before = ReadFolder(home.Path());
        const FaultyRun run = RunFaulty(job.command(home), home, fault);
        // Up to the call that goes wrong a run is the same each time, but for the folder.
        const Call& struck = run.calls[at - 1];
        ASSERT_EQ(struck.name, calls[at - 1].name);
        EXPECT_LT(run.result.status, kFirstCrash) << run.result.errors;
        EXPECT_TRUE(run.result.status == 0 || !IsHarmless(kind)) << run.result.errors;
        check(home, run, struck);
        ++runs;
      }
    }
    RecordProperty("calls", static_cast<int>(calls.size()));
    RecordProperty("runs", runs);
  }

  static void ExpectReport(const FaultyRun& run, const std::string& name) {
    EXPECT_NE(run.result.errors.find(name), std::string::npos)
        << "The report does not name " << name << ": " << run.result.errors;
  }

  FolderContent m_before;  // what the folder holds before the job and after it
  FolderContent m_after;
};

class Compiles : public EveryCall {
 protected:
  // Every file is as it was or as it shall be, but for the page that was being written.
  void ExpectWholePages(const FolderContent& now, const std::string& struck) {
    for (const auto& [name, bytes] : now) {
      const bool isOld = m_before.contains(name) && m_before.at(name) == bytes;
      const bool isNew = m_after.contains(name) && m_after.at(name) == bytes;
      // Pages of the books before the start book are written and taken away later.
      const bool isWhole = bytes.starts_with("<html>") && bytes.ends_with("</html>\r\n");
      EXPECT_TRUE(isOld || isNew || isWhole || name == struck) << name << " is neither old nor new";
    }
    for (const auto& [name, bytes] : m_before) {
      EXPECT_TRUE(now.contains(name) || !m_after.contains(name)) << name << " is gone";
    }
  }

  void TryCompile(const Job& job) {
    TryAll(job, [&](const TemporaryFolder& home, const FaultyRun& run, const Call& struck) {
      FolderContent now = ReadFolder(home.Path());
      const std::string name = struck.path.substr(home.Path().size());
      if (run.result.status == 0) {
        // A page that cannot be taken away is passed over.
        if (struck.name == "unlink") now.erase(name);
        EXPECT_EQ(DescribeDifference(m_after, now), "");
      } else {
        // A translation whose text cannot be opened is not among those there are; it is told by its stem.
        ExpectReport(run, struck.path.ends_with("/KJV.TXT") ? "KJV" : LastPart(struck.path));
        ExpectWholePages(now, name);
      }
      if (struck.name == "unlink") return;
      EXPECT_EQ(RunFaulty(job.command(home), home).result.status, 0);
      EXPECT_EQ(DescribeDifference(m_after, ReadFolder(home.Path())), "") << "after the next compile";
    });
  }
};

TEST_F(Compiles, IntoANewFolder) { TryCompile(CompileAnew()); }

TEST_F(Compiles, OverAnOlderSite) { TryCompile(CompileOver()); }

class SavesOf : public EveryCall, public testing::WithParamInterface<Job> {};

TEST_P(SavesOf, LeaveTheOldOrTheNewAndNothingElse) {
  TryAll(GetParam(), [&](const TemporaryFolder& home, const FaultyRun& run, const Call& struck) {
    FolderContent now = ReadFolder(home.Path());
    // What is told is the file that a person knows, not the one on its way to take its place.
    if (run.result.status != 0) ExpectReport(run, LastPart(m_after.begin()->first));
    for (const auto& [name, bytes] : m_after) {
      ASSERT_TRUE(now.contains(name)) << name << " is gone";
      EXPECT_TRUE(bytes == now[name] || (run.result.status != 0 && m_before[name] == now[name])) << now[name];
      now.erase(name);
    }
    // A file that could not be taken away may stay until the next save.
    EXPECT_TRUE(now.empty() || struck.name == "unlink") << DescribeDifference({}, now);
    for (int i = 0; i < 2; ++i) EXPECT_EQ(RunFaulty(GetParam().command(home), home).result.status, 0);
    EXPECT_EQ(ReadFolder(home.Path()).size(), m_after.size());
  });
}

INSTANTIATE_TEST_SUITE_P(Every, SavesOf, testing::ValuesIn(Saves()),
                         [](const auto& parameter) { return parameter.param.name; });

}  // namespace
}  // namespace folionet::test
