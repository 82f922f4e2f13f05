#include <gtest/gtest.h>

#include "CustomHtml.h"
#include "OptionSaving.h"
#include "PageEncoding.h"
#include "RecordingUi.h"
#include "RunTimeError.h"
#include "TemporaryFolder.h"

namespace folionet {
namespace {

using test::TemporaryFolder;

TEST(OptionRecordsTest, TheSecondAlignmentKeyWins) {
  const struct {
    const char* ini;
    const char* selected;
    const char* text;
  } cases[] = {
      {"", "Left", "Left"},
      {"alignmentLR=Justify\n", "Left", "Left"},
      {"alignmentLR=Left\nIndex_Alignment=Justify\n", "Justify", "Justify"},
      {"alignmentLR=Justify\nIndex_Alignment=none\n", "Center", "none"},
      {"alignmentLR=Left\nIndex_Alignment=center\n", "Left", "center"},
  };
  for (const auto& c : cases) {
    const TemporaryFolder folder;
    folder.Write("Folionet.ini", std::string("[Keys]\n") + c.ini);
    const AlignmentReading reading = LoadAlignment(SettingsStore(folder.Path()));
    EXPECT_EQ(reading.selected, c.selected) << c.ini;
    EXPECT_EQ(reading.text, c.text) << c.ini;
  }
}

TEST(OptionRecordsTest, SavesTheTwelveKeysOfAnExit) {
  const TemporaryFolder folder;
  SettingsStore store(folder.Path());
  PageOptions options;
  options.txtSample = {"Arial", 10.5, true, false, 255, 0};
  options.chkUse83 = true;
  SaveDefaults(store, options, {"BOOKS.TXT", "odd", "/", "/home/x, y"});
  EXPECT_EQ(folder.Read("Folionet.ini"),
            "[Keys]\nBackColor=255\nDir1=/home/x, y\nDrive1=/\nFont=Arial\nFontBold=True\nFontItalic=False\n"
            "FontSize=10.5\nForeColor=0\nIndex_Alignment=odd\nUse83=1\nchkDoubleSpace=0\n");
  SaveDefaults(store, options, {"BOOKS.TXT", "Center", "/", "/"});
  EXPECT_EQ(store.Text("alignmentLR"), "Center");
}

TEST(OptionRecordsTest, ASwatchIsDefaultWhenItsColourIs) {
  const TemporaryFolder folder;
  folder.Write("Folionet.ini", "[Keys]\nlblHyperlink=16711680\nlblActive=7\n");
  EffectsOptions effects;
  const SettingsStore store(folder.Path());
  SetDefaultHyperlinkColors(store, effects, 0);
  EXPECT_TRUE(effects.lblHyperlink.isDefault);
  EXPECT_FALSE(effects.lblActive.isDefault);
  EXPECT_EQ(effects.lblActive.colour, 7);
  EXPECT_TRUE(effects.lblFollowed.isDefault);
  effects.cboStyle = "Bold";
  SetDefaultHyperlinkColors(store, effects, 2);
  EXPECT_EQ(effects.cboStyle, "Bold");
  SetDefaultHyperlinkColors(store, effects, 1);
  EXPECT_EQ(effects.cboStyle, "Regular");
  EXPECT_EQ(effects.lblActive.colour, 255);
  EXPECT_TRUE(effects.lblActive.isDefault);
}

TEST(OptionRecordsTest, LinkBackTakesOddAlignmentsAndRefusesOddSizes) {
  const TemporaryFolder folder;
  folder.Write("Folionet.ini", "[Keys]\nLCR=4\nLinkBackSize=5\n");
  LinkToMainOptions link;
  LoadLinkToMain(SettingsStore(folder.Path()), link);
  EXPECT_EQ(link.alignment, "");
  EXPECT_EQ(link.cboSize, "5");
  for (const char* size : {"32760", "99999", "big"}) {
    const TemporaryFolder odd;
    odd.Write("Folionet.ini", std::string("[Keys]\nLinkBackSize=") + size + "\n");
    EXPECT_THROW(LoadLinkToMain(SettingsStore(odd.Path()), link), RunTimeError) << size;
  }
}

TEST(PageEncodingTest, TakesTheCodeBeforeTheFirstBlank) {
  const TemporaryFolder folder;
  test::RecordingUi ui;
  PageEncoding encoding;
  LoadPageEncoding(SettingsStore(folder.Path()), encoding, ui);
  EXPECT_EQ(encoding.PageCharset, "windows-1252");
  EXPECT_EQ(encoding.PageLanguage, "en-us");
  EXPECT_EQ(ui.said, (std::vector<std::string>{"panel 3: Charset: windows-1252", "panel 2: Language: en-us"}));
  const TemporaryFolder odd;
  odd.Write("Folionet.ini", "[Keys]\nCharset=utf-8 (x y)\nLang=el\n");
  EXPECT_THROW(LoadPageEncoding(SettingsStore(odd.Path()), encoding, ui), RunTimeError);
  EXPECT_EQ(encoding.PageCharset, "utf-8");
  EXPECT_EQ(encoding.PageLanguage, "en-us");
}

TEST(CustomHtmlTest, EverySaveAddsALineBreak) {
  const TemporaryFolder folder;
  test::RecordingUi ui;
  const CodePage codePage("windows-1252");
  std::string text = "as it was";
  EXPECT_TRUE(LoadCustomHtml(folder.Path(), kCustomHeader, codePage, text, ui));
  EXPECT_EQ(text, "as it was");
  EXPECT_TRUE(SaveCustomHtml(folder.Path(), kCustomHeader, codePage, "HÉLLO —Ψ", ui));
  EXPECT_EQ(folder.Read("CustomHeader.txt"), "H\xC9LLO \x97&#936;\r\n");
  EXPECT_TRUE(LoadCustomHtml(folder.Path(), kCustomHeader, codePage, text, ui));
  EXPECT_EQ(text, "HÉLLO —&#936;\r\n");
  EXPECT_TRUE(SaveCustomHtml(folder.Path(), kCustomHeader, codePage, text, ui));
  EXPECT_EQ(folder.Read("CustomHeader.txt"), "H\xC9LLO \x97&#936;\r\n\r\n");
  folder.Write("CustomHeader.txt", "\xEF\xBB\xBF<p>");
  EXPECT_TRUE(LoadCustomHtml(folder.Path(), kCustomHeader, codePage, text, ui));
  EXPECT_EQ(text, "<p>");
  EXPECT_TRUE(ui.said.empty());
}

TEST(CustomHtmlTest, AnotherCharsetFindsTheSameText) {
  const TemporaryFolder folder;
  test::RecordingUi ui;
  const CodePage western("windows-1252");
  const CodePage unicode("utf-8");
  folder.Write("CustomHeader.txt", "caf\xE9 \x97\r\n");
  RecodeCustomHtml(folder.Path(), kCustomHeader, western, unicode, ui);
  EXPECT_EQ(folder.Read("CustomHeader.txt"), "café —\r\n");
  RecodeCustomHtml(folder.Path(), kCustomHeader, unicode, CodePage("iso-8859-2"), ui);
  EXPECT_EQ(folder.Read("CustomHeader.txt"), "caf\xE9 &#8212;\r\n");
  RecodeCustomHtml(folder.Path(), kCustomFooter, western, unicode, ui);
  EXPECT_FALSE(folder.Has("CustomFooter.txt"));
  EXPECT_TRUE(ui.said.empty());
}

}  // namespace
}  // namespace folionet
