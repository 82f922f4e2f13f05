#include <algorithm>
#include <csignal>
#include <iterator>
#include <set>
#include <sstream>

#include "EveryCall.h"

// Each call of a compile, and of a check of its site.

namespace folionet::test {
namespace {

// What the compile over an older site takes away, and the file of a person that it keeps under another name.
bool IsToRemove(const std::string& name) { return name.starts_with("site/genesis_"); }
constexpr char kKept[] = "site/genesis_1.html.before-folionet";

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

  static bool HasWritten(const FaultyRun& run, const std::string& path) {
    return std::any_of(run.calls.begin(), run.calls.end(),
                       [&](const Call& call) { return call.name == "write" && call.path == path; });
  }

  void TryCompile(const Job& job) {
    TryAll(job, [&](const TemporaryFolder& home, const FaultyRun& run, const Call& struck) {
      FolderContent now = Visible(home);
      const std::string name = struck.path.substr(home.Path().size());
      if (run.result.status == 0) {
        // Files that cannot be taken away are passed over, and a person's one is then not kept beside.
        FolderContent expected = m_after;
        if (!(struck.name == "create" || struck.name == "write" || struck.name == "close")) {
          std::erase_if(now, [&](const auto& file) { return IsToRemove(file.first) && !m_after.contains(file.first); });
          if (!now.contains(kKept)) expected.erase(kKept);
        }
        EXPECT_EQ(DescribeDifference(expected, now), "");
      } else {
        // A translation whose text cannot be opened is not among those there are; it is told by its stem.
        ExpectReport(run, struck.path.ends_with("/KJV.TXT") ? "KJV" : IsNameless(struck) ? "" : LastPart(struck.path));
        ExpectWholePages(now, name);
      }
      const FaultyRun next = job.Run(home);
      EXPECT_EQ(next.result.status, 0);
      EXPECT_EQ(DescribeDifference(m_after, Visible(home)), "") << "after the next compile";
      const bool isLostPage = struck.name == "close" && HasWritten(run, struck.path) && run.result.status != 0;
      EXPECT_TRUE(!isLostPage || m_isKilled || IsNameless(struck) || HasWritten(next, struck.path));
    });
  }

  // Lists what it changes over a page of a person.
  const Job m_list{"list",
                   [](const TemporaryFolder& home) {
                     ArrangeLibrary(home);
                     home.Write("site/exodus_1.html", std::string(5000, 'x'));
                   },
                   [](const TemporaryFolder&) {
                     return Compile({"--output=site", "--list-changed"});
                   },
                   {}};
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
  const TemporaryFolder first;
  m_list.arrange(first);
  const std::vector<Call> calls = m_list.Run(first).calls;
  int stopped = 0;
  for (std::size_t at = 1; at <= calls.size(); ++at) {
    if (calls[at - 1].name != "write" || IsNote(calls[at - 1])) continue;
    const int signal = stopped % 2 == 0 ? SIGTERM : SIGINT;
    const TemporaryFolder home;
    m_list.arrange(home);
    const FaultyRun run = m_list.Run(home, {at, "stop" + std::to_string(signal)});
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
  const TemporaryFolder first;
  m_list.arrange(first);
  const auto [whole, calls] = m_list.Run(first);
  const auto lines = [](const std::string& text) {
    std::istringstream rest(text);
    return std::multiset<std::string>(std::istream_iterator<std::string>(rest), {});
  };
  ASSERT_GT(lines(whole.output).size(), 5U);
  for (std::size_t at = 1; at <= calls.size(); ++at) {
    const std::set<std::string> names{"create", "write", "link", "close", "map", "unlink"};
    if (!names.contains(calls[at - 1].name)) continue;
    SCOPED_TRACE("call " + std::to_string(at) + ", " + calls[at - 1].name + " " + calls[at - 1].path);
    const TemporaryFolder home;
    m_list.arrange(home);
    const FaultyRun killed = m_list.Run(home, {at, "kill"});
    const bool isDelivered = killed.result.output == whole.output;
    EXPECT_TRUE(isDelivered || lines(m_list.Run(home).result.output) == lines(whole.output));
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

}  // namespace
}  // namespace folionet::test
