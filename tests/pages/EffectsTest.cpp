#include <gtest/gtest.h>

#include "Effects.h"
#include "EncodeOptions.h"
#include "LinkBack.h"
#include "RecordingUi.h"

namespace folionet {
namespace {

EffectsOptions Defaults() {
  return {{16711680, true},
          {255, true},
          {8323199, true},
          {255, true},
          "Default Font",
          "Default Size",
          "Regular",
          false,
          false,
          false,
          true};
}

TEST(EffectsTest, RolloverStyleKeepsTheFixedOrder) {
  EffectsOptions options = Defaults();
  EXPECT_EQ(Effects(options).RolloverStyle,
            "<style fprolloverstyle>A:hover {color: #FF0000; text-decoration: none; }</style>");
  EXPECT_EQ(Effects(options).BodyLinkTag, "");
  options.cboFont = "Arial";
  options.cboSize = "12pt";
  options.cboStyle = "Bold Italic";
  options.chkAllCaps = options.chkUnderline = options.chkSmallCaps = true;
  EXPECT_EQ(Effects(options).RolloverStyle,
            "<style fprolloverstyle>A:hover {color: #FF0000; font-family: Arial; font-size: 12pt; font-style: italic; "
            "text-transform: uppercase; text-decoration: underline; font-variant: small-caps; font-weight: bold "
            "}</style>");
  options.chkAllCaps = false;
  EXPECT_EQ(Effects(options).RolloverStyle.find("uppercase"), std::string::npos);
  EXPECT_NE(Effects(options).RolloverStyle.find("small-caps"), std::string::npos);
  options.chkRollover = false;
  EXPECT_EQ(Effects(options).RolloverStyle, "");
  options = Defaults();
  options.cboFont = "default font";
  EXPECT_NE(Effects(options).RolloverStyle.find("font-family: default font; "), std::string::npos);
}

TEST(EffectsTest, BodyLinkTagHoldsTheColoursThatWerePicked) {
  const struct {
    bool link;
    bool active;
    bool followed;
    const char* tag;
  } cases[] = {
      {true, false, false, "<body link=\"#0000FF\""},
      {true, true, true, "<body link=\"#0000FF\" alink=\"#FF0000\" vlink=\"#7F007F\""},
      {false, true, false, "<body  alink=\"#FF0000\""},
      {false, false, true, "<body  vlink=\"#7F007F\""},
  };
  for (const auto& c : cases) {
    EffectsOptions options = Defaults();
    options.lblHyperlink.isDefault = !c.link;
    options.lblActive.isDefault = !c.active;
    options.lblFollowed.isDefault = !c.followed;
    EXPECT_EQ(Effects(options).BodyLinkTag, c.tag);
  }
}

TEST(LinkBackTest, BuildsTheLinkInBothForms) {
  PageOptions options;
  options.txthttpRoot = "index.html";
  options.txtBibleSel = "KJV";
  options.frmLinkToMAin = {"Main Index: %bible% %bk% %ch%", 2, "center", "3"};
  const VerseCounts counts{ModGlob()};
  test::RecordingUi ui;
  EXPECT_EQ(SetString(options, counts, ui),
            "<br><p align=\"center\"><a href=\"index.html\"><b><font face=\"Verdana\" size=\"3\">Main Index: KJV 1 1"
            "</font></b></a></p>");
  EXPECT_EQ(BuildLinkToMain(options, "X", -1, "Arial"),
            "<br><p><font face=\"Arial\"size=\"-1\"><a href=\"index.html\">X</a></font></p>");
  options.chkCSS = true;
  options.frmLinkToMAin.alignment.clear();
  EXPECT_EQ(SetString(options, counts, ui), "<br><h1 align=\"\"><a href=\"index.html\">Main Index: KJV 1 1</a></h1>");
  EXPECT_EQ(BuildLinkToMain(options, "X", 3, "Arial"), "X");
}

// Every typed text must be encoded; one that was forgotten would reach pages as UTF-8.
TEST(EncodeOptionsTest, EncodesEveryTypedText) {
  const std::string typed = "é";
  PageOptions options;
  options.txtSample.FontName = options.txthttpRoot = typed;
  options.frmPAgeTitles = {typed, typed};
  options.frmKeywords = {typed, typed, typed, typed};
  options.frmLinkToMAin = {typed, 2, "center", typed};
  options.frmBackground.txtImagepath = typed;
  const PageOptions encoded = EncodePageOptions(options, CodePage("windows-1252"));
  for (const std::string* text :
       {&encoded.txtSample.FontName, &encoded.txthttpRoot, &encoded.frmPAgeTitles.txtIndex_html,
        &encoded.frmPAgeTitles.txtPageTitles, &encoded.frmKeywords.txtKeywordsI, &encoded.frmKeywords.txtDescriptionI,
        &encoded.frmKeywords.txtKeyWords, &encoded.frmKeywords.txtDescription, &encoded.frmLinkToMAin.txtLinkToMain,
        &encoded.frmLinkToMAin.cboSize, &encoded.frmBackground.txtImagepath}) {
    EXPECT_EQ(*text, "\xE9");
  }
  const PageTexts texts = EncodePageTexts({typed, typed, typed, typed, typed, typed, typed}, CodePage());
  EXPECT_EQ(texts.RolloverStyle + texts.BodyLinkTag + texts.CustomHeader + texts.CustomFooter, "\xE9\xE9\xE9\xE9");
}

}  // namespace
}  // namespace folionet
