#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <functional>
#include <iterator>
#include <map>
#include <set>
#include <sstream>

#include "FaultyRun.h"
#include "FolderContent.h"

// Makes each call to the file system go wrong, one in each run, in every way that can happen to it, and kills the
// program there: before the call, or with half of the bytes written.

namespace folionet::test {
namespace {

constexpr int kHung = 124;
constexpr int kKilled = 128 + SIGKILL;

// A file that gets its name when it is whole.
bool IsNameless(const Call& call) { return call.path.ends_with("/.") || call.path.find("/#") != std::string::npos; }

std::vector<std::string> KindsOf(const Call& struck) {
  const std::string& call = struck.name;
  static const std::map<std::string, std::vector<int>> errors{{"open", {EACCES, EMFILE, EIO, EINTR}},
                                                              {"create", {EACCES, EMFILE, ENOSPC, EIO, EINTR}},
                                                              {"read", {EIO, EINTR}},
                                                              {"write", {ENOSPC, EIO, EINTR}},
                                                              {"ftruncate", {EIO, EINTR}},
                                                              {"allocate", {ENOSPC, EOPNOTSUPP, EINTR}},
                                                              {"map", {ENODEV}},
                                                              {"close", {EIO, ENOSPC, EINTR}},
                                                              {"fsync", {EIO, ENOSPC, EINTR}},
                                                              {"unlink", {EACCES, EIO}},
                                                              {"rename", {EACCES, ENOSPC, EIO}},
                                                              {"stat", {EIO, ESTALE}},
                                                              {"chmod", {EPERM}},
                                                              {"lock", {ENOLCK, EWOULDBLOCK, EINTR}},
                                                              {"link", {ENOSPC, EIO, EOPNOTSUPP}},
                                                              {"mkdir", {EACCES, ENOSPC, EIO}},
                                                              {"opendir", {EACCES, EMFILE}},
                                                              {"readdir", {EIO}}};
  std::vector<std::string> kinds{"kill"};
  for (const int error : errors.at(call)) kinds.push_back(std::to_string(error));
  if (call == "read" || call == "write") kinds.emplace_back("short");
  if (call == "write") kinds.emplace_back("torn");
  // As a file system says that has no files without a name.
  if (call == "create" && IsNameless(struck)) kinds.push_back(std::to_string(EOPNOTSUPP));
  return kinds;
}

// What is done over and over, each time in a folder of its own.
struct Job {
  std::string name;
  std::function<void(const TemporaryFolder&)> arrange;
  std::function<Command(const TemporaryFolder&)> command;
  std::set<std::string> calls;  // their names: none that the program makes may go by unseen
  std::string watched = {};     // the folder below the home, where it is not all of it
  bool isSample = false;        // each call that writes is struck once only, each in another way
  std::size_t mostKinds = 99;   // of ways to go wrong that are tried at a call

  FaultyRun Run(const TemporaryFolder& home, const Fault& fault = {}) const {
    return RunFaulty(command(home), home, home.Path() + watched, fault);
  }

