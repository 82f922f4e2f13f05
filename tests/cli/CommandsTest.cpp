#include <gtest/gtest.h>

#include <sstream>

#include "BuildInfo.h"
#include "FolderContent.h"
#include "Library.h"
#include "ProgramRun.h"
#include "SettingsKeys.h"

namespace folionet::test {
namespace {

TEST(ListTest, PrintsEverySettingStoredOrDefault) {
  const TemporaryFolder home;
  std::string defaults;
  for (const SettingKey& key : SettingKeys())
    defaults += std::string(key.name) + "=" + std::string(key.defaultText) + "\n";
  EXPECT_EQ(RunCli({"list", "settings"}, home.Path()).output, defaults);
  home.Write("config/Folionet.ini", "[Keys]\nchkBack=1\nunknown=x\n");
  EXPECT_EQ(RunCli({"list", "settings"}, home.Path()).output, defaults.replace(0, 10, "chkBack=1\n"));
}

TEST(ListTest, PrintsWhatThereIsToChooseFrom) {
  const Library library;
  library.Edit("Sysdefs/Translations.txt", "A Bible", "Historia de Jos\xE9");
  library.Edit("Sysdefs/BOOKS.TXT", "Book 2\r", "\xC9xodo\r");
  library.home.Write("library/Sysdefs/books_x.TXT", "");
  const struct {
    const char* what;
    const char* starts;
  } cases[] = {
      {"translations", "ONE\tHistoria de José\n"}, {"languages", "books_x.TXT\n"}, {"books", "1\tBook 1\n2\tÉxodo\n"}};
  for (const auto& c : cases) {
    const ProgramResult result = RunCli({"--versalia-path", library.Path(), "list", c.what}, library.home.Path());
    EXPECT_EQ(result.output.substr(0, std::string(c.starts).size()), c.starts);
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.status, 0);
  }
}

TEST(UsageTest, NamesTheArgumentThatIsWrong) {
  const Library library;
  const struct {
    std::vector<std::string> arguments;
    const char* error;
  } cases[] = {
      {{"--set", "nope=1"}, "--set: there is no setting \"nope\". \"folionet-cli list settings\" shows all of them.\n"},
      {{"--set", "chkCSS=2"},
       "--set: chkCSS must be 0 or 1: \"2\". \"folionet-cli list settings\" shows all of them.\n"},
      {{"--set", "FontBold=yes"},
       "--set: FontBold must be True or False: \"yes\". \"folionet-cli list settings\" shows all of them.\n"},
      {{"--set", "chkCSS"},
       "--set: KEY=VALUE was expected: \"chkCSS\". \"folionet-cli list settings\" shows all of them.\n"},
      {{"--translation", "NONE"},
       "--translation: there is no translation \"NONE\". \"folionet-cli list translations\" shows those that are "
       "installed.\n"},
      {{"--start-book", "67"},
       "There is no book \"67\": a number from 1 to 66 or a title was expected. \"folionet-cli list books\" shows "
       "them.\n"},
      {{"--end-book", "Nahum"},
       "There is no book \"Nahum\": a number from 1 to 66 or a title was expected. \"folionet-cli list books\" shows "
       "them.\n"},
      {{"--sitemap", "example.org"},
       "--sitemap: an address such as https://example.org/bible/ was expected: \"example.org\"\n"},
      {{"--set", "Font=\xE9"}, "Argument 5 is not UTF-8 text: give it in UTF-8.\n"},
      {{"--no-such-option"},
       "The following argument was not expected: --no-such-option\nRun with --help for more "
       "information.\n"},
  };
  for (const auto& c : cases) {
    std::vector<std::string> arguments{"compile", "--versalia-path", library.Path()};
    arguments.insert(arguments.end(), c.arguments.begin(), c.arguments.end());
    const ProgramResult result = RunCli(arguments, library.home.Path());
    EXPECT_EQ(result.errors, c.error);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.status, 2);
  }
}

TEST(UsageTest, VersionAndHelpEndWell) {
  const TemporaryFolder home;
  EXPECT_EQ(RunCli({"--version"}, home.Path()).output, std::string("folionet-cli ") + kVersion + "\n");
}

