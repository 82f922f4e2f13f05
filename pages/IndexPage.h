#pragma once

#include <cstdint>

#include "CompileContext.h"
#include "PageHead.h"
#include "PageInputs.h"

namespace folionet {

// What the index page is made of.
struct IndexPage {
  PageValues values;
  std::int16_t firstBook = 0;
  std::int16_t lastBook = 0;  // below firstBook, nothing is listed
};

// Opens the index page and prints every line but its foot, showing the progress in panel 1. The page is left open.
// Throws RunTimeError, and AlreadyReported where the title could not be built.
void WriteIndexPage(const IndexPage& index, const PageInputs& inputs, const CodePage& codePage,
                    CompileContext& context);

}  // namespace folionet
