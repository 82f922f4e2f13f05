#include <gtest/gtest.h>

#include "PageNames.h"

namespace folionet {
namespace {

// A browser asks for the letters that the references in a link stand for.
TEST(PageNamesTest, ReferencesNameTheirLettersOnDisk) {
  const struct {
    const char* title;
    const char* inLink;
    const char* onDisk;
  } cases[] = {{"G&#233;n&#xC9;se", "g&#233;n&#xc9;se_1.html", "génÉse_1.html"},
               {"&Eacute;xode &amp; Co", "&eacute;xode_&amp;_co_1.html", "éxode_&_co_1.html"},
               {"&Psi;alm&#146;s", "&psi;alm&#146;s_1.html", "ψalm’s_1.html"},
               {"n&#233mero &#xE9", "n&#233mero_&#xe9_1.html", "némero_é_1.html"},
               {"A&B &none; &#9999999;", "a&b_&none;_&#9999999;_1.html", "a&b_&none;_\uFFFD_1.html"},
               {"&ccaron;&NotEqualTilde;", "&ccaron;&notequaltilde;_1.html", "č&notequaltilde;_1.html"},
               {"&acE;&bne;", "&ace;&bne;_1.html", "&ace;=\u20E5_1.html"},
               {"&copy &copyx &copy=", "&copy_&copyx_&copy=_1.html", "©_&copyx_&copy=_1.html"},
               {"&#0;&#128;&#xD800;", "&#0;&#128;&#xd800;_1.html", "\uFFFD€\uFFFD_1.html"},
               {"a%20b%&#10;%C3%A9&#x;", "a%20b%&#10;%c3%a9&#x;_1.html", "a b%é&#x;_1.html"}};
  for (const auto& c : cases) {
    const PageNames names({c.title}, false, CodePage());
    std::string link;
    names.AddInLink(link, 1, 1);
    EXPECT_EQ(link, c.inLink);
    EXPECT_EQ(names.OnDisk(1, 1), c.onDisk);
  }
  EXPECT_EQ(IndexFileName("https://a.b/caf&eacute;%20x.html"), "café x.html");
  EXPECT_EQ(IndexFileName(" a.html"), "a.html");
}

TEST(PageNamesTest, NamesThatLeadElsewhereAreRefused) {
  for (const char* name : {"genesis_1.html", "...", ".a", "a b", "é.html", "\xE9", "a:b"}) {
    EXPECT_TRUE(IsPageName(name)) << name;
  }
  for (const std::string name : {"", ".", "..", "../a", "a/b", "a\\b", "a\nb", "\x7F", "a\xC2\x85", "\t"}) {
    EXPECT_FALSE(IsPageName(name)) << name;
  }
  EXPECT_FALSE(IsPageName(std::string_view("a\0b", 3)));
}

}  // namespace
}  // namespace folionet
