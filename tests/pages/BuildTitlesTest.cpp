#include <gtest/gtest.h>

#include "BuildTitles.h"
#include "ScriptedUi.h"

namespace folionet {
namespace {

ModGlob GenesisOnly() {
  ModGlob glob;
  glob.cboStartBook = {"Genesis", "%bk%", "%ch%"};
  glob.ChapterIndex = {{1, 1, 31}, {0, 0, 0}};
  return glob;
}

TEST(BuildTitlesTest, EndsAReplacementThatFeedsItself) {
  const std::string large(600000, 'x');
  const struct {
    std::string pattern;
    TitleWords words;
    const char* said;
  } cases[] = {
      {"a %bk%",
       {"", "%bk%", ""},
       "5 Build Titles: \"a %bk%\"\r\n%bk%\r\nThe replacement does not end. Its value: \"%bk%\""},
      {"%bible%",
       {"%bible%%bible%", "", ""},
       "5 Build Titles: \"%bible%\"\r\n%bible%\r\nThe replacement does not end. Its value: \"%bible%%bible%\""},
      {"%ch%%ch%", {"", "", large}, "5 Build Titles: \"%ch%%ch%\"\r\nThe text is longer than 1048576 bytes."},
      {large + large,
       {"", "", ""},
       "5 Build Titles: \"xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx...\"\r\n"
       "The text is longer than 1048576 bytes."},
  };
  const VerseCounts counts(GenesisOnly());
  for (const auto& c : cases) {
    test::ScriptedUi ui;
    EXPECT_EQ(BuildTitles(c.pattern, c.words, counts, ui), std::nullopt);
    EXPECT_EQ(ui.Boxes(), std::vector<std::string>{c.said});
  }
}

TEST(BuildTitlesTest, ReplacesTenThousandWordsAndNoMore) {
  const VerseCounts counts(GenesisOnly());
  for (const std::string word : {"%bk%", "%ch%"}) {
    std::string pattern;
    for (int i = 0; i < 10000; ++i) pattern += word;
    test::ScriptedUi ui;
    EXPECT_EQ(BuildTitles(pattern, {"", "1", "1"}, counts, ui), std::string(10000, '1'));
    EXPECT_EQ(BuildTitles(pattern + word, {"", "1", "1"}, counts, ui), std::nullopt);
    EXPECT_EQ(ui.said.size(), 1U);
  }
}

}  // namespace
}  // namespace folionet
