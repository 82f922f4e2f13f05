#include <gtest/gtest.h>

#include "EncodeOptions.h"
#include "OptionTable.h"

namespace folionet {
namespace {

// Every typed text must be encoded; one that was forgotten would reach pages as UTF-8.
TEST(EncodeOptionsTest, EncodesEveryTypedText) {
  const std::string typed = "é";
  const auto isText = [](const Option& option) { return option.form == OptionForm::kText; };
  PageOptions options;
  options.txthttpRoot = typed;
  for (const Option& option : OptionTable()) {
    if (isText(option)) SetOption(option, typed, options);
  }
  const PageOptions encoded = EncodePageOptions(options, CodePage("windows-1252"));
  EXPECT_EQ(encoded.txthttpRoot, "\xE9");
  for (const Option& option : OptionTable()) {
    EXPECT_EQ(OptionText(option, encoded), isText(option) ? "\xE9" : option.defaultText) << option.key;
  }
  const PageTexts texts = EncodePageTexts({typed, typed, typed, typed, typed, typed, typed}, CodePage());
  for (const std::string* text : {&texts.RolloverStyle, &texts.BodyLinkTag, &texts.CustomHeader, &texts.CustomFooter,
                                  &texts.PageLanguage, &texts.PageCharset, &texts.LinkAlignment}) {
    EXPECT_EQ(*text, "\xE9");
  }
}

}  // namespace
}  // namespace folionet
