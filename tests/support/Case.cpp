#include "Case.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ctime>
#include <filesystem>
#include <iomanip>
#include <sstream>

#include "FolderContent.h"
#include "Library.h"
#include "ProgramRun.h"
#include "Script.h"

namespace folionet::test {
namespace {

namespace fs = std::filesystem;

// An error report on one line: its layout is the same each time, so that its label, its number with the text and what
// it is about say all. "FOLDERS" behind it are the words around it that ask for Versalia's folders; what to do
// about a line of a text, a place of an index and a place that is taken stands in full here alone.
std::string WithShortReports(std::string text) {
  Replace(text, ": @/bin\n", ": @bin\n");  // of an installed program
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
    const std::size_t next = from + report.size();
    if (text.compare(next, 2, "\n\n") == 0) text.replace(next, 2, " => ");
  }
  const std::string saysHow =
      "Give Versalia's folders with --versalia-path FOLDER, which holds Sysdefs and Index, and --module-path FOLDER, "
      "which holds Bible, or other book titles with --language-file NAME; \"folionet-cli check\" names what is "
      "wrong. Without Versalia, import a text: \"folionet-cli import FILE\".\n\n";
  const std::string asks =
      "\nPath and/or file not found: This error has probably occured because you have an older version of Versalia\n"
      "or because Versalia is not correctly installed.\n"
      "Folionet will attempt to gather the correct information manually\n"
      "You will need to enter the values for the following:\n1. The Versalia Path\n2. The Versalia Module Path\n";
  Replace(text,
          "Correct this line of the translation's text, or install the translation anew, in Versalia or by "
          "\"folionet-cli import --replace\"; \"folionet-cli check\" names every such line.",
          "LINE");
  Replace(text,
          "Correct the place that the report names, or remove this index and run Versalia on the translation, which "
          "makes it anew; \"folionet-cli check\" names every such place.",
          "INDEX");
  Replace(text,
          "See what is in the place of this file or folder and move it away, or choose another folder with "
          "--output FOLDER.",
          "PLACE");
  Replace(text,
          " is not a valid long filename extension. It must be \"html\"\nPlease correct and try again.\nGive an "
          "address such as --index-address index.html, or short names with "
          "--set Use83=1.",
          " => LONG");
  Replace(text, "\nGive an address such as --index-address index.htm, or long names with --set Use83=0.", " => SHORT");
  const std::size_t how = text.find(saysHow);
  const std::size_t asked = text.find(asks);
  if (how != std::string::npos && asked != std::string::npos) {
    text.replace(asked, asks.size(), " => FOLDERS\n");
    text.erase(how, saysHow.size());
  }
  return text;
}

// What a check advises below its faults.
constexpr char kCorrect[] =
    "Correct these places, or install the translation anew, in Versalia or by \"folionet-cli import --replace\", and "
    "check again.\n";

// As "install" makes them, without delivered files beside them.
constexpr char kInstalled[] = "bin/folionet";
constexpr char kInstalledCli[] = "bin/folionet-cli";

fs::path ProgramOfForm() { return fs::path(FOLIONET_CLI).replace_filename("folionet"); }

// What goes before the program: settings of the environment, and bounds.
Command Prefix(const std::string& word) {
  if (word == "fed") return {"/bin/sh", "-c", "exec \"$@\" < in", "sh"};
  if (word == "bare") return {"/usr/bin/env", "-i"};
  if (word == "limited") return {"/usr/bin/prlimit", "--fsize=4096"};
  if (word == "bounded") {
    Command command{"/usr/bin/prlimit", "--cpu=" BOUND_SECONDS};
    if (BOUND_MEMORY[0] != '\0') command.push_back("--as=" BOUND_MEMORY);
    return command;
  }
  return {};
}

Command CommandOf(const Command& words) {
  const std::string& word = words.at(0);
  const Command rest(words.begin() + 1, words.end());
  if (word == "site") return CompileSmall(rest);
  if (word == "compile") return CompileCommand(rest);
  if (word == "cli") return With({FOLIONET_CLI}, rest);
  if (word == "installed") {
    return With(
        {kInstalledCli, "compile", "--versalia-path=installation", "--output=out", "--index-address=index.html"}, rest);
  }
  if (word == "folionet" || word == kInstalled) {
    // With a person who answers: tests/app/Person.cpp.
    return With({"/usr/bin/env", "-u", "DISPLAY", "-u", "WAYLAND_DISPLAY", "QT_QPA_GENERIC_PLUGINS=person",
                 "QT_PLUGIN_PATH=" PERSON_PLUGINS, word == kInstalled ? word : ProgramOfForm().string()},
                rest);
  }
  if (word == "terminal") {
    std::string line;
    for (const std::string& part : CommandOf(rest)) line += "'" + part + "' ";
    return {"/usr/bin/script", "--quiet", "--return", "--command", line, "/dev/null"};
  }
  if (word.find('=') != std::string::npos) return With({"/usr/bin/env", word}, CommandOf(rest));
  const Command prefix = Prefix(word);
  EXPECT_FALSE(prefix.empty()) << "what is the program \"" << word << "\"?";
  return With(prefix, CommandOf(rest));
}

// The lines that a text stands in, which may go over several.
std::string LinesWith(const std::string& text, const std::string& wanted) {
  std::string found;
  for (std::size_t at = text.find(wanted); at != std::string::npos; at = text.find(wanted, at)) {
    const std::size_t begin = text.rfind('\n', at) + 1;
    at = std::min(text.find('\n', at + wanted.size() - 1), text.size() - 1) + 1;
    found += text.substr(begin, at - begin);
  }
  return found;
}

std::string FileNames(const std::string& folder) {
  std::string names;
  for (const auto& [name, bytes] : ReadFolder(folder)) names += name + "\n";
  return names;
}

void Append(std::vector<std::string>& lines, const std::vector<std::string>& more) {
  lines.insert(lines.end(), more.begin(), more.end());
}

}  // namespace