  std::vector<std::string> KindsAt(const std::vector<Call>& all, std::size_t at) const {
    std::vector<std::string> kinds = KindsOf(all[at - 1]);
    if (kinds.size() > mostKinds) kinds.resize(mostKinds);
    if (!isSample) return kinds;
    static const std::set<std::string> writing{"create", "write", "fsync", "rename"};
    if (!writing.contains(all[at - 1].name)) return {};
    return {kinds[at % kinds.size()]};
  }
};

void PrintTo(const Job& job, std::ostream* stream) { *stream << job.name; }

// What every program must take in its stride.
bool IsHarmless(const std::string& kind, const Call& call) {
  return kind == "short" || kind == std::to_string(EINTR) ||
         (kind == std::to_string(EOPNOTSUPP) && call.name == "create");
}

bool IsOneOf(const std::string& name, const std::set<std::string>& names) { return names.contains(name); }

// What a person has: not the program's own notes of what it has changed.
FolderContent Visible(const TemporaryFolder& home) {
  FolderContent content = ReadFolder(home.Path());
  std::erase_if(content, [](const auto& file) { return file.first.starts_with("state/"); });
  return content;
}

// The program's own notes of changes and of the places of windows, which nobody misses.
bool IsNote(const Call& call) {
  return call.path.find("/state/") != std::string::npos || call.path.find("FolionetForms") != std::string::npos;
}

// What the compile over an older site takes away, and the file of a person that it keeps under another name.
bool IsToRemove(const std::string& name) { return name.starts_with("site/genesis_"); }
constexpr char kKept[] = "site/genesis_1.html.before-folionet";

std::string LastPart(std::string path) {
  if (path.ends_with('/')) path.pop_back();
  return path.substr(path.rfind('/') + 1);
}

class EveryCall : public testing::Test {
 protected:
  void TryAll(const Job& job, const std::function<void(const TemporaryFolder&, const FaultyRun&, const Call&)>& check) {
    const TemporaryFolder first;
    job.arrange(first);
    const auto [result, calls] = job.Run(first);
    m_told = result.output;
    std::set<std::string> names;
    for (const Call& call : calls) names.insert(call.name);
    names.erase("link");  // where the file system has files without a name
    EXPECT_EQ(names, job.calls);
    m_after = Visible(first);
    for (std::size_t at = 1; at <= calls.size(); ++at) {
      for (const std::string& kind : job.KindsAt(calls, at)) {
        SCOPED_TRACE("call " + std::to_string(at) + ", " + calls[at - 1].name + " " + calls[at - 1].path + ", " + kind);
        const TemporaryFolder home;
        job.arrange(home);
        m_before = Visible(home);
        const FaultyRun run = job.Run(home, {at, kind});
        // Up to the call that goes wrong a run is the same each time, but for the folder.
        const Call& struck = run.calls[at - 1];
        ASSERT_EQ(struck.name, calls[at - 1].name);
        m_isKilled = kind == "kill" || kind == "torn";
        EXPECT_TRUE(m_isKilled ? run.result.status == kKilled : run.result.status < kHung) << run.result.status;
        EXPECT_TRUE(run.result.status == 0 || !IsHarmless(kind, struck)) << run.result.errors;
        const bool writes = IsOneOf(struck.name, {"create", "link", "write", "ftruncate", "fsync", "rename"}) ||
                            (struck.name == "close" && IsOneOf(run.calls[at - 2].name, {"write", "ftruncate"}));
        const auto lines = [](const std::string& text) { return std::count(text.begin(), text.end(), '\n'); };
        const bool isTold = run.result.status != 0 || lines(run.result.output) > lines(m_told);
        EXPECT_TRUE(isTold || !writes || IsHarmless(kind, struck) || IsNote(struck) || struck.path.ends_with(kKept))
            << "nothing is told";
        check(home, run, struck);
      }
    }
  }

  void ExpectReport(const FaultyRun& run, const std::string& name) const {
    EXPECT_TRUE(m_isKilled || run.result.errors.find(name) != std::string::npos)
        << "The report does not name " << name << ": " << run.result.errors;
  }

  FolderContent m_before;  // what the folder holds before the job and after it
  FolderContent m_after;
  std::string m_told;  // on standard output, where nothing goes wrong
  bool m_isKilled = false;
};

class Compiles : public EveryCall {
 protected:
  static void ArrangeLibrary(const TemporaryFolder& home) {
    MakeSmallLibrary(home);
    home.Write("program/CustomHeader.txt", "<p>the header</p>\r\n");
    home.Write("program/CustomFooter.txt", "<p>the footer</p>\r\n");
    home.Write("config/Folionet.ini", "[Keys]\nchkCSS=1\nPageTitles=%bible%: %bk% %ch%\n");
  }

  static Command Compile(const Command& more) {
    return CompileCommand(With({"--index-address=index.html", "--translation=KJV"}, more));
  }

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
      FolderContent now = Visible(home);
      const std::string name = struck.path.substr(home.Path().size());
      if (run.result.status == 0) {
        // Files that cannot be taken away are passed over, and a person's one is then not kept beside.
        FolderContent expected = m_after;
        if (!IsOneOf(struck.name, {"create", "write", "close"})) {
          std::erase_if(now, [&](const auto& file) { return IsToRemove(file.first) && !m_after.contains(file.first); });
          if (!now.contains(kKept)) expected.erase(kKept);
        }
        EXPECT_EQ(DescribeDifference(expected, now), "");
      } else {
        // A translation whose text cannot be opened is not among those there are; it is told by its stem.
        ExpectReport(run, struck.path.ends_with("/KJV.TXT") ? "KJV" : IsNameless(struck) ? "" : LastPart(struck.path));
        ExpectWholePages(now, name);
      }
      EXPECT_EQ(job.Run(home).result.status, 0);
      EXPECT_EQ(DescribeDifference(m_after, Visible(home)), "") << "after the next compile";
    });
  }
};

TEST_F(Compiles, IntoANewFolder) {
  TryCompile({"anew",
              ArrangeLibrary,
              [](const TemporaryFolder&) { return Compile({"--output=made/site"}); },
              {"allocate", "close", "create", "ftruncate", "lock", "map", "mkdir", "open", "opendir", "read", "readdir",
               "stat", "unlink", "write"}});
}

