#include <algorithm>
#include <csignal>
#include <iterator>
#include <set>
#include <sstream>

#include "EveryCall.h"

// Each call of a compile, and of a check of its site.

namespace folionet::test {
namespace {

constexpr char kOurLine[] = "<meta name=\"GENERATOR\" content=\"Versalia Folionet Ver 1.0\">";

// What the compile over an older site takes away, and the file of a person that it keeps under another name.
bool IsToRemove(const std::string& name) { return name.starts_with("site/genesis_"); }
constexpr char kKept[] = "site/genesis_1.html.before-folionet";
constexpr char kOfTwoNames[] = "exodus_2.html";

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
        // Nor is a file on its way to replace a page known to a person.
        ExpectReport(run, struck.path.ends_with("/KJV.TXT")         ? "KJV"
                          : struck.path.ends_with("/.folionet-new") ? kOfTwoNames
                          : IsNameless(struck)                      ? ""
                                                                    : LastPart(struck.path));
        ExpectWholePages(now, name);
      }
      const FaultyRun next = job.Run(home);
      EXPECT_EQ(next.result.status, 0);
      EXPECT_EQ(DescribeDifference(m_after, Visible(home)), "") << "after the next compile";
      const bool isLostPage = struck.name == "close" && HasWritten(run, struck.path) && run.result.status != 0;
      EXPECT_TRUE(!isLostPage || m_isKilled || IsNameless(struck) || HasWritten(next, struck.path));
    });
  }

  // Lists what it changes over a page of a person, and takes another one away.
  const Job m_list{"list",
                   [](const TemporaryFolder& home) {
                     ArrangeLibrary(home);
                     for (const char* page : {"site/genesis_1.html", "site/exodus_1.html"}) {
                       home.Write(page, std::string(5000, 'x'));
                     }
                   },
                   Compile({"--output=site", "--start-book=2", "--list-changed"}),
                   {}};
};

TEST_F(Compiles, IntoANewFolder) {
  TryCompile({"anew",
              ArrangeLibrary,
              Compile({"--output=made/site"}),
              {"close", "create", "ftruncate", "lock", "mkdir", "open", "read", "readdir", "stat", "unlink", "write"}});
}

TEST_F(Compiles, WhereEveryFileHasAName) {
  Job job{"named",
          ArrangeLibrary,
          With({"/usr/bin/env", "FAULT_NAMED=1"}, Compile({"--output=made/site"})),
          {"close", "create", "ftruncate", "lock", "mkdir", "open", "read", "readdir", "stat", "unlink", "write"}};
  job.mostKinds = 2;
  TryCompile(job);
}

// With the books before the second one taken away, and a copy of the site that is made of hard links.
TEST_F(Compiles, OverAnOlderSite) {
  const auto arrange = [](const TemporaryFolder& home) {
    ArrangeLibrary(home);
    home.Write("site/genesis_1.html", "a person's page");
    home.Write("site/leviticus_1.html", kOurLine + std::string(5000, 'x'));
    const std::string page = home.Write(std::string("site/") + kOfTwoNames, kOurLine + std::string("shorter"));
    std::filesystem::create_hard_link(page, home.Path() + "copy.html");
    home.Write("site/not-ours.html", "not ours");
  };
  TryCompile({"over",
              arrange,
              Compile({"--output=site", "--start-book=2"}),
              {"chmod", "close", "create", "ftruncate", "lock", "mkdir", "open", "read", "readdir", "rename", "stat",
               "unlink", "write"}});
}

// With the names of the pages that it has changed and removed by then, and no page in part.
TEST_F(Compiles, EndBetweenTwoPagesOnceTheyAreStopped) {
  Job job = m_list;
  job.name = "stop";
  std::multiset<bool> removals;
  const auto look = [&](const TemporaryFolder& home, const FaultyRun& run, const std::string& kind) {
    if (kind.empty() || IsNote(m_struck)) return;
    const bool isRemoval = m_struck.name != "write";
    removals.insert(isRemoval);
    // Behind the last page there is nothing to end.
    const bool isLast = isRemoval && m_struck.path.ends_with("genesis_3.html");
    EXPECT_EQ(run.result.status, isLast ? 0 : 128 + (kind == "stop2" ? SIGINT : SIGTERM));
    EXPECT_TRUE(isLast || run.result.errors.ends_with("Stopped: the page at hand was finished, the others are as they "
                                                      "were. Compile again.\n"))
        << run.result.errors;
    const bool isToldGone = run.result.errors.find("Removed: genesis_1.html\n") != std::string::npos;
    EXPECT_EQ(isToldGone, !home.Has("site/genesis_1.html"));
    EXPECT_TRUE(isRemoval || !isToldGone);
    std::ptrdiff_t listed = 0;
    for (const auto& [name, bytes] : ReadFolder(home.Path() + "site")) {
      if (name.ends_with(".before-folionet") || bytes == std::string(5000, 'x')) continue;
      EXPECT_TRUE(name == "default.css" || bytes.ends_with("</html>\r\n")) << name;
      EXPECT_NE(("\n" + run.result.output).find("\n" + name + "\n"), std::string::npos) << name << " is not listed";
      ++listed;
    }
    EXPECT_EQ(std::count(run.result.output.begin(), run.result.output.end(), '\n'), listed);
  };
  StrikeEach(job, {"stop15", "stop2", "stop1"}, {"write", "unlink", "rename"}, look);
  EXPECT_GT(removals.count(false), 15U);
  EXPECT_EQ(removals.count(true), 9U);
  // One who has left it to itself, as nohup does, is not heard.
  job.command = With({"/usr/bin/env", "--ignore-signal=HUP"}, job.command);
  StrikeEach(job, {"stop1"}, {"unlink"},
             [](const auto& /*home*/, const FaultyRun& run, const auto& /*kind*/) { EXPECT_EQ(run.result.status, 0); });
}

