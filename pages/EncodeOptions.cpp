#include "EncodeOptions.h"

#include "OptionTable.h"

namespace folionet {

PageOptions EncodePageOptions(PageOptions options, const CodePage& codePage) {
  for (const Option& option : OptionTable()) {
    const auto* field = std::get_if<std::string& (*)(PageOptions&)>(&option.field);
    if (field != nullptr) (*field)(options) = codePage.Encode((*field)(options));
  }
  options.txthttpRoot = codePage.Encode(options.txthttpRoot);
  return options;
}

PageTexts EncodePageTexts(PageTexts texts, const CodePage& codePage) {
  for (std::string* text : {&texts.RolloverStyle, &texts.BodyLinkTag, &texts.CustomHeader, &texts.CustomFooter,
                            &texts.PageCharset, &texts.PageLanguage, &texts.LinkAlignment}) {
    *text = codePage.Encode(*text);
  }
  return texts;
}

}  // namespace folionet