// With the books before the second one taken away.
TEST_F(Compiles, OverAnOlderSite) {
  const auto arrange = [](const TemporaryFolder& home) {
    ArrangeLibrary(home);
    home.Write("site/genesis_1.html", "a person's page");
    const std::string ours = "<meta name=\"GENERATOR\" content=\"Versalia Folionet Ver 1.0\">";
    home.Write("site/exodus_1.html", ours + std::string(5000, 'x'));
    home.Write("site/exodus_2.html", ours + "shorter");
    home.Write("site/not-ours.html", "not ours");
  };
  TryCompile({"over",
              arrange,
              [](const TemporaryFolder&) {
                return Compile({"--output=site", "--start-book=2"});
              },
              {"allocate", "close", "create", "ftruncate", "lock", "map", "mkdir", "open", "opendir", "read", "readdir",
               "rename", "stat", "unlink", "write"}});
}

// With the names of the pages that it has changed by then, and no page in part.
TEST_F(Compiles, EndBetweenTwoPagesOnceTheyAreStopped) {
  const Job job{"stopped",
                [](const TemporaryFolder& home) {
                  ArrangeLibrary(home);
                  home.Write("site/exodus_1.html", std::string(5000, 'x'));
                },
                [](const TemporaryFolder&) {
                  return Compile({"--output=site", "--list-changed"});
                },
                {}};
  const TemporaryFolder first;
  job.arrange(first);
  const std::vector<Call> calls = job.Run(first).calls;
  int stopped = 0;
  for (std::size_t at = 1; at <= calls.size(); ++at) {
    if (calls[at - 1].name != "write" || IsNote(calls[at - 1])) continue;
    const int signal = stopped % 2 == 0 ? SIGTERM : SIGINT;
    const TemporaryFolder home;
    job.arrange(home);
    const FaultyRun run = job.Run(home, {at, "stop" + std::to_string(signal)});
    EXPECT_EQ(run.result.status, 128 + signal);
    std::size_t listed = 0;
    for (const auto& [name, bytes] : ReadFolder(home.Path() + "site")) {
      if (name.ends_with(".before-folionet")) continue;
      if (bytes == std::string(5000, 'x')) continue;
      EXPECT_TRUE(name == "default.css" || bytes.ends_with("</html>\r\n")) << name;
      EXPECT_NE(("\n" + run.result.output).find("\n" + name + "\n"), std::string::npos) << name << " is not listed";
      ++listed;
    }
    EXPECT_EQ(std::count(run.result.output.begin(), run.result.output.end(), '\n'),
              static_cast<std::ptrdiff_t>(listed));
    ++stopped;
  }
  EXPECT_GT(stopped, 5);
}

// The list of the run that was killed is lost with it: the next one tells all that the two have changed.
TEST_F(Compiles, ThatWereKilledAreToldByTheNextOne) {
  const Job job{"killed",
                [](const TemporaryFolder& home) {
                  ArrangeLibrary(home);
                  home.Write("site/exodus_1.html", std::string(5000, 'x'));
                },
                [](const TemporaryFolder&) {
                  return Compile({"--output=site", "--list-changed"});
                },
                {}};
  const TemporaryFolder first;
  job.arrange(first);
  const auto [whole, calls] = job.Run(first);
  const auto lines = [](const std::string& text) {
    std::istringstream rest(text);
    return std::multiset<std::string>(std::istream_iterator<std::string>(rest), {});
  };
  ASSERT_GT(lines(whole.output).size(), 5U);
  for (std::size_t at = 1; at <= calls.size(); ++at) {
    if (!IsOneOf(calls[at - 1].name, {"create", "write", "link", "close", "map", "unlink"})) continue;
    SCOPED_TRACE("call " + std::to_string(at) + ", " + calls[at - 1].name + " " + calls[at - 1].path);
    const TemporaryFolder home;
    job.arrange(home);
    const FaultyRun killed = job.Run(home, {at, "kill"});
    const bool isDelivered = killed.result.output == whole.output;
    EXPECT_TRUE(isDelivered || lines(job.Run(home).result.output) == lines(whole.output));
  }
}

