#include <gtest/gtest.h>
#include <sys/file.h>
#include <unistd.h>

#include <algorithm>
#include <ostream>
#include <set>
#include <sstream>

#include "FileHandle.h"
#include "FolderContent.h"
#include "Library.h"
#include "ProgramRun.h"

// A plan says what the run does: each file, the report of a failure, the status.

namespace folionet::test {
namespace {

enum class Needs { kNothing, kAdministrator, kMarks };

struct Row {
  const char* name;
  const char* arrange;  // what lies there, by a shell
  const char* protect;  // what may not be done with it
  Command more = {};
  Needs needs = Needs::kNothing;
};

void PrintTo(const Row& row, std::ostream* stream) { *stream << row.name; }

constexpr char kMine[] = "echo mine > out/exodus_1.html";
constexpr char kOlder[] = "echo '<!-- -->' >> out/exodus_1.html";
constexpr char kLinked[] = "echo '<!-- -->' >> out/exodus_1.html; ln out/exodus_1.html copy";

const Row kRows[] = {
    {"AllMayBeDone", "true", "true"},
    {"AFolderThatMayNotBeWritten", "true", "chmod 555 out"},
    {"AFolderOfAnother", "true", "chown 0 out out/genesis_1.html && chmod 1777 out", {}, Needs::kAdministrator},
    {"APageThatMayNotBeTouched", "true", "chattr +i out/genesis_2.html", {}, Needs::kMarks},
    {"APageThatMayOnlyGrow", "true", "chattr +a out/genesis_3.html", {}, Needs::kMarks},
    {"AFolderThatMayOnlyGrow", "true", "chattr +a out", {}, Needs::kMarks},
    {"ANewFolder", "rm -r out", "true"},
    {"ANewFolderBelowOneThatMayNotBeWritten", "rm -r out; mkdir out", "chmod 555 out", {"--output=out/a/b"}},
    {"ANewFolderBelowAFile", "echo mine > file", "true", {"--output=file/a"}},
    {"AFileInThePlaceOfTheFolder", "echo mine > file", "true", {"--output=file"}},
    {"AFolderThatIsNoDisks", "true", "true", {"--output=/proc/self/fd"}},
    {"ALinkToNoFolder", "ln -s none link", "true", {"--output=link/a"}},
    {"ANewFolderWithTooLongAName", "true", "true", {"--output=out/a/" + std::string(256, 'n')}},
    {"ANewPage", "rm out/exodus_1.html", "chmod 555 out"},
    {"ANewPageWithTooLongAName", "rm -r out", "true", {"--index-address=" + std::string(256, 'n') + ".html"}},
    {"APageThatMayNotBeWritten", kOlder, "chmod 444 out/exodus_1.html"},
    {"APageThatMayNotBeRead", "true", "chmod 200 out/exodus_1.html"},
    {"AFolderInThePlaceOfAPage", "rm out/exodus_1.html; mkdir out/exodus_1.html", "true"},
    {"APageOfAPerson", kMine, "true"},
    {"APageOfAPersonThatIsWrittenTwice", kMine, "true", {"--index-address=exodus_1.html"}},
    {"APageOfAPersonThatCannotBeKept", kMine, "chmod 555 out"},
    {"APageOfAPersonWithTooLongAName",
     "echo mine > out/$(printf n%.0s $(seq 240)).html",
     "true",
     {"--index-address=" + std::string(240, 'n') + ".html"}},
    {"AFolderInThePlaceOfWhatIsKept", "echo mine > out/exodus_1.html; mkdir out/exodus_1.html.before-folionet", "true"},
    {"ALinkInThePlaceOfWhatIsKeptOfAPageThatGoes",
     "sed -i '/\t1\t3\t/d' installation/Modules/Bible/KJV.TXT; echo mine > out/genesis_3.html; "
     "ln -s none out/genesis_3.html.before-folionet",
     "true"},
    {"ALinkToAnotherPage", "ln -sf exodus_1.html out/genesis_3.html", "true"},
    {"TwoLinksToOneFile",
     "mkdir out/a; mv out/exodus_1.html out/a/b; for page in genesis_2 exodus_1; do ln -sf a/b out/$page.html; done",
     "true"},
    {"APageOfTwoNames", kLinked, "true"},
    {"APageOfTwoNamesInAFolderThatMayNotBeWritten", kLinked, "chmod 555 out"},
    {"APageOfTwoNamesInAFolderOfAnother",
     kLinked,
     "chown 0 out out/exodus_1.html && chmod 666 out/exodus_1.html && chmod 1777 out",
     {},
     Needs::kAdministrator},
    {"APageOfTwoNamesWhoseWayIsBlocked",
     "echo '<!-- -->' >> out/exodus_1.html; ln out/exodus_1.html copy; mkdir out/.folionet-new", "true"},
};

// The files as a plan tells them, and what the run has done to them in its words.
std::set<std::string> Planned(const std::string& output) {
  std::set<std::string> lines;
  std::istringstream all(output);
  for (std::string kind, name; all >> kind && std::getline(all >> std::ws, name);) {
    const bool isTold = kind == "new" || kind == "changed" || kind == "removed" || kind == "kept";
    EXPECT_TRUE(!isTold || lines.insert(kind + " " + name).second) << "twice: " << kind << " " << name;
  }
  return lines;
}

std::set<std::string> Done(const FolderContent& before, const FolderContent& after) {
  std::set<std::string> lines;
  for (const auto& [name, bytes] : after) {
    const auto old = before.find(name);
    const char* const added = name.ends_with(".before-folionet") ? "kept " : "new ";
    if (old == before.end() || old->second != bytes) lines.insert((old == before.end() ? added : "changed ") + name);
  }
  for (const auto& [name, bytes] : before) {
    if (!after.contains(name)) lines.insert("removed " + name);
  }
  return lines;
}

std::string Report(const std::string& errors) {
  return errors.substr(std::min(errors.find("An Error has occured."), errors.size()));
}

class Plans : public testing::TestWithParam<Row> {};

TEST(OtherWorlds, AnUnchangedSiteNeedsNoRightToWrite) {
  const TemporaryFolder home;
  MakeSmallLibrary(home);
  ASSERT_EQ(RunProgram(CompileSmall({"--quiet"}), home.Path()).status, 0);
  const Command readOnly{"/bin/sh", "-c",
                         "chmod 755 .; mv out/exodus_1.html out/a; ln -s a out/exodus_1.html; chmod -R a-w out; "
                         "[ $(id -u) != 0 ] || set -- setpriv --reuid=65534 --clear-groups \"$@\"; "
                         "\"$@\"; status=$?; chmod -R u+w out; exit $status",
                         "sh"};
  const ProgramResult run = RunProgram(With(readOnly, CompileSmall({"--quiet"})), home.Path());
  EXPECT_EQ(run.status, 0) << run.errors;
}

TEST_P(Plans, SayWhatTheRunDoes) {
  const Row& row = GetParam();
  const bool isRoot = geteuid() == 0;
  if (row.needs != Needs::kNothing && !isRoot) GTEST_SKIP() << "only an administrator can arrange this";
  const TemporaryFolder home;
  MakeSmallLibrary(home);
  ASSERT_EQ(RunProgram(CompileSmall({"--quiet"}), home.Path()).status, 0);
  const auto shell = [&](const std::string& line) { return RunProgram({"/bin/sh", "-c", line}, home.Path()).status; };
  ASSERT_EQ(shell(row.arrange), 0);
  ASSERT_TRUE(!isRoot || shell("chown -hR 65534 .") == 0);
  const FolderContent before = ReadFolder(home.Path() + "out");
  const bool isProtected = shell(row.protect) == 0;
  if (!isProtected && row.needs == Needs::kMarks) GTEST_SKIP() << "the file system has no such marks";
  ASSERT_TRUE(isProtected);

  Command compile = CompileCommand(With({"--quiet", "--start-book=2"}, row.more));
  for (const std::string usual : {"--output=out", "--index-address=index.html"}) {
    const auto isOther = [&](const std::string& more) { return more.starts_with(usual.substr(0, usual.find('='))); };
    if (std::none_of(row.more.begin(), row.more.end(), isOther)) compile.push_back(usual);
  }
  if (isRoot) compile = With({"/usr/bin/setpriv", "--reuid=65534", "--clear-groups"}, compile);
  const ProgramResult plan = RunProgram(With(compile, {"--dry-run"}), home.Path());
  const ProgramResult run = RunProgram(compile, home.Path());
  shell("chattr -ia out out/* 2> /dev/null; chmod -R u+rwX .");
  EXPECT_EQ(plan.status, run.status);
  EXPECT_EQ(Report(plan.errors), Report(run.errors));
  if (run.status != 0) return;
  EXPECT_EQ(Planned(plan.output), Done(before, ReadFolder(home.Path() + "out"))) << plan.output;
}

TEST(ImportPlans, FailWhereTheImportWould) {
  struct Place {
    const char* arrange;
    int status;
    std::string locked = {};  // by another program
  };
  const std::string fresh = "lib/Sysdefs/.Translations.txt.folionet-new";
  const std::string arrangeFresh = "mkdir -p lib/Sysdefs; touch " + fresh;
  const Place places[] = {{"mkdir lib; chmod 555 lib", 3},
                          {"echo mine > lib", 3},
                          {"mkdir -p lib/Sysdefs; chmod 555 lib/Sysdefs", 3},
                          {"mkdir -p lib/Index/TEXT.TXT.INDEX", 1},
                          {"mkdir -p lib/Modules", 0},
                          {"mkdir config; chmod 555 config", 3},
                          {"mkdir -p config/.Folionet.import", 3},
                          {arrangeFresh.c_str(), 0},
                          {arrangeFresh.c_str(), 3, fresh},
                          {"mkdir -p lib/Sysdefs", 3, "lib/Sysdefs"}};
  for (const auto& [arrange, status, locked] : places) {
    SCOPED_TRACE(arrange);
    const TemporaryFolder home;
    home.Write("text", "Ge1:1 a verse\n");
    const auto shell = [&](const std::string& line) { RunProgram({"/bin/sh", "-c", line}, home.Path()); };
    shell(geteuid() == 0 ? "chown 65534 ." : "true");
    Command import{FOLIONET_CLI, "import", "text", "--name=Text", "--stem=TEXT", "--into=lib", "--quiet"};
    const Command other{"/usr/bin/setpriv", "--reuid=65534", "--clear-groups"};
    RunProgram(With(geteuid() == 0 ? other : Command{}, {"/bin/sh", "-c", arrange}), home.Path());
    if (geteuid() == 0) import = With(other, import);
    const FileHandle held = FileHandle::Open((home.Path() + locked).c_str(), O_RDONLY);
    if (!locked.empty()) flock(held.Get(), LOCK_EX);
    const ProgramResult plan = RunProgram(With(import, {"--dry-run"}), home.Path());
    EXPECT_FALSE(home.Has("lib/Sysdefs/Translations.txt"));
    const ProgramResult run = RunProgram(import, home.Path());
    shell("chmod -R u+rwX .");
    EXPECT_EQ(run.status, status) << run.errors;
    EXPECT_EQ(plan.status, run.status);
    EXPECT_EQ(plan.errors, run.errors);
    const bool isNamed = run.errors.find("(process " + std::to_string(getpid()) + ")") != std::string::npos;
    EXPECT_EQ(isNamed, !locked.empty()) << run.errors;
  }
}

TEST(PlansInADeletedFolder, FailAsTheRunDoes) {
  const TemporaryFolder home;
  MakeSmallLibrary(home);
  const auto compile = [&](const std::string& more) {
    return RunProgram({"/bin/sh", "-c",
                       "mkdir gone; cd gone; rmdir ../gone; exec " FOLIONET_CLI
                       " compile --versalia-path $HOME/installation --module-path $HOME/installation/Modules "
                       "--program-folder $HOME/program --index-address index.html --output made" +
                           more},
                      home.Path());
  };
  const ProgramResult plan = compile(" --dry-run");
  EXPECT_EQ(plan.status, 3);
  EXPECT_NE(Report(plan.errors), "");
  EXPECT_EQ(Report(plan.errors), Report(compile("").errors));
}

INSTANTIATE_TEST_SUITE_P(Of, Plans, testing::ValuesIn(kRows), [](const auto& row) { return row.param.name; });

}  // namespace
}  // namespace folionet::test
