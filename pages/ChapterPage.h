#pragma once

#include <cstdint>
#include <string_view>

#include "CompileContext.h"
#include "PageHead.h"
#include "PageInputs.h"

namespace folionet {

// What a chapter page's head is made of.
struct ChapterHead {
  std::string_view bookName;
  PageValues values;
  std::int16_t bookNumber;  // 1 to 66
  std::int16_t chapterNumber;
};

// Opens the chapter's page and prints every line up to the opening of the verses. The page is left open. Throws
// RunTimeError, and AlreadyReported where the title could not be built.
void WriteChapterHead(const ChapterHead& head, const PageInputs& inputs, CompileContext& context);

// One verse as it is printed. Texts are as the verse file has them; nothing is escaped.
struct VerseLine {
  std::string_view bookLabel;  // in upper case
  std::string_view chapter;
  std::string_view verse;
  std::string_view text;
};

// Prints a verse, with its book's label and a further line break as the options ask.
void BuildVerseLine(const VerseLine& verse, const PageOptions& options, CompileContext& context);

// Closes what the head left open, prints the credit line and the custom footer and ends the document. For chapter pages
// and the index page.
void PrintPageFoot(const PageOptions& options, CompileContext& context);

// PrintPageFoot, and writes the file.
PageChange WritePageFoot(const PageOptions& options, CompileContext& context);

}  // namespace folionet