// A check of the site says the same, or names what it could not read.
TEST_F(Compiles, AreVerifiedOrWhatCannotBeReadIsNamed) {
  const Job job{"verify",
                [](const TemporaryFolder& home) {
                  home.Write("site/index.html", "<html><a href=\"sub/a.html\">a</a><img src=\"b.gif\"></html>\r\n");
                  home.Write("site/sub/a.html", "<html><a href=\"../index.html\">b</a></html>\r\n");
                  home.Write("site/b.gif", "");
                },
                [](const TemporaryFolder&) {
                  return Command{FOLIONET_CLI, "verify", "site"};
                },
                {"close", "open", "opendir", "read", "readdir", "stat"}};
  TryAll(job, [&](const TemporaryFolder&, const FaultyRun& run, const Call& struck) {
    const std::string all = run.result.output + run.result.errors;
    EXPECT_TRUE(m_isKilled || all == m_told || all.find(LastPart(struck.path)) != std::string::npos) << all;
  });
}

Job Save(const std::string& what, const std::string& file, const std::string& before) {
  const std::set<std::string> replaces{"chmod", "close",     "create", "fsync", "lock",
                                       "open",  "ftruncate", "rename", "stat",  "write"};
  std::set<std::string> edits = replaces;
  edits.insert("read");
  return {what, [=](const TemporaryFolder& home) { home.Write(file, before); },
          [=](const TemporaryFolder& home) {
            return Command{SAVE_PROGRAM, what, home.Path(), "the new text, \"quoted\""};
          },
          what == "header" ? replaces : edits};
}

class SavesOf : public EveryCall, public testing::WithParamInterface<Job> {};

TEST_P(SavesOf, LeaveTheOldOrTheNewAndNothingElse) {
  TryAll(GetParam(), [&](const TemporaryFolder& home, const FaultyRun& run, const Call& struck) {
    FolderContent now = Visible(home);
    // What is told is the file that a person knows, not the one on its way to take its place.
    if (run.result.status != 0) ExpectReport(run, LastPart(m_after.begin()->first));
    for (const auto& [name, bytes] : m_after) {
      ASSERT_TRUE(now.contains(name)) << name << " is gone";
      EXPECT_TRUE(bytes == now[name] || (run.result.status != 0 && m_before[name] == now[name])) << now[name];
      now.erase(name);
    }
    // A file that could not be taken away, or was not because the program was killed, may stay until the next save.
    EXPECT_TRUE(now.empty() || IsOneOf(struck.name, {"unlink", "stat"}) || m_isKilled) << DescribeDifference({}, now);
    GetParam().arrange(home);
    EXPECT_EQ(GetParam().Run(home).result.status, 0);
    EXPECT_EQ(DescribeDifference(m_after, Visible(home)), "") << "after the next save";
  });
}

INSTANTIATE_TEST_SUITE_P(Every, SavesOf,
                         testing::Values(Save("settings", "Folionet.ini",
                                              "[Keys]\nDir1=the old text\nKeywords=kept, as it is\n"),
                                         Save("header", "CustomHeader.txt", "<p>the old header</p>\r\n"),
                                         Save("record", "lang.txt", "\"en-us\",\"English USA\"\r\n")),
                         [](const auto& parameter) { return parameter.param.name; });

class SavesTogether : public EveryCall {
 protected:
  const std::set<std::string> m_calls{"chmod", "close", "create", "fsync", "ftruncate", "lock",
                                      "open",  "read",  "rename", "stat",  "unlink",    "write"};
};

// A letter that the new charset lacks is kept in a file of its own.
TEST_F(SavesTogether, GiveAllFilesTheirNewContentOrNone) {
  const auto arrange = [](const TemporaryFolder& home) {
    home.Write("Folionet.ini", "[Keys]\nCharset=windows-1252 x\n");
    home.Write("CustomHeader.txt", "caf\xE9\r\n");
    home.Write("lang.txt",
               "\"fr\",\"Fran\xE7"
               "ais\"\r\n");
  };
  const auto command = [](const TemporaryFolder& home) {
    return Command{SAVE_PROGRAM, "encoding", home.Path(), "koi8-r (Cyrillic)"};
  };
  const Job job{"encoding", arrange, command, m_calls};
  TryAll(job, [&](const TemporaryFolder& home, const FaultyRun& run, const Call& struck) {
    const auto now = [&] {
      FolderContent content = Visible(home);
      // What a killed program leaves of files on their way is used again.
      std::erase_if(content, [](const auto& file) { return file.first.ends_with(".folionet-new"); });
      return content;
    };
    // A killed program's change is finished by the next start; so is one whose note could not be opened by this one.
    const bool isNote = struck.path.ends_with("/.Folionet.unfinished");
    if (m_isKilled || isNote) RunProgram({SAVE_PROGRAM, "finish", home.Path(), ""}, home.Path());
    const FolderContent content = now();
    EXPECT_TRUE(content == m_after || (content == m_before && run.result.status != 0))
        << DescribeDifference(m_before, content) << DescribeDifference(m_after, content);
    EXPECT_EQ(job.Run(home).result.status, 0);
    EXPECT_EQ(DescribeDifference(m_after, now()), "") << "after the next save";
  });
}

