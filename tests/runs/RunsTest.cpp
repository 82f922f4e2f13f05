// Runs the programs as the files *.runs of this folder say, and compares all that they print and change. A case has a
// folder of its own with a library in installation/ and a style sheet in program/:
//
//   = the case's name
//   library sixty-six                     another library than the small one: 66 books, or "none"
//   write FILE TEXT [N TEXT]...           the text, then others N times each; "append" leaves what the file holds
//   replace FILE OLD NEW                  also: remove PATH, rename PATH PATH, folder PATH, pipe PATH, link PATH
//   TARGET,
//                                         hardlink PATH TARGET
//   $ site --start-book=2                 compiles the library into out/, "compile" to what is given; "cli" and
//                                         "make_library" are the programs themselves; before one, "bounded" bounds its
//                                         memory and time, "limited" the size of its files
//   | a line of standard output           ! a line of standard error      ? the exit status, when it is not 0
//   + a file made outside out/            ~ a file changed there          - a file that is gone
//   show FILE                             prints a file; find FILE TEXT the lines with a text; list FOLDER the files
//
// A text in double quotes may hold \n, \r, \t, \\, \" and \xE9. "@/" is the case's folder. An error report is given by
// its label, number and text. FOLIONET_REWRITE_EXPECTED=1 writes what comes out into the files, for a person to review
// the difference.

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>

#include "FolderContent.h"
#include "Library.h"
#include "ProgramRun.h"
#include "Script.h"

namespace folionet::test {
namespace {

namespace fs = std::filesystem;

// An error report on one line: its layout is the same each time, so that its label, its number with the text and what
// it is about say all. So is the warning that asks for Versalia's folders.
std::string WithShortReports(std::string text) {
  const std::string begin =
      "An Error has occured.\nTitle        : Folionet\nApp Path     : @bin\nSoftware Ver : " FOLIONET_VERSION
      ".\nModule       : ";
  const std::string end =
      "\n\nIf the error persists, please report it at: support@versalia.example\nPLEASE SUPPLY A FULL DESCRIPTION OF "
      "THE "
      "ERROR,\nEXACTLY as you see it in this error message.\n";
  const std::size_t from = text.find(begin);
  const std::size_t to = text.find(end);
  if (from != std::string::npos && to != std::string::npos) {
    std::string report = text.substr(from + begin.size(), to - from - begin.size());
    Replace(report, ".\nError Number : ", " REPORTS ");
    Replace(report, "\nDescription  : ", " ");
    Replace(report, "\nExtra Info   : \n", "\n");
    Replace(report, "\n", " / ");
    text.replace(from, to + end.size() - from, report + "\n");
  }
  Replace(text,
          "Path and/or file not found: This error has probably occured because you have an older version of Versalia\n"
          "or because Versalia is not correctly installed.\n"
          "Folionet will attempt to gather the correct information manually\n"
          "You will need to enter the values for the following:\n1. The Versalia Path\n2. The Versalia Module Path\n"
          "Give them with --versalia-path FOLDER, which holds Sysdefs and Index, and --module-path FOLDER, which holds "
          "Bible; where only the file of book titles is wrong, give another with --language-file NAME. \"folionet-cli "
          "check\" names what is wrong in them.\n",
          "ASKS FOR THE FOLDERS\n");
  return text;
}

class Case {
 public:
  Case() { MakeSmallLibrary(m_home); }

  // Does what a line says, and gives the lines that come of it.
  std::string Do(const std::string& line) {
    const Command words = SplitWords(line);
    const std::string& verb = words.at(0);
    if (verb == "$") return Run({words.begin() + 1, words.end()});
    if (verb == "show") return MarkLines("| ", Named(m_home.Read(words.at(1))));
    if (verb == "find") return FindLines(m_home.Read(words.at(1)), words.at(2));
    if (verb == "list") return ListFiles(m_home.Path() + words.at(1));
    if (verb == "library") {
      std::filesystem::remove_all(m_home.Path() + "installation");
      if (words.at(1) == "sixty-six") MakeLibraryOf66Books(m_home);
    } else if (!Arrange(m_home.Path(), words)) {
      ADD_FAILURE() << "what is \"" << line << "\"?";
    }
    return {};
  }

