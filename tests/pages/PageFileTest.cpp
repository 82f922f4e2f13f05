#include <gtest/gtest.h>

#include "PageFile.h"
#include "TemporaryFolder.h"

namespace folionet {
namespace {

// What a page does that is closed is seen in runs of the command line.
TEST(PageFileTest, APageThatIsNotClosedLeavesNothing) {
  const test::TemporaryFolder folder;
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

}  // namespace
}  // namespace folionet
