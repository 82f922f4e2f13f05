#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>

#include "ProgramFolder.h"
#include "TemporaryFolder.h"

namespace folionet {
namespace {

// The test's own folder holds the delivered files, as an unpacked program's does; who may not write there has his own.
TEST(ProgramFolderTest, TheExecutablesFolderServesWhenItHoldsTheStyleSheetAndCanBeWrittenTo) {
  const test::TemporaryFolder home;
  setenv("XDG_DATA_HOME", home.Path().c_str(), 1);
  const bool mayWrite = access(ExecutableFolder().c_str(), W_OK) == 0;
  EXPECT_EQ(FindProgramFolder(""), mayWrite ? ExecutableFolder() : home.Path() + "Folionet/");
  unsetenv("XDG_DATA_HOME");
}

}  // namespace
}  // namespace folionet
