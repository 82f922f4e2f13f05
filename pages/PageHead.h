#pragma once

#include <cstdint>
#include <string_view>

#include "CompileContext.h"
#include "PageInputs.h"

namespace folionet {

// What every page of a run is made of.
struct PageValues {
  std::string_view language;
  std::string_view charset;
  bool isRightToLeft;  // a text that was imported and is written so
  std::string_view fontFace;
  std::int16_t fontSize;        // of HTML
  std::string_view backColour;  // RRGGBB
  std::string_view textColour;  // RRGGBB
  std::string_view keywords;
  std::string_view description;
};

// What chapter pages and the index page have in common at their top.
struct DocumentHead {
  std::string_view version;  // chapter pages name two parts of the version, the index page three
  std::string_view title;
  const PageValues& values;
};

// Prints the lines from "<html>" to the body tag.
void PrintDocumentHead(const DocumentHead& head, const PageOptions& options, CompileContext& context);

// Prints a heading without a style sheet, enclosed as the sample's font asks: bold in either case, but a bold font
// leaves its tag open so that the whole page is bold, and so does an italic one; PrintPageFoot closes both.
void PrintStyledHeading(PageFile& page, const SampleText& sample, const PageValues& values, std::string_view heading);

// Prints the line that opens the verses of a chapter, and stands again at the end of the index page. The blank after
// "size=" is meant.
void PrintJustifiedParagraph(PageFile& page, const PageValues& values);

}  // namespace folionet