// The list of the run that was killed, or could not be written, is lost with it: the next one tells all that the two
// have changed.
TEST_F(Compiles, ThatWereKilledAreToldByTheNextOne) {
  const auto lines = [](const std::string& text) {
    std::istringstream rest(text);
    return std::multiset<std::string>(std::istream_iterator<std::string>(rest), {});
  };
  ProgramResult whole;
  const auto expectAll = [&](const TemporaryFolder& home) {
    const ProgramResult next = m_list.Run(home).result;
    EXPECT_EQ(lines(next.output), lines(whole.output));
    EXPECT_NE(next.errors.find("Removed: genesis_1.html\n"), std::string::npos) << next.errors;
  };
  StrikeEach(m_list, {"kill"}, {"create", "write", "link", "close", "unlink"},
             [&](const TemporaryFolder& home, const FaultyRun& run, const std::string& kind) {
               if (kind.empty()) whole = run.result;
               if (run.result.output != whole.output || run.result.errors != whole.errors) expectAll(home);
             });
  EXPECT_GT(lines(whole.output).size(), 5U);
  for (const std::string open : {"exec > /dev/full", "exec 2> /dev/full"}) {
    const TemporaryFolder home;
    m_list.arrange(home);
    RunProgram(With({"/bin/sh", "-c", open + "; exec \"$0\" \"$@\""}, m_list.command), home.Path());
    expectAll(home);
  }
}

// Into the folder that was opened, and no other: the link to it is pointed elsewhere before each call. What another run
// has left to tell of that other one stays.
TEST_F(Compiles, StayInTheFolderThatWasOpened) {
  const auto arrange = [](const TemporaryFolder& home) {
    ArrangeLibrary(home);
    for (const std::string name : {"one", "other"}) {
      home.Write(name + "/genesis_1.html", "a person's page");
      home.Write(name + "/exodus_2.html", kOurLine);
    }
    std::filesystem::create_symlink("one", home.Path() + "here");
    std::filesystem::create_symlink("other", home.Path() + "there");
    home.Write("other/genesis_1.html.before-folionet/in_the_way", "");
    ASSERT_EQ(RunProgram(Compile({"--output=other"}), home.Path()).status, 3);
    for (const char* left : {"other/genesis_1.html.before-folionet", "other/default.css"}) {
      std::filesystem::remove_all(home.Path() + left);
    }
  };
  const Job job{"link", arrange, Compile({"--output=here", "--start-book=2", "--list-changed"}), {}};
  FolderContent site;
  FolderContent before;
  std::set<std::string> places;
  StrikeEach(job, {"swap"}, {}, [&](const TemporaryFolder& home, const FaultyRun& run, const std::string& kind) {
    const auto content = [&](const std::string& name) { return ReadFolder(home.Path() + name); };
    if (kind.empty()) {
      site = content("one");
      before = content("other");
      return;
    }
    ASSERT_EQ(m_notes.size(), 1U);
    EXPECT_EQ(run.result.status, 0) << run.result.errors;
    const std::string place = home.Read("one/exodus_2.html") == site.at("exodus_2.html") ? "one" : "other";
    EXPECT_EQ(DescribeDifference(site, content(place)), "");
    EXPECT_EQ(DescribeDifference(before, content(place == "one" ? "other" : "one")), "");
    EXPECT_EQ(content("state"), place == "one" ? m_notes : FolderContent());
    places.insert(place);
  });
  EXPECT_EQ(places.size(), 2U);
}

// What nothing leads to is removed from the site that was verified, and from no other, be the link to it pointed
// elsewhere and perhaps back again meanwhile.
TEST_F(Compiles, AreRidOfStalePagesWhereTheyWereVerified) {
  const auto arrange = [](const TemporaryFolder& home) {
    for (const std::string name : {"one", "other"}) {
      for (const char* page : {"/a.html", "/b.html"}) home.Write(name + page, kOurLine);
      const std::string linked = name == "one" ? "" : "<a href=b.html>b</a>";
      home.Write(name + "/index.html", kOurLine + ("<a href=a.html>a</a>" + linked));
    }
    std::filesystem::create_symlink("other", home.Path() + "here");
    std::filesystem::create_symlink("one", home.Path() + "there");
  };
  const Job job{"stale", arrange, {FOLIONET_CLI, "verify", "here", "--remove-stale"}, {}};
  FolderContent other;
  std::multiset<std::size_t> left;
  StrikeEach(job, {"swap", "swap2"}, {},
             [&](const TemporaryFolder& home, const FaultyRun& run, const std::string& kind) {
               if (kind.empty()) other = ReadFolder(home.Path() + "other");
               EXPECT_EQ(run.result.status, 0) << run.result.errors;
               EXPECT_EQ(DescribeDifference(other, ReadFolder(home.Path() + "other")), "");
               if (!kind.empty()) left.insert(ReadFolder(home.Path() + "one").size());
             });
  EXPECT_TRUE(left.count(2) > 0 && left.count(3) > 0 && left.count(2) + left.count(3) == left.size());
}

