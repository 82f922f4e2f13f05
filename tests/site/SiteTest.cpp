// Compiles each case of this folder and compares the site with the expected one, both ways. A case is a folder:
//
//   installation/     the files that differ from ../installation, which holds Sysdefs/, Index/ and Modules/Bible/ as
//                     Versalia keeps them; a case whose library has other folders has the whole of it in library/
//   options           the arguments of the compile, one a line
//   before/           what stands in the output folder before the run, where the case needs it
//   program/          what stands in the program's own folder, where the case needs it
//   expected/         every file of the output folder after the run
//   expected.stdout   the words on standard output
//
// FOLIONET_REWRITE_EXPECTED=1 writes what the program gives into the cases, for a person to review the difference.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "FolderContent.h"
#include "Library.h"
#include "ProgramRun.h"

namespace folionet::test {
namespace {

namespace fs = std::filesystem;

const std::string kCases = SITE_CASES;

std::vector<std::string> CaseNames() {
  std::vector<std::string> names;
  for (const fs::directory_entry& entry : fs::directory_iterator(kCases)) {
    if (fs::exists(entry.path() / "options")) names.push_back(entry.path().filename());
  }
  std::sort(names.begin(), names.end());
  return names;
}

class Site : public testing::TestWithParam<std::string> {
 protected:
  void SetUp() override {
    fs::create_directories(m_home.Path() + "program");
    if (!fs::exists(m_case + "library")) Copy(kCases + "/installation", "installation");
    for (const auto& [from, to] : {std::pair{"library", "installation"},
                                   {"installation", "installation"},
                                   {"program", "program"},
                                   {"before", "out"}}) {
      if (fs::exists(m_case + from)) Copy(m_case + from, to);
    }
  }

  void Copy(const std::string& from, const std::string& to) const {
    fs::copy(from, m_home.Path() + to, fs::copy_options::recursive | fs::copy_options::overwrite_existing);
  }

  ProgramResult Compile() const {
    Command command = CompileCommand({"--output=out"});
    std::istringstream options(ReadFile(m_case + "options"));
    for (std::string line; std::getline(options, line);) command.push_back(line);
    return RunProgram(command, m_home.Path());
  }

  const std::string m_case = kCases + "/" + GetParam() + "/";
  const TemporaryFolder m_home;
};

TEST_P(Site, IsTheExpectedOne) {
  const FolderContent installation = ReadFolder(m_home.Path() + "installation");
  const ProgramResult run = Compile();
  ASSERT_EQ(run.status, 0);
  const FolderContent site = ReadFolder(m_home.Path() + "out");
  if (const char* rewrite = std::getenv("FOLIONET_REWRITE_EXPECTED"); rewrite != nullptr && *rewrite == '1') {
    fs::remove_all(m_case + "expected");
    fs::copy(m_home.Path() + "out", m_case + "expected", fs::copy_options::recursive);
    std::ofstream(m_case + "expected.stdout", std::ios::binary) << run.output;
    fs::remove(m_case + "expected.stderr");
    if (!run.errors.empty()) std::ofstream(m_case + "expected.stderr", std::ios::binary) << run.errors;
    GTEST_SKIP() << "rewritten: " << m_case << "expected";
  }
  EXPECT_EQ(DescribeDifference(ReadFolder(m_case + "expected"), site), "");
  EXPECT_EQ(DescribeDifference("standard output", ReadFile(m_case + "expected.stdout"), run.output), "");
  const std::string errors = m_case + "expected.stderr";  // where there is something to say
  EXPECT_EQ(DescribeDifference("standard error", fs::exists(errors) ? ReadFile(errors) : "", run.errors), "");
  EXPECT_EQ(DescribeDifference(installation, ReadFolder(m_home.Path() + "installation")), "");
  EXPECT_EQ(ReadFolder(m_home.Path() + "config").size(), 0u) << "a compile stores no settings";
}

INSTANTIATE_TEST_SUITE_P(Case, Site, testing::ValuesIn(CaseNames()), [](const auto& parameter) {
  std::string name = parameter.param;
  std::replace(name.begin(), name.end(), '-', '_');
  return name;
});

}  // namespace
}  // namespace folionet::test
