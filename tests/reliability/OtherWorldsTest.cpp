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

FolderContent UsualSite() {
  const TemporaryFolder home;
  MakeSmallLibrary(home);
  EXPECT_EQ(RunProgram(CompileSmall(), home.Path()).status, 0);
  return ReadFolder(home.Path() + "out");
}

TEST(OtherWorlds, TheSiteIsTheSameInEveryLocaleAndWithEveryMask) {
  const FolderContent usual = UsualSite();
  ASSERT_GT(usual.size(), 3U);
  // A locale that is not installed is as good as none; nothing may hang on it either way.
  const std::pair<std::string, const char*> worlds[] = {
      {"C", "000"}, {"tr_TR.UTF-8", "022"}, {"de_DE.UTF-8", "077"}, {"C.UTF-8", "027"}, {"none such", "022"}};
  for (const auto& [locale, mask] : worlds) {
    const TemporaryFolder home;
    MakeSmallLibrary(home);
    const Command within{"/usr/bin/env", "LOCPATH=" LOCALES, "LC_ALL=" + locale};
    if (locale.ends_with(".UTF-8") && locale.front() != 'C') {
      EXPECT_EQ(RunProgram(With(within, {"/usr/bin/locale", "decimal_point"}), home.Path()).output, ",\n") << locale;
    }
    const Command shell{"/bin/sh", "-c", std::string("umask ") + mask + "; exec \"$@\"", "sh"};
    const ProgramResult run = RunProgram(With(With(shell, within), CompileSmall()), home.Path());
    EXPECT_EQ(run.status, 0) << locale << ": " << run.errors;
    EXPECT_EQ(DescribeDifference(usual, ReadFolder(home.Path() + "out")), "") << locale << " " << mask;
  }
}

TEST(OtherWorlds, TheSiteIsTheSameInFoldersOfEveryName) {
  const FolderContent usual = UsualSite();
  for (const char* name :
       {"with blanks  in it", "quotes \" and '", "Ünïcödé 聖書", "dots..", "-dash", "%s%n", "a\nb"}) {
    const TemporaryFolder home;
    const std::string folder = home.Path() + name + "/";
    MakeSmallLibrary(home);
    for (const char* part : {"installation", "program"}) {
      fs::create_directories(folder);
      fs::rename(home.Path() + part, folder + part);
    }
    const Command command{FOLIONET_CLI,       "compile",
                          "--versalia-path",  folder + "installation",
                          "--module-path",    folder + "installation/Modules",
                          "--program-folder", folder + "program",
                          "--output",         folder + "out",
                          "--index-address",  "index.html"};
    const ProgramResult run = RunProgram(command, "/");
    EXPECT_EQ(run.status, 0) << name << ": " << run.errors;
    EXPECT_EQ(DescribeDifference(usual, ReadFolder(folder + "out")), "") << name;
  }
}

TEST(OtherWorlds, AHomeThatCannotBeWrittenIsNoHindrance) {
  const FolderContent usual = UsualSite();
  const TemporaryFolder home;
  MakeSmallLibrary(home);
  home.Write("file", "in the place of a home");
  // A program without delivered files beside it, as an installed one is.
  fs::create_directory(home.Path() + "bin");
  fs::copy(FOLIONET_CLI, home.Path() + "bin/folionet-cli");
  const Command surroundings{"/usr/bin/env", "HOME=" + home.Path() + "file", "XDG_CONFIG_HOME=" + home.Path() + "file",
                             "XDG_DATA_HOME=" + home.Path() + "file"};
  const Command compile{
      home.Path() + "bin/folionet-cli", "compile",      "--versalia-path",           "installation", "--module-path",
      "installation/Modules",           "--output=out", "--index-address=index.html"};
  const ProgramResult run = RunProgram(With(surroundings, compile), home.Path());
  EXPECT_EQ(run.status, 0) << run.errors;
  EXPECT_EQ(DescribeDifference(usual, ReadFolder(home.Path() + "out")), "");
  const ProgramResult styled = RunProgram(With(With(surroundings, compile), {"--set=chkCSS=1"}), home.Path());
  EXPECT_EQ(styled.status, 3);
  EXPECT_NE(styled.errors.find(home.Path() + "file/Folionet/"), std::string::npos) << styled.errors;
}

}  // namespace
}  // namespace folionet::test