TEST(UsageTest, HelpFitsAScreenAndGivesAnExample) {
  const TemporaryFolder home;
  for (const auto& arguments : std::vector<std::vector<std::string>>{
           {"--help"}, {"compile", "--help"}, {"list", "--help"}, {"check", "--help"}, {"verify", "--help"}}) {
    const ProgramResult result = RunCli(arguments, home.Path());
    EXPECT_EQ(result.status, 0);
    EXPECT_NE(result.output.find("\nExample:\n  folionet-cli "), std::string::npos) << result.output;
    std::istringstream lines(result.output);
    int count = 0;
    for (std::string line; std::getline(lines, line); ++count) EXPECT_LE(line.size(), 80U) << line;
    EXPECT_LE(count, 40) << result.output;
  }
}

TEST(CompileTest, StoresNothingAndFindsBooksByTitleOrNumber) {
  const Library library;
  const std::string output = library.home.Path() + "deep/site";
  const ProgramResult result =
      RunCli({"compile", "--versalia-path", library.Path(), "--translation", "a bible", "--set", "chkUseNames=0",
              "--start-book", "book 2", "--end-book", "3", "--output", output, "--index-address", "index.html"},
             library.home.Path());
  EXPECT_EQ(result.output, "Compilation Complete!\n67 HTML pages created.\n1 pages removed\nRemaining pages 66\n");
  EXPECT_FALSE(library.home.Has("config/Folionet.ini"));
  const FolderContent site = ReadFolder(output);
  EXPECT_EQ(site.size(), 66U);
  EXPECT_NE(site.at("index.html").find("BOOK 3 \r\n[<a href=\"book_3_1.html\">1</a>] <br><br>\r\n"), std::string::npos);
  EXPECT_EQ(site.at("index.html").find("BOOK 4"), std::string::npos);
}

TEST(CompileTest, PlansAndListsWhatChanges) {
  const Library library;
  std::vector<std::string> arguments{
      "compile",         "--versalia-path", library.Path(), "--output", library.home.Path() + "site",
      "--index-address", "index.html"};
  const auto run = [&](const std::vector<std::string>& more) {
    std::vector<std::string> all = arguments;
    all.insert(all.end(), more.begin(), more.end());
    return RunCli(all, library.home.Path()).output;
  };
  EXPECT_TRUE(run({"--dry-run"}).ends_with("67 new, 0 changed, 0 the same, 0 removed. Nothing was written.\n"));
  EXPECT_FALSE(library.home.Has("site"));
  const std::string all = run({"--list-changed"});
  EXPECT_EQ(std::count(all.begin(), all.end(), '\n'), 67);
  EXPECT_EQ(run({"--list-changed"}), "");
  library.Edit("Modules/Bible/ONE.TXT", "0\t9\t1\t2\tText", "0\t9\t1\t2\tOther");
  EXPECT_EQ(run({"--list-changed"}), "book_9_1.html\n");
  EXPECT_TRUE(
      run({"--dry-run", "--start-book", "2"})
          .ends_with("removed  book_1_1.html\n0 new, 1 changed, 65 the same, 1 removed. Nothing was written.\n"));
  EXPECT_EQ(run({"--list-changed", "--start-book", "2"}), "index.html\n");
  EXPECT_EQ(run({"--list-changed", "--start-book", "2"}), "");
  EXPECT_EQ(run({"--list-changed", "--start-book", "66", "--sitemap", "https://a.b"}), "sitemap.xml\nindex.html\n");
  EXPECT_NE(library.home.Read("site/sitemap.xml").find("<loc>https://a.b/book_66_1.html</loc>"), std::string::npos);
}

TEST(ProgramTest, LinksNoQt) {
  const TemporaryFolder home;
  const ProgramResult result = RunProgram({"/usr/bin/ldd", FOLIONET_CLI}, home.Path());
  EXPECT_NE(result.output.find("libicuuc"), std::string::npos);
  EXPECT_EQ(result.output.find("libQt"), std::string::npos) << result.output;
}

}  // namespace
}  // namespace folionet::test