#ifdef WITH_FORM
// In the program of the form: the header, the encoding and, at exit, all options.
TEST_F(SavesTogether, OfTheFormAreToldWhenTheyFail) {
  const auto arrange = [](const TemporaryFolder& home) {
    MakeSmallLibrary(home);
    home.Write("config/program/default.css", "body {}\n");
    home.Write("config/program/lang.txt", "\"en-us\",\"English USA\"\r\n");
    home.Write("config/program/enc.txt", "\"windows-1252\",\"(ANSI Latin 1)\"\r\n\"utf-8\",\"(Unicode)\"\r\n");
    home.Write("config/program/CustomHeader.txt", "caf\xE9\r\n");
    home.Write("config/Folionet.ini", "[Keys]\nKeywords=kept\n");
  };
  const auto command = [](const TemporaryFolder&) {
    return Command{"/usr/bin/env",
                   "QT_QPA_PLATFORM=offscreen",
                   "QT_QPA_GENERIC_PLUGINS=person",
                   "QT_PLUGIN_PATH=" PERSON_PLUGINS,
                   "PERSON=cmdCustomHeader|frmCustomHeader.Text1=typed|frmCustomHeader.Command1|chkDoubleSpace|"
                   "cmdPageEncoding|frmEncoding.cboCharset=utf-8 (Unicode)|frmEncoding.cmdDone",
                   std::filesystem::path(FOLIONET_CLI).replace_filename("folionet"),
                   "--versalia-path=installation",
                   "--program-folder=config/program"};
  };
  const Job job{"form", arrange, command, m_calls, "config/", true};
  TryAll(job, [&](const TemporaryFolder& home, const FaultyRun& run, const Call&) {
    FolderContent now = Visible(home);
    for (const auto& [name, bytes] : m_after) {
      if (name.ends_with("FolionetForms.ini")) continue;  // the places of windows
      const bool isWhole = now[name] == bytes || now[name] == m_before[name];
      EXPECT_TRUE(isWhole || name.ends_with("Folionet.ini")) << name << " is neither old nor new: " << now[name];
    }
    EXPECT_NE(now["config/Folionet.ini"].find("Keywords=kept\n"), std::string::npos) << now["config/Folionet.ini"];
    EXPECT_TRUE(m_isKilled || now["config/Folionet.ini"].find("chkDoubleSpace=1\n") != std::string::npos)
        << run.result.output;
  });
}
#endif

class Imports : public EveryCall {};

// The next start completes what a killed import has left.
TEST_F(Imports, ReplaceAllFilesOfATextOrNone) {
  const Command import{FOLIONET_CLI, "import", "text", "--name=Text", "--into=lib", "--replace", "--quiet"};
  const TemporaryFolder made;
  made.Write("text", "Ge1:1 old\nGe1:2 text\n");
  ASSERT_EQ(RunProgram(import, made.Path()).errors, "");
  const FolderContent library = ReadFolder(made.Path());
  const Job job{"import",
                [&](const TemporaryFolder& home) {
                  for (const auto& [name, bytes] : library) home.Write(name, bytes);
                  home.Write("text", "JON 1:1 the new \xD7\x91\n");
                },
                [&](const TemporaryFolder&) { return import; },
                {"chmod", "close", "create", "fsync", "ftruncate", "lock", "mkdir", "open", "read", "rename", "stat",
                 "unlink", "write"},
                {},
                false,
                2};
  TryAll(job, [&](const TemporaryFolder& home, const FaultyRun& run, const Call& struck) {
    const auto now = [&] {
      FolderContent content = Visible(home);
      std::erase_if(content, [](const auto& file) { return file.first.ends_with(".folionet-new"); });
      return content;
    };
    const bool isNote = struck.path.ends_with("/.Folionet.import");
    if (m_isKilled || isNote) RunCli({"list", "languages", "--versalia-path=lib"}, home.Path());
    const FolderContent content = now();
    EXPECT_TRUE(content == m_after || (content == m_before && run.result.status != 0))
        << DescribeDifference(m_before, content) << DescribeDifference(m_after, content);
    if (content == m_after) return;
    EXPECT_EQ(job.Run(home).result.status, 0);
    EXPECT_EQ(DescribeDifference(m_after, now()), "") << "after the next import";
  });
}

}  // namespace
}  // namespace folionet::test
