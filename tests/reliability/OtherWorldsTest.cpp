#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "FolderContent.h"
#include "Library.h"
#include "ProgramRun.h"

// The same site whatever surrounds the program.

namespace folionet::test {
namespace {

namespace fs = std::filesystem;

// The site of the small library as `run` made it in `folder` is the usual one.
void ExpectUsualSite(const ProgramResult& run, const std::string& folder) {
  const TemporaryFolder home;
  MakeSmallLibrary(home);
  EXPECT_EQ(RunProgram(CompileSmall(), home.Path()).status, 0);
  EXPECT_EQ(run.status, 0) << run.errors;
  EXPECT_EQ(DescribeDifference(ReadFolder(home.Path() + "out"), ReadFolder(folder + "out")), "");
}

TEST(OtherWorlds, TheSiteIsTheSameInEveryLocaleAndWithEveryMask) {
  // A locale that is not installed is as good as none; nothing may hang on it either way.
  const std::pair<std::string, const char*> worlds[] = {
      {"C", "000"}, {"tr_TR.UTF-8", "022"}, {"de_DE.UTF-8", "077"}, {"C.UTF-8", "027"}, {"none such", "022"}};
  for (const auto& [locale, mask] : worlds) {
    SCOPED_TRACE(locale);
    const TemporaryFolder home;
    MakeSmallLibrary(home);
    const Command within{"/usr/bin/env", "LOCPATH=" LOCALES, "LC_ALL=" + locale};
    if (locale.ends_with(".UTF-8") && locale.front() != 'C') {
      EXPECT_EQ(RunProgram(With(within, {"/usr/bin/locale", "decimal_point"}), home.Path()).output, ",\n");
    }
    const Command shell{"/bin/sh", "-c", std::string("umask ") + mask + "; exec \"$@\"", "sh"};
    ExpectUsualSite(RunProgram(With(With(shell, within), CompileSmall()), home.Path()), home.Path());
  }
}

TEST(OtherWorlds, TheSiteIsTheSameInFoldersOfEveryName) {
  for (const char* name :
       {"with blanks  in it", "quotes \" and '", "Ünïcödé 聖書", "dots..", "-dash", "%s%n", "a\nb"}) {
    SCOPED_TRACE(name);
    const TemporaryFolder home;
    const std::string folder = home.Path() + name + "/";
    MakeSmallLibrary(home);
    fs::create_directories(folder);
    for (const char* part : {"installation", "program"}) fs::rename(home.Path() + part, folder + part);
    ExpectUsualSite(
        RunCli({"compile", "--versalia-path=" + folder + "installation", "--program-folder=" + folder + "program",
                "--output=" + folder + "out", "--index-address=index.html"},
               "/"),
        folder);
  }
}

TEST(OtherWorlds, AHomeThatCannotBeWrittenIsNoHindrance) {
  const TemporaryFolder home;
  MakeSmallLibrary(home);
  const std::string file = home.Write("file", "in the place of a home");
  // A program without delivered files beside it, as an installed one is.
  fs::create_directory(home.Path() + "bin");
  fs::copy(FOLIONET_CLI, home.Path() + "bin/folionet-cli");
  const Command compile{"/usr/bin/env",
                        "HOME=" + file,
                        "XDG_CONFIG_HOME=" + file,
                        "XDG_DATA_HOME=" + file,
                        home.Path() + "bin/folionet-cli",
                        "compile",
                        "--versalia-path=installation",
                        "--output=out",
                        "--index-address=index.html"};
  ExpectUsualSite(RunProgram(compile, home.Path()), home.Path());
  const ProgramResult styled = RunProgram(With(compile, {"--set=chkCSS=1"}), home.Path());
  EXPECT_EQ(styled.status, 3);
  EXPECT_NE(styled.errors.find(file + "/Folionet/"), std::string::npos) << styled.errors;
}

// The pages that a plan, or a folder, tells as removed; rows that only the administrator can arrange are his.
TEST(OtherWorlds, APlanKnowsWhatCannotBeDeleted) {
  const struct {
    const char* protect;
    bool isForRoot = false;
  } cases[] = {{"true"},
               {"chmod 555 out"},
               {"chown 0 out out/genesis_1.html && chmod 1777 out", true},
               {"chattr +i out/genesis_2.html", true},
               {"chattr +a out/genesis_3.html", true},
               {"chattr +a out", true}};
  for (const auto& c : cases) {
    const bool isRoot = geteuid() == 0;
    if (c.isForRoot && !isRoot) continue;
    SCOPED_TRACE(c.protect);
    const TemporaryFolder home;
    MakeSmallLibrary(home);
    ASSERT_EQ(RunProgram(CompileSmall({"--quiet"}), home.Path()).status, 0);
    const auto shell = [&](const std::string& line) { return RunProgram({"/bin/sh", "-c", line}, home.Path()).status; };
    ASSERT_TRUE(!isRoot || shell("chown -R 65534 .") == 0);
    if (shell(c.protect) != 0 && c.isForRoot) continue;  // a file system without such marks
    Command compile = CompileSmall({"--quiet", "--start-book=2"});
    if (isRoot) compile = With({"/usr/bin/setpriv", "--reuid=65534", "--clear-groups"}, compile);
    const std::string plan = RunProgram(With(compile, {"--dry-run"}), home.Path()).output;
    const ProgramResult run = RunProgram(compile, home.Path());
    EXPECT_EQ(run.status, 0) << run.errors;
    for (const std::string name : {"genesis_1.html", "genesis_2.html", "genesis_3.html"}) {
      EXPECT_EQ(plan.find("removed  " + name + "\n") != std::string::npos, !home.Has("out/" + name)) << name << plan;
    }
    shell("chmod 755 out; chattr -ia out out/* || true");
  }
}

}  // namespace
}  // namespace folionet::test
