#include <gtest/gtest.h>
#include <sys/stat.h>

#include "Paths.h"
#include "RunTimeError.h"
#include "TemporaryFolder.h"
#include "WholeFile.h"

namespace folionet {
namespace {

TEST(PathsTest, FindsNamesInAnyLetterCaseAndTheExactOneFirst) {
  const test::TemporaryFolder folder;
  folder.Write("SysDefs/TRANSLATIONS.TXT", "");
  folder.Write("Bible/kjv.txt", "");
  folder.Write("Bible/KJV.TXT", "");
  folder.Write("Bible/ÉX.txt", "");
  const struct {
    const char* name;
    const char* found;
  } cases[] = {
      {"Sysdefs/Translations.txt", "SysDefs/TRANSLATIONS.TXT"},
      {"Sysdefs\\Translations.txt", "SysDefs/TRANSLATIONS.TXT"},
      {"Bible/KJV.TXT", "Bible/KJV.TXT"},
      {"Bible/kjv.txt", "Bible/kjv.txt"},
      {"bible/Éx.TXT", "Bible/ÉX.txt"},
      {"Bible/none.txt", "Bible/none.txt"},
      {"None/none.txt", "None/none.txt"},
      {"Sysdefs/", "SysDefs/"},
  };
  for (const auto& c : cases) EXPECT_EQ(LocateIgnoringCase(folder.Path(), c.name), folder.Path() + c.found) << c.name;
}

TEST(PathsTest, SeparatorsOfEitherKindAreTaken) {
  EXPECT_EQ(WithSeparator("/a"), "/a/");
  EXPECT_EQ(WithSeparator("/a/"), "/a/");
  EXPECT_EQ(WithSeparator("C:\\"), "C:\\");
  EXPECT_EQ(NativePath("a\\b/c"), "a/b/c");
}

TEST(WholeFileTest, FollowsALinkAndKeepsTheMode) {
  const test::TemporaryFolder folder;
  const std::string target = folder.Write("target", "old");
  std::filesystem::create_symlink(target, folder.Path() + "link");
  ASSERT_EQ(chmod(target.c_str(), 0640), 0);
  ReplaceWholeFile(folder.Path() + "link", "new");
  EXPECT_TRUE(std::filesystem::is_symlink(folder.Path() + "link"));
  EXPECT_EQ(folder.Read("target"), "new");
  EXPECT_EQ(static_cast<int>(std::filesystem::status(target).permissions()), 0640);
}

// Writers refuse what readers refuse, and leave it there.
TEST(WholeFileTest, NothingButARegularFileIsReplaced) {
  const test::TemporaryFolder folder;
  std::filesystem::create_directory(folder.Path() + "folder");
  ASSERT_EQ(mkfifo((folder.Path() + "pipe").c_str(), 0600), 0);
  for (const std::string target : {"folder", "pipe", "none", "/dev/full"}) {
    std::filesystem::create_symlink(target, folder.Path() + "link to " + (target[0] == '/' ? "device" : target));
  }
  std::filesystem::create_symlink("link to itself", folder.Path() + "link to itself");
  const struct {
    const char* name;
    const char* error;
  } cases[] = {
      {"folder", "Path/File access error: %: It is not a regular file."},
      {"pipe", "Path/File access error: %: It is not a regular file."},
      {"link to folder", "Path/File access error: %folder: It is not a regular file."},
      {"link to pipe", "Path/File access error: %pipe: It is not a regular file."},
      {"link to device", "Path/File access error: /dev/full: It is not a regular file."},
      {"link to none", "Path/File access error: %: It is a link to a file that is not there. Remove it."},
      {"link to itself", "Path/File access error: %: Too many levels of symbolic links"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    const std::string path = folder.Path() + c.name;
    struct stat before {};
    ASSERT_EQ(lstat(path.c_str(), &before), 0);
    std::string expected = c.error;
    if (const std::size_t at = expected.find('%'); at != std::string::npos) {
      expected.replace(at, 1, expected[at + 1] == ':' ? path : folder.Path());
    }
    try {
      ReplaceWholeFile(path, "new");
      ADD_FAILURE() << "it is replaced";
    } catch (const RunTimeError& error) {
      EXPECT_EQ(error.what(), expected);
    }
    struct stat after {};
    ASSERT_EQ(lstat(path.c_str(), &after), 0);
    EXPECT_EQ(after.st_ino, before.st_ino);
  }
}

TEST(WholeFileTest, NamesOnItsWayAreItsOwn) {
  const test::TemporaryFolder folder;
  folder.Write("header.new", "a person's");
  folder.Write(".header.folionet-new", "left by a killed program");
  ReplaceWholeFile(folder.Path() + "header", "new");
  EXPECT_EQ(folder.Read("header"), "new");
  EXPECT_EQ(folder.Read("header.new"), "a person's");
  EXPECT_FALSE(folder.Has(".header.folionet-new"));
  std::filesystem::create_hard_link(folder.Path() + "header.new", folder.Path() + ".header.folionet-new");
  try {
    ReplaceWholeFile(folder.Path() + "header", "newer");
    ADD_FAILURE() << "another file is written over";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.Detail(), "\".header.folionet-new\" beside it is in the way. Remove it.");
  }
  EXPECT_EQ(folder.Read("header.new"), "a person's");
}

}  // namespace
}  // namespace folionet
