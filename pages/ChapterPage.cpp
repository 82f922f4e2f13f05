#include "ChapterPage.h"

#include "BuildInfo.h"
#include "ChapterNav.h"

namespace folionet {
namespace {

void PrintHeading(PageFile& page, const ChapterHead& head, const PageOptions& options) {
  const std::string name = std::string(head.bookName) + " " + std::to_string(head.chapterNumber);
  if (options.chkCSS) {
    page.Print("<h2>", name, "</h2>");
  } else {
    PrintStyledHeading(page, options.txtSample, head.values, name);
  }
}

// Three font tags are opened and one is closed, and the first has no blank before "size=": that is meant.
void PrintCreditLine(PageFile& page, const PageOptions& options) {
  if (options.chkCSS) {
    page.Print("<address align=\"center\"><font face=\"Verdana\">Created with <a href=\"", kProductPage,
               "\">Folionet</a> by <a href=\"", kMakerSite, "\">Versalia</a></font></address><br>");
    return;
  }
  constexpr std::string_view kInnerFont = "<font face=\"Verdana\" size=\"1\">";
  page.Print("<p align=\"center\"><font face=\"Verdana\"size=\"1\">Created with <a href=\"", kProductPage, "\">",
             kInnerFont, "Folionet</a> by <a href=\"", kMakerSite, "\">", kInnerFont, "Versalia</a></font></p><br>");
}

}  // namespace

void WriteChapterHead(const ChapterHead& head, const PageInputs& inputs, CompileContext& context) {
  const PageOptions& options = inputs.options;
  PageFile& page = context.PageFile;
  page.Open(context.OutputFolder, inputs.names.OnDisk(head.bookNumber, head.chapterNumber));

  const std::string title = FillTemplate(inputs, inputs.templates.title, BookName(inputs, head.bookNumber),
                                         std::to_string(head.chapterNumber));
  PrintDocumentHead({kShortVersion, title, head.values}, options, context);
  if (!context.CustomHeader.empty()) page.Print(context.CustomHeader);
  page.Print(inputs.linkToMain);
  page.Print("<p>&nbsp;</p>");
  PrintHeading(page, head, options);
  page.Print("");
  if (context.NavigationBook != head.bookNumber) {
    context.Navigation = BuildChapterNav(inputs, context, head.bookNumber);
    context.NavigationBook = head.bookNumber;
  }
  page.Print(context.Navigation);
  page.Print("\r\n");
  page.Print("<blockquote>");
  if (!options.chkCSS) PrintJustifiedParagraph(page, head.values);
}

void BuildVerseLine(const VerseLine& verse, const PageOptions& options, CompileContext& context) {
  PageFile& page = context.PageFile;
  if (options.chkUseNames) page.Add(verse.bookLabel, " ");
  page.Print(verse.chapter, ":", verse.verse, " ", verse.text, "<br>");
  if (options.chkDoubleSpace) page.Print("<br>");
}

void PrintPageFoot(const PageOptions& options, CompileContext& context) {
  PageFile& page = context.PageFile;
  if (options.txtSample.FontBold && !options.chkCSS) page.Print("</B>");
  if (options.txtSample.FontItalic && !options.chkCSS) page.Print("</I>");
  page.Print("</blockquote><p>&nbsp;</p>\r\n");
  PrintCreditLine(page, options);
  if (!context.CustomFooter.empty()) page.Print(context.CustomFooter);
  page.Print("</body>\r\n</html>");
}

PageChange WritePageFoot(const PageOptions& options, CompileContext& context) {
  PrintPageFoot(options, context);
  return context.PageFile.Close();
}

}  // namespace folionet
