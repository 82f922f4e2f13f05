#include <gtest/gtest.h>

#include "EncodeOptions.h"

namespace folionet {
namespace {

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
  for (const std::string* text : {&texts.RolloverStyle, &texts.BodyLinkTag, &texts.CustomHeader, &texts.CustomFooter,
                                  &texts.PageLanguage, &texts.PageCharset, &texts.LinkAlignment}) {
    EXPECT_EQ(*text, "\xE9");
  }
}

}  // namespace
}  // namespace folionet
