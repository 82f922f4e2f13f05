#include "IndexPage.h"

#include "BuildInfo.h"
#include "ChapterNav.h"
#include "Quotes.h"

namespace folionet {
namespace {

// The closing quotes after the face and the size are missing in the first tag: that is meant.
void PrintListing(const IndexPage& index, const PageInputs& inputs, const CodePage& codePage, CompileContext& context) {
  PageFile& page = context.PageFile;
  if (!inputs.options.chkCSS) {
    page.Add("<font face=", context.QuoteChar, index.values.fontFace, " size=", context.QuoteChar,
             std::to_string(index.values.fontSize), ">");
  }
  std::string link;
  for (int book = index.firstBook; book <= index.lastBook; ++book) {
    const int chapters = ChaptersOf(inputs, book);
    if (chapters == 0 && inputs.glob.Imported.IsThere()) continue;
    page.Print(codePage.ToUpper(BookName(inputs, book)), " ");
    ForEachChapter(inputs.glob, book, chapters, [&](int chapter) {
      link.clear();
      AddChapterLink(link, inputs, book, chapter);
      page.Add(link, inputs.names.Use83() ? "\r\n" : "");
      inputs.ui.SetPanel(1, "Building index file" + std::to_string(chapter) + " Please stand by...");
    });
    page.Print("<br><br>");
  }
  page.Print("");
}

}  // namespace

void WriteIndexPage(const IndexPage& index, const PageInputs& inputs, const CodePage& codePage,
                    CompileContext& context) {
  const PageOptions& options = inputs.options;
  PageFile& page = context.PageFile;
  page.Open(context.OutputFolder, inputs.indexFileName);

  const std::string title = FillIndexTemplate(inputs, options.frmPAgeTitles.txtIndex_html);
  PrintDocumentHead({kVersion, title, index.values}, options, context);
  page.Print(context.CustomHeader);  // also when empty, unlike on chapter pages
  page.Print("<p>&nbsp;</p>");
  if (options.chkCSS) {
    page.Print("<h1>", context.BibleTitle, "</h1>");
  } else {
    PrintStyledHeading(page, options.txtSample, index.values, context.BibleTitle);
  }
  page.Print("<blockquote>");
  if (!options.chkCSS) page.Print("<p align=" + InQuotes(context.LinkAlignment) + ">");
  PrintListing(index, inputs, codePage, context);
  if (!options.chkCSS) PrintJustifiedParagraph(page, index.values);
}

}  // namespace folionet
