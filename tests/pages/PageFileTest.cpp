#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "PageFile.h"
#include "RunTimeError.h"
#include "TemporaryFolder.h"

namespace folionet {
namespace {

using test::TemporaryFolder;

void WritePage(PageFile& page, const std::string& folder, const std::string& name, std::string_view text) {
  page.Open(folder, name);
  page.Print(text);
  page.Close();
}

TEST(PageFileTest, WritesNewPagesAndOverwritesInPlace) {
  const TemporaryFolder folder;
  PageFile page;
  for (const char* text : {"long text here", "short", "longer than all of them"}) {
    WritePage(page, folder.Path(), "page.html", text);
    EXPECT_EQ(folder.Read("page.html"), std::string(text) + "\r\n");
  }
  WritePage(page, folder.Path(), "other.html", "");
  EXPECT_EQ(folder.Read("other.html"), "\r\n");
}

TEST(PageFileTest, LeavesAnEqualFileAlone) {
  const TemporaryFolder folder;
  const std::string path = folder.Write("page.html", "same\r\n");
  const timespec times[2] = {{1000, 0}, {1000, 0}};
  ASSERT_EQ(utimensat(AT_FDCWD, path.c_str(), times, 0), 0);
  PageFile page;
  WritePage(page, folder.Path(), "page.html", "same");
  struct stat status {};
  ASSERT_EQ(stat(path.c_str(), &status), 0);
  EXPECT_EQ(status.st_mtim.tv_sec, 1000);
  WritePage(page, folder.Path(), "page.html", "sane");
  ASSERT_EQ(stat(path.c_str(), &status), 0);
  EXPECT_NE(status.st_mtim.tv_sec, 1000);
}

TEST(PageFileTest, APageThatIsNotClosedLeavesNothing) {
  const TemporaryFolder folder;
  folder.Write("old.html", "old");
  {
    PageFile page;
    page.Open(folder.Path(), "new.html");
    page.Print("text");
    page.Open(folder.Path(), "old.html");
    page.Print("text");
  }
  EXPECT_FALSE(folder.Has("new.html"));
  EXPECT_EQ(folder.Read("old.html"), "old");
}

TEST(PageFileTest, NeverWritesOutsideOrIntoWhatIsNoFile) {
  const TemporaryFolder outside;
  const TemporaryFolder folder;
  const std::string target = outside.Write("target", "untouched");
  std::filesystem::create_symlink(target, folder.Path() + "leads-out.html");
  std::filesystem::create_symlink(outside.Path() + "none", folder.Path() + "dangling.html");
  std::filesystem::create_directory(folder.Path() + "folder.html");
  ASSERT_EQ(mkfifo((folder.Path() + "pipe.html").c_str(), 0600), 0);
  const struct {
    std::string folder;
    const char* name;
    int number;
  } cases[] = {
      {folder.Path(), "leads-out.html", kPathFileAccessError},
      {folder.Path(), "dangling.html", kPathFileAccessError},
      {folder.Path(), "folder.html", kPathFileAccessError},
      {folder.Path(), "pipe.html", kPathFileAccessError},
      {folder.Path(), "../up.html", kBadFileName},
      {folder.Path(), "", kBadFileName},
      {folder.Path() + "none/", "page.html", kPathNotFound},
      {target + "/", "page.html", kPathNotFound},
  };
  for (const auto& c : cases) {
    PageFile page;
    try {
      WritePage(page, c.folder, c.name, "text");
      ADD_FAILURE() << c.name;
    } catch (const RunTimeError& error) {
      EXPECT_EQ(error.Number(), c.number) << c.name << ": " << error.what();
    }
  }
  EXPECT_EQ(outside.Read("target"), "untouched");
  EXPECT_FALSE(outside.Has("none"));
}

TEST(PageFileTest, FollowsALinkThatStaysInside) {
  const TemporaryFolder folder;
  folder.Write("real.html", "old");
  std::filesystem::create_symlink("real.html", folder.Path() + "link.html");
  PageFile page;
  WritePage(page, folder.Path(), "link.html", "new");
  EXPECT_EQ(folder.Read("real.html"), "new\r\n");
  EXPECT_TRUE(std::filesystem::is_symlink(folder.Path() + "link.html"));
}

}  // namespace
}  // namespace folionet
