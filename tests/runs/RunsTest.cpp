// Runs the programs as the files *.runs of this folder say; README.md there tells the language.

#include <gtest/gtest.h>

#include "Case.h"
#include "Library.h"
#include "Script.h"

namespace folionet::test {
namespace {

class Runs : public testing::Test {
 public:
  explicit Runs(ScriptCase script) : m_script(std::move(script)) {}
  void TestBody() override {
    const TemporaryFolder home;
    MakeSmallLibrary(home);
    const Case runner(home);
    RunScript(m_script, [&](const std::string& line) { return runner.Do(line); });
  }

 private:
  ScriptCase m_script;
};

}  // namespace
}  // namespace folionet::test

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  folionet::test::RegisterScripts<folionet::test::Runs>(folionet::test::Drives::kPrograms);
  return RUN_ALL_TESTS();
}
