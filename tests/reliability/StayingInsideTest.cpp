#include <gtest/gtest.h>

#include "FolderContent.h"
#include "SmallLibrary.h"

// Names of files that a library or a person gives never lead out of the folders that are meant.

namespace folionet::test {
namespace {

namespace fs = std::filesystem;

const std::vector<std::string>& OddNames() {
  static const std::vector<std::string> names{"..",
                                              ".",
                                              "../victim",
                                              "../../victim",
                                              "/tmp/folionet-victim",
                                              "a/b",
                                              "a\\b",
                                              "..\\victim",
                                              "C:\\victim",
                                              "con",
                                              "bell\x07",
                                              "line\x01",
                                              "del\x7F",
                                              "\xC2\x85",
                                              " ",
                                              "    ",
                                              std::string(300, 'n'),
                                              std::string(4000, 'n'),
                                              "%bk%",
                                              "~",
                                              "$HOME",
                                              "-rf",
                                              "default.css",
                                              "*"};
  return names;
}

// What lies around the output folder, and is none of the program's business.
FolderContent Outside(const TemporaryFolder& home) {
  FolderContent content = ReadFolder(home.Path());
  std::erase_if(content, [](const auto& file) { return file.first.starts_with("a/b/out/"); });
  return content;
}

class Names : public testing::Test {
 protected:
  // Runs the command for each odd name in a folder of its own and compares what is around the output folder.
  void TryAll(const std::function<std::vector<std::string>(const TemporaryFolder&, const std::string&)>& arrange) {
    for (const std::string& name : OddNames()) {
      SCOPED_TRACE(name.substr(0, 40));
      const TemporaryFolder home;
      MakeSmallLibrary(home);
      for (const char* victim : {"victim", "a/victim", "a/b/victim", "victim_1.html", "a/b/victim_1.html",
                                 "a/victim_1.html", "installation/victim.TXT", "installation/Modules/victim.TXT"}) {
        home.Write(victim, "not ours");
      }
      home.Write("a/b/out/kept.txt", "not ours");
      std::vector<std::string> command = CompileSmall(arrange(home, name));
      for (std::string& part : command) {
        if (part == "--output=out") part = "--output=a/b/out";
      }
      const FolderContent before = Outside(home);
      const ProgramResult run = RunProgram(command, home.Path());
      EXPECT_LE(run.status, 3) << run.errors.substr(0, 1000);
      EXPECT_TRUE(run.status == 0 || !run.errors.empty());
      EXPECT_EQ(DescribeDifference(before, Outside(home)), "");
      EXPECT_EQ(home.Read("a/b/out/kept.txt"), "not ours");
      EXPECT_FALSE(fs::exists("/tmp/folionet-victim_1.html"));
    }
  }
};

std::string WithTitle(const TemporaryFolder& home, const std::string& title) {
  std::string titles = home.Read(kTitlesFile);
  for (const char* old : {"Genesis", "Exodus"}) titles.replace(titles.find(old), std::string(old).size(), title);
  return titles;
}

TEST_F(Names, OfBooks) {
  TryAll([](const TemporaryFolder& home, const std::string& name) {
    home.Write(kTitlesFile, WithTitle(home, name));
    return std::vector<std::string>{};
  });
}

TEST_F(Names, OfBooksThatAreTakenAway) {
  TryAll([](const TemporaryFolder& home, const std::string& name) {
    home.Write(kTitlesFile, WithTitle(home, name));
    home.Write(kVersesFile, "1\t3\t1\t1\tA verse.\r\n");
    return std::vector<std::string>{"--start-book=3"};
  });
}

TEST_F(Names, OfTranslations) {
  TryAll([](const TemporaryFolder& home, const std::string& name) {
    home.Write(kCatalogueFile, "1,0,\"" + name + "\",\"" + name + "\"\r\n");
    return std::vector<std::string>{};
  });
}

TEST_F(Names, OfIndexPages) {
  TryAll([](const TemporaryFolder&, const std::string& name) {
    return std::vector<std::string>{"--index-address=" + name + ".html"};
  });
}

TEST_F(Names, OfTitleFiles) {
  TryAll([](const TemporaryFolder&, const std::string& name) {
    return std::vector<std::string>{"--language-file=" + name};
  });
}

TEST_F(Names, OfImages) {
  TryAll([](const TemporaryFolder&, const std::string& name) {
    return std::vector<std::string>{"--set=BackImage=" + name, "--set=chkBack=1"};
  });
}

TEST(StayingInside, AStemWithAFolderIsRefusedInClearWords) {
  const TemporaryFolder home;
  MakeSmallLibrary(home);
  home.Write(kCatalogueFile, "1,0,\"A Bible\",\"../victim\"\r\n");
  const ProgramResult run = RunProgram(CompileSmall(), home.Path());
  EXPECT_EQ(run.status, 3);
  EXPECT_NE(run.errors.find("Line 1\nA file name without a folder was expected: \"../victim\""), std::string::npos)
      << run.errors;
}

TEST(StayingInside, LinksInTheOutputFolderAreNotFollowedOutOfIt) {
  const TemporaryFolder home;
  MakeSmallLibrary(home);
  home.Write("victim", "not ours");
  for (const char* page : {"genesis_1.html", "index.html", "default.css"}) {
    fs::remove_all(home.Path() + "out");
    fs::create_directory(home.Path() + "out");
    fs::create_symlink("../victim", home.Path() + "out/" + page);
    const ProgramResult run = RunProgram(CompileSmall({"--set=chkCSS=1"}), home.Path());
    EXPECT_EQ(run.status, 3) << page;
    EXPECT_NE(run.errors.find(std::string(page) + "\nIt is a link that leads out of the output folder."),
              std::string::npos)
        << run.errors;
    EXPECT_EQ(home.Read("victim"), "not ours") << page;
  }
}

TEST(StayingInside, CleaningUpTakesALinkAwayAndNotWhatItLeadsTo) {
  const TemporaryFolder home;
  MakeSmallLibrary(home);
  home.Write(kVersesFile, "1\t2\t1\t1\tA verse.\r\n");
  home.Write("victim", "not ours");
  fs::create_directory(home.Path() + "out");
  fs::create_symlink("../victim", home.Path() + "out/genesis_1.html");
  fs::create_directory(home.Path() + "out/genesis_2.html");
  EXPECT_EQ(RunProgram(CompileSmall({"--start-book=2"}), home.Path()).status, 0);
  EXPECT_EQ(home.Read("victim"), "not ours");
  EXPECT_FALSE(fs::is_symlink(home.Path() + "out/genesis_1.html"));
  EXPECT_TRUE(home.Has("out/genesis_2.html"));
}

}  // namespace
}  // namespace folionet::test
