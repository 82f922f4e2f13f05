#pragma once

#include <string>

namespace folionet {

// The texts of pages that the main form keeps for the whole run of the program. UTF-8.
struct PageTexts {
  std::string RolloverStyle;                // one-line style block, or empty
  std::string BodyLinkTag;                  // the opening of a body tag with link colours, or empty
  std::string CustomHeader;                 // HTML for every page's top, or empty
  std::string CustomFooter;                 // HTML for every page's foot, or empty
  std::string PageCharset;                  // such as "windows-1252"
  std::string PageLanguage;                 // such as "en-us"
  std::string LinkAlignment = "Left";       // "Left", "Center" or "Justify"
  std::string OwnCharset = "windows-1252";  // that the files of header and footer were read in
};

// Whether charset and language of the pages were read or chosen. A start that stopped may not have come to them.
inline bool HasEncoding(const PageTexts& texts) { return !texts.PageCharset.empty() && !texts.PageLanguage.empty(); }

}  // namespace folionet
