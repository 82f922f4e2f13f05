#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>

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

TEST(ProgramFolderTest, OnlyFilesWithoutANameAreDelivered) {
  const test::TemporaryFolder home;
  for (const char* name : {"default.css", "lang.txt", "enc.txt"}) home.Write(std::string("from/") + name, "delivered");
  home.Write("own/lang.txt/a_folder_of_that_name", "own");
  std::filesystem::create_symlink("away", home.Path() + "own/enc.txt");
  DeliverFiles(home.Path() + "from/", home.Path() + "own/");
  EXPECT_EQ(home.Read("own/default.css"), "delivered");
  EXPECT_EQ(home.Read("own/lang.txt/a_folder_of_that_name"), "own");
  EXPECT_EQ(std::filesystem::read_symlink(home.Path() + "own/enc.txt"), "away");
  EXPECT_FALSE(home.Has("own/away"));
}

}  // namespace
}  // namespace folionet
