#pragma once

#include <cstdint>
#include <string>

#include "PageFile.h"

namespace folionet {

// The texts of pages that the main form keeps for the whole run of the program. UTF-8.
struct PageTexts {
  std::string RolloverStyle;           // one-line style block, or empty
  std::string BodyLinkTag;             // the opening of a body tag with link colours, or empty
  std::string CustomHeader;            // HTML for every page's top, or empty
  std::string CustomFooter;            // HTML for every page's foot, or empty
  std::string PageCharset;             // such as "windows-1252"
  std::string PageLanguage;            // such as "en-us"
  std::string LinkAlignment = "Left";  // "Left", "Center" or "Justify"
};

// The values of one compile run that the page writers read. Texts, those of PageTexts too, are bytes in the page's code
// page; OutputFolder is a path.
struct CompileContext : PageTexts {
  // Set before the first page.
  std::string OutputFolder;         // ends in the folder separator
  std::string QuoteChar = "\"";     // encloses every attribute value
  std::string StyleSheetLink;       // the line that links default.css
  std::string FontName;             // the font of the sample text
  std::int16_t FontSizeNumber = 0;  // HTML font size: the sample's points minus 9
  std::string BackColourHex;        // RRGGBB
  std::string TextColourHex;        // RRGGBB
  std::string BibleTitle;           // the display name of the translation
  std::string IndexBaseName;        // the index page's address up to its last "."; with 8.3 names after its last "/"
  std::string IndexExtension;       // the text after that "."

  // Of the page at hand.
  folionet::PageFile PageFile;
  std::int16_t BookNumber = 0;
  std::int16_t ChapterNumber = 0;
  std::string BookTitle;
  std::string PageTitle;  // the META description
  std::string PageMeta;   // the META keywords
  std::int16_t PagesCreated = 2;

  // The block of chapter links of NavigationBook (0 for none yet), which all pages of a book carry.
  std::int16_t NavigationBook = 0;
  std::string Navigation;
};

}  // namespace folionet
