#include "ChapterNav.h"

#include "Quotes.h"
#include "RunTimeError.h"

namespace folionet {
namespace {

// Throws RunTimeError (kOutOfMemory) when a text that is put together for a page gets longer than a page may be.
void CheckLength(const std::string& text, const char* what) {
  if (text.size() <= PageFile::kLongest) return;
  throw RunTimeError(kOutOfMemory, what, "They are longer than " + std::to_string(PageFile::kLongest) + " bytes.")
      .About(Subject::kPage);
}

}  // namespace

int ChaptersOf(const PageInputs& inputs, int book) {
  if (book < 0 || book > kBooks) {
    throw RunTimeError(kSubscriptOutOfRange, "Book " + std::to_string(book), "A book from 0 to 66 was expected.")
        .About(Subject::kVerseFile);
  }
  return inputs.glob.ChaptersInBook[static_cast<std::size_t>(book)];
}

void AddChapterLink(std::string& text, const PageInputs& inputs, int book, int chapter) {
  text += "[<a href=\"";
  inputs.names.AddInLink(text, book, chapter);
  text.append("\">").append(std::to_string(chapter)).append("</a>] ");
}

std::string BuildChapterNav(const PageInputs& inputs, const CompileContext& context, int book) {
  std::string block;
  if (!inputs.options.chkCSS) block = "<p align=" + InQuotes(context.LinkAlignment) + ">";
  ForEachChapter(inputs.glob, book, ChaptersOf(inputs, book), [&](int chapter) {
    AddChapterLink(block, inputs, book, chapter);
    block += "\r\n";
    CheckLength(block, "The links to the chapters");
  });
  return inputs.options.chkCSS ? "<h3>" + block + "</h3>" : block + "</font></p>";
}

}  // namespace folionet