std::vector<std::string> Case::Do(const std::string& line) const {
  std::string meant = line;
  for (const auto& [name, path] : {std::pair{"@catalogue", kCatalogueFile},
                                   {"@titles", kTitlesFile},
                                   {"@index", kIndexFile},
                                   {"@verses", kVersesFile}}) {
    Replace(meant, name, path);
  }
  const Lines words = SplitWords(meant);
  if (words.at(0).starts_with("$")) return Run(line, {words.begin() + 1, words.end()});
  Lines lines{line};
  Append(lines, Outcome(words));
  return lines;
}

std::vector<std::string> Case::Outcome(const Lines& words) const {
  const std::string& verb = words.at(0);
  if (verb == "show") return MarkLines("| ", Named(m_home.Read(words.at(1))));
  if (verb == "find") return MarkLines("| ", LinesWith(m_home.Read(words.at(1)), words.at(2)));
  if (verb == "list") return MarkLines("| ", FileNames(m_home.Path() + words.at(1)));
  if (verb == "absent") return m_home.Has(words.at(1)) ? Lines{"+ " + words[1]} : Lines{};
  if (verb == "library") {
    TakeLibrary(words.at(1));
  } else if (verb == "install") {
    fs::create_directory(m_home.Path() + "bin");
    fs::copy_file(FOLIONET_CLI, m_home.Path() + kInstalledCli);
    if (fs::exists(ProgramOfForm())) fs::copy_file(ProgramOfForm(), m_home.Path() + kInstalled);
  } else if (!Arrange(m_home.Path(), words)) {
    ADD_FAILURE() << "what is \"" << verb << "\"?";
  }
  return {};
}

std::vector<std::string> Case::Run(const std::string& line, const Lines& words) const {
  const Stamps before = Outside();
  const ProgramResult result = RunProgram(CommandOf(words), m_home.Path());
  std::string errors = WithShortReports(Named(result.errors));
  Replace(errors, "This plugin does not support propagateSizeHints()\n", "");  // of Qt, off-screen
  const bool hasFaults = result.status == 1 && std::find(words.begin(), words.end(), "check") != words.end();
  if (hasFaults && errors.empty()) errors = "no advice\n";
  if (hasFaults && errors == kCorrect) errors.clear();
  Lines lines{"$" + (result.status == 0 ? "" : std::to_string(result.status)) + line.substr(line.find(' '))};
  Append(lines, MarkLines("| ", Named(result.output)));
  Append(lines, MarkLines("! ", errors));
  const Stamps after = Outside();
  for (const auto& [name, stamp] : after) {
    const auto old = before.find(name);
    if (old == before.end() || old->second != stamp) lines.push_back((old == before.end() ? "+ " : "~ ") + name);
  }
  for (const auto& [name, stamp] : before) {
    if (!after.contains(name)) lines.push_back("- " + name);
  }
  return lines;
}

Case::Stamps Case::Outside() const {
  Stamps stamps;
  for (const auto& entry : fs::recursive_directory_iterator(m_home.Path())) {
    const std::string name = entry.path().lexically_relative(m_home.Path()).string();
    if (name.starts_with("out/") || name.starts_with("state/") || !fs::is_regular_file(entry.symlink_status()))
      continue;
    stamps[name] = {entry.file_size(), entry.last_write_time()};
  }
  return stamps;
}

void Case::TakeLibrary(const std::string& name) const {
  fs::remove_all(m_home.Path() + "installation");
  if (name == "sixty-six") return MakeLibraryOf66Books(m_home);
  EXPECT_EQ(name, "none") << "sixty-six or none was expected";
}

std::string Case::Named(std::string text) const {
  Replace(text, fs::path(FOLIONET_CLI).parent_path().string(), "@bin");
  Replace(text, m_home.Path(), "@/");
  constexpr std::time_t kDay = 24 * 60 * 60;  // which may end meanwhile
  for (const std::time_t time : {std::time(nullptr), std::time(nullptr) - kDay}) {
    std::ostringstream today;
    std::tm day{};
    today << std::put_time(gmtime_r(&time, &day), "%F");
    Replace(text, today.str(), "@today");
  }
  return text;
}

}  // namespace folionet::test