 private:
  using Stamps = std::map<std::string, std::pair<std::uintmax_t, fs::file_time_type>>;

  std::string Run(const Command& words) const {
    const Command command = CommandOf(words);
    const Stamps before = Outside();
    const ProgramResult result = RunProgram(command, m_home.Path());
    std::string text = MarkLines("| ", Named(result.output)) + MarkLines("! ", WithShortReports(Named(result.errors)));
    if (result.status != 0) text += "? " + std::to_string(result.status) + "\n";
    const Stamps after = Outside();
    for (const auto& [name, stamp] : after) {
      const auto old = before.find(name);
      if (old == before.end() || old->second != stamp) text += (old == before.end() ? "+ " : "~ ") + name + "\n";
    }
    for (const auto& [name, stamp] : before) text += after.contains(name) ? "" : "- " + name + "\n";
    return text;
  }

  static Command CommandOf(const Command& words) {
    Command command;
    std::size_t at = 0;
    if (words.at(at) == "limited") {
      ++at;
      command = {"/usr/bin/prlimit", "--fsize=4096"};
    } else if (words.at(at) == "bounded") {
      ++at;
      command = {"/usr/bin/timeout", "60", "/usr/bin/prlimit", "--cpu=" BOUND_SECONDS};
      if (BOUND_MEMORY[0] != '\0') command.push_back("--as=" BOUND_MEMORY);
    }
    const Command rest(words.begin() + static_cast<std::ptrdiff_t>(at) + 1, words.end());
    if (words.at(at) == "site") return With(command, CompileSmall(rest));
    if (words[at] == "compile") return With(command, CompileCommand(rest));
    command.push_back(words[at] == "make_library" ? MAKE_LIBRARY_PROGRAM : FOLIONET_CLI);
    return With(command, rest);
  }

  Stamps Outside() const {
    Stamps stamps;
    for (const auto& entry : fs::recursive_directory_iterator(m_home.Path())) {
      const std::string name = entry.path().lexically_relative(m_home.Path()).string();
      if (name.starts_with("out/") || !fs::is_regular_file(entry.symlink_status())) continue;
      stamps[name] = {entry.file_size(), entry.last_write_time()};
    }
    return stamps;
  }

  static std::string FindLines(const std::string& text, const std::string& wanted) {
    std::string found;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);)
      found += line.find(wanted) != std::string::npos ? line + "\n" : "";
    return MarkLines("| ", found);
  }

  static std::string ListFiles(const std::string& folder) {
    std::string names;
    for (const auto& [name, bytes] : ReadFolder(folder)) names += name + "\n";
    return MarkLines("| ", names);
  }

  std::string Named(std::string text) const {
    Replace(text, fs::path(FOLIONET_CLI).parent_path().string(), "@bin");
    Replace(text, m_home.Path(), "@/");
    return text;
  }

  const TemporaryFolder m_home;
};

class Runs : public testing::TestWithParam<std::string> {};

TEST_P(Runs, PrintAndChangeWhatTheyShould) {
  const std::string path = RUNS_FOLDER "/" + GetParam() + ".runs";
  std::string rewritten;
  for (const ScriptCase& expected : ReadScript(path)) {
    SCOPED_TRACE(expected.name);
    Case run;
    std::string actual;
    for (const std::string& line : expected.lines) actual += line + "\n" + run.Do(line);
    EXPECT_EQ(DescribeDifference(expected.name, expected.text, actual), "");
    rewritten += expected.before + actual;
  }
  const char* rewrite = std::getenv("FOLIONET_REWRITE_EXPECTED");
  if (rewrite != nullptr && *rewrite == '1') std::ofstream(path, std::ios::binary) << rewritten;
}

INSTANTIATE_TEST_SUITE_P(Of, Runs, testing::ValuesIn(ScriptNames(RUNS_FOLDER)),
                         [](const auto& parameter) { return parameter.param; });

}  // namespace
}  // namespace folionet::test
