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

}  // namespace
}  // namespace folionet
