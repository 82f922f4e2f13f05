#include <gtest/gtest.h>

#include "TextBox.h"

namespace folionet {
namespace {

// What each text that was put in gives back, untouched and with "!" typed at its end.
TEST(TextBoxTest, GivesBackWhatWasPutIn) {
  const struct {
    const char* given;
    const char* edited;
  } cases[] = {
      {"", "!"},
      {"one\r\ntwo\r\n", "one\r\ntwo\r\n!"},
      {"one\ntwo", "one\r\ntwo!"},
      {"a\xC2\xA0z", "a\xC2\xA0z!"},                                              // a hard blank
      {"caf\xE9 caf\xC3\xA9", "caf\xE9 caf\xC3\xA9!"},                            // a byte that is not UTF-8
      {"\xF0\x9F\x8C\x8D\xFF\xED\xB2\x80", "\xF0\x9F\x8C\x8D\xFF\xED\xB2\x80!"},  // beyond 16 bits, and bad bytes
  };
  for (const auto& c : cases) {
    TextBox box;
    box.SetText(c.given);
    EXPECT_EQ(box.Text(), c.given);
    box.moveCursor(QTextCursor::End);
    box.insertPlainText(QStringLiteral("!"));
    EXPECT_EQ(box.Text(), c.edited);
  }
}

TEST(TextBoxTest, TakesTextSetByOthers) {
  TextBox box;
  box.SetText("old");
  box.setPlainText(QStringLiteral("one\ntwo"));
  EXPECT_EQ(box.Text(), "one\r\ntwo");
}

}  // namespace
}  // namespace folionet
