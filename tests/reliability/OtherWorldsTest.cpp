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
  // An installed one whose folder of the person is not made, or there for another reason and not filled.
  for (const char* name : {"default.css", "lang.txt", "enc.txt"})
    home.Write(std::string("share/folionet/") + name, "p");
  EXPECT_EQ(RunProgram(With(compile, {"--set=chkCSS=1", "--dry-run"}), home.Path()).errors, styled.errors);
  const Command inHome = With({"/usr/bin/env", "XDG_DATA_HOME="}, Command(compile.begin() + 4, compile.end()));
  home.Write(".local/share/Folionet/library/Sysdefs/BOOKS.TXT", "");
  const ProgramResult plan = RunProgram(With(inHome, {"--set=chkCSS=1", "--dry-run"}), home.Path());
  EXPECT_NE(plan.output.find("new      default.css\n"), std::string::npos) << plan.errors;
  EXPECT_FALSE(home.Has(".local/share/Folionet/default.css"));
}

}  // namespace
}  // namespace folionet::test
