#include "EncodeOptions.h"

namespace folionet {

PageOptions EncodePageOptions(PageOptions options, const CodePage& codePage) {
  for (std::string* text :
       {&options.txtSample.FontName, &options.frmPAgeTitles.txtIndex_html, &options.frmPAgeTitles.txtPageTitles,
        &options.frmKeywords.txtKeywordsI, &options.frmKeywords.txtDescriptionI, &options.frmKeywords.txtKeyWords,
        &options.frmKeywords.txtDescription, &options.frmLinkToMAin.txtLinkToMain, &options.frmLinkToMAin.cboSize,
        &options.frmBackground.txtImagepath, &options.txthttpRoot}) {
    *text = codePage.Encode(*text);
  }
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