// Each page's name is out before it is gone, also where nobody takes the names or a signal comes.
TEST_F(Compiles, AreRidOfNoPageThatIsNotTold) {
  const auto arrange = [](const TemporaryFolder& home) {
    for (const char* page : {"a.html", "b.html", "c.html", "index.html"}) {
      home.Write(std::string("site/") + page, kOurLine + std::string(page[0] == 'a' ? "" : "<a href=a.html>a</a>"));
    }
  };
  const Command verify{FOLIONET_CLI, "verify", "site", "--remove-stale"};
  const Job job{"told", arrange, verify, {}};
  std::set<std::string> ends;
  StrikeEach(job, {"stop2", "stop15", "kill"}, {"unlink"},
             [&](const TemporaryFolder& home, const FaultyRun& run, const std::string& kind) {
               for (const char* page : {"b.html", "c.html"}) {
                 const bool isTold = run.result.output.find(page) != std::string::npos;
                 EXPECT_TRUE(isTold || home.Has(std::string("site/") + page)) << page;
               }
               if (!kind.empty()) ends.insert(std::to_string(run.result.status) + " " + run.result.errors);
             });
  const std::string stopped = " Stopped: 1 page was not removed. Remove the stale pages again.\n";
  EXPECT_EQ(ends, (std::set<std::string>{"0 ", "130" + stopped, "143" + stopped, "137 "}));
  for (const std::string open : {"exec > /dev/full", "mkfifo f; true < f & exec > f; wait"}) {
    const TemporaryFolder home;
    arrange(home);
    const ProgramResult run = RunProgram(With({"/bin/sh", "-c", open + "; exec \"$0\" \"$@\""}, verify), home.Path());
    EXPECT_EQ(run.errors,
              "Stopped: 2 pages were not removed. Remove the stale pages again.\n"
              "folionet-cli: standard output cannot be written. Send it to a file on a disk with room.\n");
    EXPECT_EQ(ReadFolder(home.Path() + "site").size(), 4U);
  }
}

// The folder that pages are links into is swapped with a link that leads out, before each call.
TEST_F(Compiles, WriteNothingOutsideWhateverIsSwapped) {
  const auto arrange = [](const TemporaryFolder& home) {
    ArrangeLibrary(home);
    for (const char* page : {"outside/1.html", "outside/2.html", "site/here/1.html", "site/here/2.html"}) {
      home.Write(page, "not ours");
    }
    std::filesystem::create_symlink("../outside", home.Path() + "site/there");
    std::filesystem::create_symlink("here/1.html", home.Path() + "site/genesis_1.html");
    std::filesystem::create_symlink(home.Path() + "site/here/2.html", home.Path() + "site/exodus_2.html");
  };
  Job job{"swap", arrange, Compile({"--output=site"}), {}};
  job.watched = "site/";
  std::set<int> statuses;
  StrikeEach(job, {"swap"}, {}, [&](const TemporaryFolder& home, const FaultyRun& run, const std::string& kind) {
    for (const std::string page : {"1.html", "2.html"}) {
      EXPECT_EQ(home.Read("outside/" + page), "not ours");
      EXPECT_TRUE(!kind.empty() || home.Read("site/here/" + page) != "not ours");
    }
    EXPECT_EQ(run.result.errors.find("leads out of the output folder") != std::string::npos, run.result.status != 0);
    if (!kind.empty()) statuses.insert(run.result.status);
  });
  EXPECT_EQ(statuses, (std::set<int>{0, 3}));
}

// A check of the site says the same, or names what it could not read.
TEST_F(Compiles, AreVerifiedOrWhatCannotBeReadIsNamed) {
  const Job job{"verify",
                [](const TemporaryFolder& home) {
                  home.Write("site/index.html", "<html><a href=\"sub/a.html\">a</a><img src=\"b.gif\"></html>\r\n");
                  home.Write("site/sub/a.html", "<html><a href=\"../index.html\">b</a></html>\r\n");
                  home.Write("site/b.gif", "");
                },
                {FOLIONET_CLI, "verify", "site"},
                {"close", "open", "read", "readdir", "stat"}};
  TryAll(job, [&](const TemporaryFolder&, const FaultyRun& run, const Call& struck) {
    const std::string all = run.result.output + run.result.errors;
    EXPECT_TRUE(m_isKilled || all == m_told || all.find(LastPart(struck.path)) != std::string::npos) << all;
  });
}

}  // namespace
}  // namespace folionet::test
