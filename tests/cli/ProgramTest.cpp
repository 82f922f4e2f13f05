#include <gtest/gtest.h>

#include <chrono>
#include <sstream>

#include "Library.h"
#include "ProgramRun.h"
#include "TemporaryFolder.h"

namespace folionet::test {
namespace {

TEST(ProgramTest, HelpFitsAScreenAndGivesAnExample) {
  const TemporaryFolder home;
  for (const auto& arguments : std::vector<std::vector<std::string>>{{"--help"},
                                                                     {"compile", "--help"},
                                                                     {"list", "--help"},
                                                                     {"check", "--help"},
                                                                     {"verify", "--help"},
                                                                     {"import", "--help"}}) {
    const ProgramResult result = RunCli(arguments, home.Path());
    EXPECT_EQ(result.status, 0);
    const std::string example = "\nExample:\n  folionet-cli " + (arguments.size() > 1 ? arguments[0] : "");
    EXPECT_NE(result.output.find(example), std::string::npos) << result.output;
    std::istringstream lines(result.output);
    int count = 0;
    for (std::string line; std::getline(lines, line); ++count) EXPECT_LE(line.size(), 80U) << line;
    EXPECT_LE(count, arguments.front() == "import" ? 28 : 23) << result.output;  // that one names the forms of texts
  }
}

TEST(ProgramTest, TellsInOrderWhereResultsAndRemarksGoToOnePlace) {
  const TemporaryFolder home;
  home.Write("site/index.html", "<a href=none.html>");
  const ProgramResult run = RunProgram({"/bin/sh", "-c", "\"$0\" verify site 2>&1", FOLIONET_CLI}, home.Path());
  EXPECT_LT(run.output.find("not reached."), run.output.find("Compile into this folder")) << run.output;
}

TEST(ProgramTest, TellsThatItsResultCannotBeWritten) {
  const TemporaryFolder home;
  const ProgramResult run = RunProgram({"/bin/sh", "-c", "\"$0\" list settings >/dev/full", FOLIONET_CLI}, home.Path());
  EXPECT_EQ(run.errors, "folionet-cli: standard output cannot be written. Send it to a file on a disk with room.\n");
  EXPECT_EQ(run.status, 3);
}

// However fast or slow the machine is.
TEST(ProgramTest, ATerminalSeesAStepEach40Milliseconds) {
  const TemporaryFolder home;
  MakeSmallLibrary(home);
  MakeLibraryOf66Books(home);
  const std::string library = home.Read(kVersesFile);
  Command line{"/usr/bin/script", "--quiet", "--return", "/dev/null", "--command", ""};
  for (const std::string& part : CompileSmall({"--start-book=66"})) line.back() += part + " ";
  std::vector<std::string> steps;
  // A fast machine comes to a second step with a long text only.
  for (const std::size_t length : {std::size_t{0}, std::size_t{200000}, std::size_t{800000}}) {
    std::string verses;
    std::istringstream lines(library);
    for (std::string verse; std::getline(lines, verse, '\r'); lines.get()) {
      verses += verse + std::string(length, 'x') + "\r\n";
    }
    home.Write(kVersesFile, verses);
    const auto start = std::chrono::steady_clock::now();
    const ProgramResult run = RunProgram(line, home.Path());
    const std::chrono::duration<double, std::milli> taken = std::chrono::steady_clock::now() - start;
    steps.clear();
    std::istringstream parts(run.output.substr(0, run.output.find("\r\n")));
    for (std::string part; std::getline(parts, part, '\r');) steps.push_back(part);
    ASSERT_GE(steps.size(), 3U) << run.output;
    EXPECT_EQ(steps[1], "\x1B[KCompiling file 3 Book 2");
    EXPECT_EQ(steps.back(), "\x1B[KCompilation Complete!");
    EXPECT_LE(static_cast<double>(steps.size()) - 3, taken.count() / 40);
    if (steps.size() > 3) break;
  }
  EXPECT_GT(steps.size(), 3U) << "one step only, however long the run";
}

TEST(ProgramTest, LinksNoQt) {
  const TemporaryFolder home;
  const ProgramResult result = RunProgram({"/usr/bin/ldd", FOLIONET_CLI}, home.Path());
  EXPECT_NE(result.output.find("libicuuc"), std::string::npos);
  EXPECT_EQ(result.output.find("libQt"), std::string::npos) << result.output;
}

}  // namespace
}  // namespace folionet::test
