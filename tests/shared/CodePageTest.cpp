#include <gtest/gtest.h>

#include "CodePage.h"

namespace folionet {
namespace {

TEST(CodePageTest, IsTheOneOfBrowsersWherePagesCanBeInIt) {
  const struct {
    const char* charset;
    const char* name;
    CharsetUse use = CharsetUse::kAsDeclared;
  } cases[] = {
      {"windows-1252", "windows-1252"},
      {"UTF-8", "utf-8"},
      {"ISO-8859-7", "iso-8859-7"},
      {"shift_jis", "shift_jis"},
      {"gb18030", "gb18030"},
      {"ISO-8859-1", "windows-1252"},
      {"ascii", "windows-1252"},
      {"latin5", "windows-1254"},
      {"gb2312", "gbk"},
      {"tis-620", "windows-874"},
      {"utf-16", "windows-1252", CharsetUse::kNotFit},
      {"iso-2022-jp", "windows-1252", CharsetUse::kNotFit},
      {"iso-2022-kr", "windows-1252", CharsetUse::kNotFit},
      {"ibm-37", "windows-1252", CharsetUse::kNotFit},
      {"no-such-charset", "windows-1252", CharsetUse::kNotKnown},
      {"l1 l5", "windows-1252", CharsetUse::kNotKnown},
      {"", "windows-1252", CharsetUse::kNotKnown},
      {"utf-7", "windows-1252", CharsetUse::kNotFit},
      {"ibm-850", "ibm-850", CharsetUse::kNotKnown},
      {"ibm866", "ibm866"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(CodePage(c.charset).Name(), c.name) << c.charset;
    EXPECT_EQ(CodePage(c.charset).Use(), c.use) << c.charset;
  }
}

TEST(CodePageTest, EncodesWhatTheCodePageHoldsAndReferencesTheRest) {
  const struct {
    const char* charset;
    std::string text;
    std::string bytes;
  } cases[] = {
      {"windows-1252", "Éxodo – “q”", "\xC9xodo \x96 \x93q\x94"},
      {"windows-1252", "Ψαλμός", "&#936;&#945;&#955;&#956;&#972;&#962;"},
      {"iso-8859-7", "Ψ—", "\xD8&#8212;"},
      {"utf-8", "Ψ—𝄞", "Ψ—𝄞"},
      {"windows-1252", "𝄞", "&#119070;"},
      {"shift_jis", "表¥", "\x95\x5C&#165;"},
      {"windows-1252", "a\xFF", "a\xFF"},
      {"windows-1251", "a\u200Db", "a&#8205;b"},
      {"iso-8859-16", "ȚÿЖ\u0085", "\xDE\xFF&#1046;\x85"},
      {"koi8-u", "бў╝", "\xC2\xAE&#9565;"},
  };
  for (const auto& c : cases) EXPECT_EQ(CodePage(c.charset).Encode(c.text), c.bytes) << c.charset << " " << c.text;
}

TEST(CodePageTest, DecodesAndKeepsWhatDoesNotDecode) {
  const struct {
    const char* charset;
    std::string bytes;
    std::string text;
    std::string shown;
    std::size_t undecodable;
  } cases[] = {
      {"windows-1252", "\xC9xodo\xA0", "Éxodo\u00A0", "Éxodo\u00A0", std::string::npos},
      {"shift_jis", "\x95\x5C/", "表/", "表/", std::string::npos},
      {"shift_jis", "a\xFD", "a\xFD", "a\uFFFD", 1},
      {"iso-8859-1", "\x93q\x94", "“q”", "“q”", std::string::npos},
      {"euc-kr", "\x81\x41", "갂", "갂", std::string::npos},
      {"big5", "\x87\x40", "䏰", "䏰", std::string::npos},
      {"utf-8", "a\xE9o", "a\xE9o", "a\uFFFDo", 1},
      {"big5", "\xA4", "\xA4", "\uFFFD", 0},
      {"shift_jis", "\x85\x41", "\x85\x41", "\uFFFDA", 0},
      {"euc-kr", "\xC9\x41", "\xC9\x41", "\uFFFDA", 0},
      {"koi8-u", "\xBE\xC1", "Ўа", "Ўа", std::string::npos},
      {"gb2312", "\xA2\xE3", "€", "€", std::string::npos},
      {"iso-8859-16", "\xA4\xFE\x85", "€ț\u0085", "€ț\u0085", 2},
  };
  for (const auto& c : cases) {
    const CodePage codePage(c.charset);
    EXPECT_EQ(codePage.Decode(c.bytes), c.text) << c.charset;
    EXPECT_EQ(codePage.DecodeForDisplay(c.bytes), c.shown) << c.charset;
    EXPECT_EQ(codePage.FindUndecodable(c.bytes), c.undecodable) << c.charset;
    EXPECT_EQ(codePage.Encode(codePage.Decode(c.bytes)), c.bytes) << c.charset;
  }
}

}  // namespace
}  // namespace folionet
