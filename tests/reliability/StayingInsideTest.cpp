#include <gtest/gtest.h>

#include <set>

#include "FaultyRun.h"
#include "FolderContent.h"

// Names of files that a library or a person gives never lead out of the folders that are meant.

namespace folionet::test {
namespace {

std::vector<std::string> OddNames() {
  std::vector<std::string> names{"..",          ".",        "../victim",  "../../victim", "/tmp/folionet-victim",
                                 "a/b",         "a\\b",     "..\\victim", "C:\\victim",   "con",
                                 "bell\x07",    "line\x01", "del\x7F",    "\xC2\x85",     " ",
                                 "    ",        "%bk%",     "~",          "$HOME",        "-rf",
                                 "default.css", "*"};
  for (const std::size_t length : {std::size_t{300}, std::size_t{4000}}) names.emplace_back(length, 'n');
  return names;
}

struct Place {
  const char* name;
  // Puts an odd name where it may stand, and gives the arguments that make use of it.
  Command (*arrange)(const TemporaryFolder& home, const std::string& name);
};

Command InTitles(const TemporaryFolder& home, const std::string& title) {
  std::string titles = home.Read(kTitlesFile);
  for (const std::string old : {"Genesis", "Exodus"}) titles.replace(titles.find(old), old.size(), title);
  home.Write(kTitlesFile, titles);
  return {};
}

const Place kPlaces[] = {
    {"Books", InTitles},
    {"BooksThatAreTakenAway",
     [](const TemporaryFolder& home, const std::string& name) {
       home.Write(kVersesFile, "1\t3\t1\t1\tA verse.\r\n");
       return With(InTitles(home, name), {"--start-book=3"});
     }},
    {"Translations",
     [](const TemporaryFolder& home, const std::string& name) {
       home.Write(kCatalogueFile, "1,0,\"" + name + "\",\"" + name + "\"\r\n");
       return Command{};
     }},
    {"IndexPages",
     [](const TemporaryFolder&, const std::string& name) { return Command{"--index-address=" + name + ".html"}; }},
    {"TitleFiles", [](const TemporaryFolder&, const std::string& name) { return Command{"--language-file=" + name}; }},
    {"Images", [](const TemporaryFolder&, const std::string& name) {
       return Command{"--set=BackImage=" + name, "--set=chkBack=1"};
     }}};

// Whether a file that was opened is one of Versalia's, of the program's or of the site. To open a folder tells only
// that it is there.
bool IsInside(const std::string& opened, const std::string& home) {
  static const std::set<std::filesystem::path> folders{"installation/Sysdefs",
                                                       "installation/Index",
                                                       "installation/Modules/Bible",
                                                       "program",
                                                       "config",
                                                       "state/Folionet",
                                                       "a/b/out"};
  const std::filesystem::path path = std::filesystem::path(opened).lexically_normal();
  std::error_code ignored;
  return std::filesystem::is_directory(path, ignored) || folders.contains(path.lexically_relative(home).parent_path());
}

class NamesOf : public testing::TestWithParam<Place> {};

TEST_P(NamesOf, DoNotLeadOut) {
  int opened = 0;
  for (const std::string& name : OddNames()) {
    SCOPED_TRACE(name.substr(0, 40));
    const TemporaryFolder home;
    MakeSmallLibrary(home);
    for (const char* victim : {"victim", "a/victim", "a/b/victim", "victim_1.html", "a/b/victim_1.html",
                               "a/victim_1.html", "installation/victim.TXT", "installation/Modules/victim.TXT"}) {
      home.Write(victim, "not ours");
    }
    home.Write("a/b/out/kept.txt", "not ours");
    const auto outside = [&] {
      FolderContent content = ReadFolder(home.Path());
      std::erase_if(content, [](const auto& file) {
        return file.first.starts_with("a/b/out/") || file.first.starts_with("state/");
      });
      return content;
    };
    Command command = CompileCommand({"--output=a/b/out", "--index-address=index.html"});
    const Command more = GetParam().arrange(home, name);
    if (!more.empty() && more.front().starts_with("--index-address")) command.pop_back();
    const FolderContent before = outside();
    const auto [run, calls] = RunFaulty(With(command, more), home, "/");
    EXPECT_LE(run.status, 3) << run.errors.substr(0, 1000);
    EXPECT_TRUE(run.status == 0 || !run.errors.empty());
    for (const Call& call : calls) {
      if (call.name != "open" && call.name != "create") continue;
      EXPECT_TRUE(IsInside(call.path, home.Path())) << call.path;
      ++opened;
    }
    EXPECT_EQ(DescribeDifference(before, outside()), "");
    EXPECT_EQ(home.Read("a/b/out/kept.txt"), "not ours");
    EXPECT_FALSE(std::filesystem::exists("/tmp/folionet-victim_1.html"));
  }
  EXPECT_EQ(opened > 0, FAULTY_CALLS[0] != '\0');
}

INSTANTIATE_TEST_SUITE_P(Odd, NamesOf, testing::ValuesIn(kPlaces), [](const auto& place) { return place.param.name; });

}  // namespace
}  // namespace folionet::test
