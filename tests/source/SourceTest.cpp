#include <gtest/gtest.h>

#include "ChapterIndex.h"
#include "ScriptedUi.h"

// What runs of the command line do not reach; those are in tests/runs.

namespace folionet {
namespace {

using test::ScriptedUi;

TEST(GetVSCntTest, FindsByTitleAndLeadingNumber) {
  ModGlob glob;
  for (int i = 1; i <= 66; ++i) glob.cboStartBook.push_back("Book " + std::to_string(i));
  glob.cboStartBook[2] = "Book 1";  // the last match wins
  glob.ChapterIndex = {{1, 1, 31}, {2, 12, 7}, {3, 1, 5}, {3, 1, 6}, {67, 0, 99}, {0, 0, 0}};
  const VerseCounts counts(glob);
  const struct {
    const char* title;
    const char* chapter;
    const char* verses;
  } cases[] = {{"Book 1", "1", "6"}, {"Book 2", "12abc", "7"}, {"Book 2", "13", ""},
               {"book 2", "12", ""}, {"None", "1", ""},        {"None", "0", "0"},
               {"None", "", "0"},    {"", "", "99"},           {"Book 2", "-1", ""}};
  ScriptedUi ui;
  for (const auto& c : cases) EXPECT_EQ(counts.GetVSCnt(c.title, c.chapter, ui), c.verses) << c.title << c.chapter;
  EXPECT_TRUE(ui.log.empty());
  EXPECT_EQ(counts.GetVSCnt("Book 1", "70000", ui), "");
  EXPECT_EQ(ui.Boxes(), std::vector<std::string>{"6 GetVSCnt: Last Book 0\r\nLast Chap \"70000\"\r\nLast Index 0\r\n"
                                                 "A chapter from -32768 to 32767 was expected."});
}

}  // namespace
}  // namespace folionet
