#include <gtest/gtest.h>

#include "ProgramFolder.h"

namespace folionet {
namespace {

// The test's own folder holds the delivered files, as an unpacked program's does.
TEST(ProgramFolderTest, TheExecutablesFolderServesWhenItHoldsTheStyleSheet) {
  EXPECT_EQ(FindProgramFolder(""), ExecutableFolder());
}

}  // namespace
}  // namespace folionet
