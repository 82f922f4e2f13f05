#pragma once

#include <cstdint>
#include <string>

#include "PageFile.h"
#include "PageTexts.h"
#include "Quotes.h"

namespace folionet {

// The values of one compile run that the page writers read. Texts, those of PageTexts too, are bytes in the page's code
// page; OutputFolder is a path.
struct CompileContext : PageTexts {
  // Set before the first page.
  std::string OutputFolder;         // ends in the folder separator
  std::string QuoteChar{kQuote};    // encloses every attribute value
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
  // Not the <title>, which PageHead prints: the META description, frmKeywords.txtDescription filled in, on the index
  // page txtDescriptionI; and the META keywords, txtKeyWords or txtKeywordsI.
  std::string PageTitle;
  std::string PageMeta;
  std::int16_t PagesCreated = 2;

  // The block of chapter links of NavigationBook (0 for none yet), which all pages of a book carry.
  std::int16_t NavigationBook = 0;
  std::string Navigation;
};

}  // namespace folionet
