#pragma once

#include <string>

#include "CompileContext.h"
#include "PageInputs.h"

namespace folionet {

// The number of chapters of a book; throws RunTimeError (kSubscriptOutOfRange) for a book outside 0 to 66.
int ChaptersOf(const PageInputs& inputs, int book);

// Adds one link to a chapter's page, with the blank behind it: [<a href="genesis_1.html">1</a>]
void AddChapterLink(std::string& text, const PageInputs& inputs, int book, int chapter);

// The block of links to every chapter of a book. Without a style sheet its end closes the font and the paragraph that
// the page's heading opened.
std::string BuildChapterNav(const PageInputs& inputs, const CompileContext& context, int book);

}  // namespace folionet
