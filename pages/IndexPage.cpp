#include "IndexPage.h"

#include "BuildInfo.h"
#include "ChapterNav.h"
#include "Html.h"
#include "PageHead.h"

namespace folionet {
namespace {

// The closing quotes after the face and the size are missing in the first tag: that is meant.
std::string Listing(const IndexPage& index, const PageInputs& inputs, const CodePage& codePage,
                    const CompileContext& context) {
  std::string text;
  if (!inputs.options.chkCSS) {
    text = "<font face=" + context.QuoteChar + std::string(index.fontFace) + " size=" + context.QuoteChar +
           std::to_string(index.fontSize) + ">";
  }
  for (int book = index.firstBook; book <= index.lastBook; ++book) {
    text += codePage.ToUpper(BookName(inputs, book)) + " \r\n";
    const int chapters = ChaptersOf(inputs, book);
    for (int chapter = 1; chapter <= chapters; ++chapter) {
      AddChapterLink(text, inputs, book, chapter);
      if (inputs.names.Use83()) text += "\r\n";
      CheckLength(text, "The links of the index page");
      inputs.ui.SetPanel(1, "Building index file" + std::to_string(chapter) + " Please stand by...");
    }
    text += "<br><br>\r\n";
  }
  return text;
}

}  // namespace

void WriteIndexPage(const IndexPage& index, const PageInputs& inputs, const CodePage& codePage,
                    CompileContext& context) {
  const PageOptions& options = inputs.options;
  PageFile& page = context.PageFile;
  page.Open(context.OutputFolder, inputs.indexFileName);

  const std::string title = IndexText(inputs, options.frmPAgeTitles.txtIndex_html);
  PrintDocumentHead({kVersion, index.language, index.charset, index.keywords, index.description, title,
                     index.backColour, index.textColour},
                    options, context);
  page.Print(context.CustomHeader);  // also when empty, unlike on chapter pages
  page.Print("<p>&nbsp;</p>");
  if (options.chkCSS) {
    page.Print("<h1>", options.txtBibleSel, "</h1>");
  } else {
    PrintStyledHeading(page, options.txtSample, index.fontFace, index.fontSize, options.txtBibleSel);
  }
  page.Print("<blockquote>");
  if (!options.chkCSS) page.Print("<p align=" + InQuotes(context.LinkAlignment) + ">");
  page.Print(Listing(index, inputs, codePage, context));
  if (!options.chkCSS) PrintJustifiedParagraph(page, index.fontFace, index.fontSize);
}

}  // namespace folionet
