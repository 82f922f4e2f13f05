#include "EveryCall.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <map>

namespace folionet::test {
namespace {

constexpr int kSignalled = 128;
constexpr int kKilled = kSignalled + SIGKILL;

std::vector<std::string> KindsOf(const Call& struck) {
  const std::string& call = struck.name;
  static const std::map<std::string, std::vector<int>> errors{{"open", {EACCES, EMFILE, EIO, EINTR}},
                                                              {"create", {EACCES, EMFILE, ENOSPC, EIO, EINTR}},
                                                              {"read", {EIO, EINTR}},
                                                              {"write", {ENOSPC, EIO, EINTR}},
                                                              {"ftruncate", {EIO, EINTR}},
                                                              {"close", {EIO, ENOSPC, EINTR}},
                                                              {"fsync", {EIO, ENOSPC, EINTR}},
                                                              {"unlink", {EACCES, EIO}},
                                                              {"rename", {EACCES, ENOSPC, EIO}},
                                                              {"stat", {EIO, ESTALE}},
                                                              {"chmod", {EPERM}},
                                                              {"lock", {ENOLCK, EWOULDBLOCK, EINTR}},
                                                              {"link", {ENOSPC, EIO, EOPNOTSUPP}},
                                                              {"mkdir", {EACCES, ENOSPC, EIO}},
                                                              {"readdir", {EIO}}};
  std::vector<std::string> kinds{"kill"};
  for (const int error : errors.at(call)) kinds.push_back(std::to_string(error));
  if (call == "read" || call == "write") kinds.emplace_back("short");
  if (call == "write") kinds.emplace_back("torn");
  // As a file system says that has no files without a name.
  if (call == "create" && IsNameless(struck)) kinds.push_back(std::to_string(EOPNOTSUPP));
  return kinds;
}

std::vector<std::string> KindsAt(const Job& job, const std::vector<Call>& all, std::size_t at) {
  std::vector<std::string> kinds = KindsOf(all[at - 1]);
  if (kinds.size() > job.mostKinds) kinds.resize(job.mostKinds);
  if (!job.isSample) return kinds;
  static const std::set<std::string> writing{"chmod", "close", "create", "fsync", "ftruncate", "rename", "write"};
  if (!writing.contains(all[at - 1].name)) return {};
  return {kinds[at % kinds.size()]};
}

// What every program must take in its stride.
bool IsHarmless(const std::string& kind, const Call& call) {
  return kind == "short" || kind == std::to_string(EINTR) ||
         (kind == std::to_string(EOPNOTSUPP) && call.name == "create");
}

// The call that goes wrong may lose what was to be written.
bool Writes(const FaultyRun& run, std::size_t at) {
  static const std::set<std::string> writing{"create", "link", "write", "ftruncate", "fsync", "rename"};
  const std::string& name = run.calls[at - 1].name;
  return writing.contains(name) ||
         (name == "close" && (run.calls[at - 2].name == "write" || run.calls[at - 2].name == "ftruncate"));
}

// The file of a person may then not be kept beside the page.
bool IsKept(const Call& call) { return call.path.ends_with(".before-folionet"); }

std::ptrdiff_t Lines(const std::string& text) { return std::count(text.begin(), text.end(), '\n'); }

}  // namespace

FolderContent Visible(const TemporaryFolder& home) {
  FolderContent content = ReadFolder(home.Path());
  std::erase_if(content, [](const auto& file) { return file.first.starts_with("state/"); });
  return content;
}

bool IsNote(const Call& call) {
  return call.path.find("/state/") != std::string::npos || call.path.find("FolionetForms") != std::string::npos;
}

bool IsNameless(const Call& call) { return call.path.ends_with("/.") || call.path.find("/#") != std::string::npos; }

std::string LastPart(std::string path) {
  if (path.ends_with('/')) path.pop_back();
  return path.substr(path.rfind('/') + 1);
}

void EveryCall::TryAll(const Job& job, const Check& check) {
  const TemporaryFolder first;
  job.arrange(first);
  const auto [result, calls] = job.Run(first);
  m_told = result.output;
  std::set<std::string> names;
  for (const Call& call : calls) names.insert(call.name);
  names.erase("link");  // where the file system has files without a name
  EXPECT_EQ(names, job.calls);
  m_after = Visible(first);
  Counts counts;
  for (std::size_t at = 1; at <= calls.size(); ++at) {
    for (const std::string& kind : KindsAt(job, calls, at)) {
      SCOPED_TRACE("call " + std::to_string(at) + ", " + calls[at - 1].name + " " + calls[at - 1].path + ", " + kind);
      Try(job, {at, kind}, check);
      ++counts.runs;
      if (m_isKilled) ++counts.kills;
    }
  }
  PrintCounts(job.name, calls.size(), counts);
}

void EveryCall::StrikeEach(const Job& job, const std::vector<std::string>& kinds, const std::set<std::string>& names,
                           const Look& look) {
  const TemporaryFolder first;
  job.arrange(first);
  const FaultyRun whole = job.Run(first);
  look(first, whole, "");
  Counts counts;
  for (std::size_t at = 1; at <= whole.calls.size(); ++at) {
    const Call& call = whole.calls[at - 1];
    if (!names.empty() && !names.contains(call.name)) continue;
    m_struck = call;
    for (const std::string& kind : kinds) {
      SCOPED_TRACE("call " + std::to_string(at) + ", " + call.name + " " + call.path + ", " + kind);
      const TemporaryFolder home;
      job.arrange(home);
      m_notes = ReadFolder(home.Path() + "state");
      look(home, job.Run(home, {at, kind}), kind);
      ++counts.runs;
      counts.kills += kind == "kill" ? 1 : 0;
    }
  }
  PrintCounts(job.name, whole.calls.size(), counts);
}

void EveryCall::PrintCounts(const std::string& job, std::size_t calls, const Counts& counts) {
  std::printf("| %s | %zu | %zu | %zu |\n", job.c_str(), calls, counts.runs, counts.kills);
}

void EveryCall::Try(const Job& job, const Fault& fault, const Check& check) {
  const TemporaryFolder home;
  job.arrange(home);
  m_before = Visible(home);
  const FaultyRun run = job.Run(home, fault);
  const Call& struck = run.calls[fault.at - 1];
  m_isKilled = fault.kind == "kill" || fault.kind == "torn";
  EXPECT_TRUE(m_isKilled ? run.result.status == kKilled : run.result.status < kSignalled) << run.result.status;
  const bool isHarmless = IsHarmless(fault.kind, struck);
  EXPECT_TRUE(run.result.status == 0 || !isHarmless) << run.result.errors;
  const bool isTold = run.result.status != 0 || Lines(run.result.output) > Lines(m_told);
  EXPECT_TRUE(isTold || !Writes(run, fault.at) || isHarmless || IsNote(struck) || IsKept(struck)) << "nothing is told";
  check(home, run, struck);
}

void EveryCall::TryOneChange(const Job& job, const std::string& note, const Command& start) {
  const auto seen = [](const TemporaryFolder& home) {
    FolderContent content = Visible(home);
    // What a killed program leaves of files on their way is used again.
    std::erase_if(content, [](const auto& file) { return file.first.ends_with(".folionet-new"); });
    return content;
  };
  TryAll(job, [&](const TemporaryFolder& home, const FaultyRun& run, const Call& struck) {
    // A change whose note could not be opened by this run is finished by the next start too.
    if (m_isKilled || struck.path.ends_with(note)) RunProgram(start, home.Path());
    const FolderContent content = seen(home);
    EXPECT_TRUE(content == m_after || (content == m_before && run.result.status != 0))
        << DescribeDifference(m_before, content) << DescribeDifference(m_after, content);
    if (content == m_after) return;
    EXPECT_EQ(job.Run(home).result.status, 0);
    EXPECT_EQ(DescribeDifference(m_after, seen(home)), "") << "after the next change";
  });
}

void EveryCall::ExpectReport(const FaultyRun& run, const std::string& name) const {
  EXPECT_TRUE(m_isKilled || run.result.errors.find(name) != std::string::npos)
      << "The report does not name " << name << ": " << run.result.errors;
}

}  // namespace folionet::test
