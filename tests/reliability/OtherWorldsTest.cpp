#include <gtest/gtest.h>

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

TEST(OtherWorlds, AFolderOfSettingsThatMayNotBeEnteredIsNamed) {
  const TemporaryFolder home;
  const ProgramResult run = RunProgram({"/bin/sh", "-c",
                                        "mkdir config; chmod 0 config; "
                                        "[ $(id -u) != 0 ] || set -- setpriv --reuid=65534 --clear-groups; "
                                        "exec \"$@\" " FOLIONET_CLI " list settings",
                                        "sh"},
                                       home.Path());
  EXPECT_EQ(run.status, 3);
  EXPECT_NE(run.errors.find(home.Path() + "config\nPermission denied. This folder holds the settings. Name one of your "
                                          "own by XDG_CONFIG_HOME.\n"),
            std::string::npos)
      << run.errors;
  EXPECT_TRUE(
      run.errors.ends_with("\n\nSee that this file or folder is there and may be read, and run this command again.\n"));
}

}  // namespace
}  // namespace folionet::test
