#include "PageHead.h"

#include "BuildInfo.h"
#include "GeneratorLine.h"

namespace folionet {
namespace {

template <typename... Texts>
void PrintMeta(PageFile& page, std::string_view kind, std::string_view name, const Texts&... content) {
  page.Print("<meta ", kind, "=\"", name, "\" content=\"", content..., "\">");
}

// With link colours the word "body" stands a second time, as an attribute; without them a blank begins the line. With
// an image the text colour goes without "#". All of it is meant.
void PrintBodyLine(const PageValues& values, const PageOptions& options, CompileContext& context) {
  PageFile& page = context.PageFile;
  if (options.chkCSS) {
    page.Print("<body>");
    return;
  }
  page.Add(context.BodyLinkTag, context.BodyLinkTag.empty() ? " <body" : " body");
  if (options.chkBack) {
    page.Add(" background=\"", options.frmBackground.txtImagepath, "\"");
    if (options.frmBackground.chkWaterMark) page.Add(" bgproperties=\"fixed\"");
  }
  page.Print(" bgcolor=\"#", values.backColour, options.chkBack ? "\" text=\"" : "\" text=\"#", values.textColour,
             "\">");
}

}  // namespace

void PrintDocumentHead(const DocumentHead& head, const PageOptions& options, CompileContext& context) {
  PageFile& page = context.PageFile;
  const PageValues& values = head.values;
  page.Print(values.isRightToLeft ? "<html dir=\"rtl\">" : "<html>", "\r\n<head>");
  PrintMeta(page, "name", "GENERATOR", kGenerator, head.version);
  page.Print("<meta http-equiv=\"Content-Type\" content=\"text/html; charset=", values.charset, "\">");
  PrintMeta(page, "http-equiv", "Content-Language", values.language);
  PrintMeta(page, "name", "DESCRIPTION", values.description);
  PrintMeta(page, "name", "KEYWORDS", values.keywords);
  page.Print("<meta name=\"ProgId\" content=\"By Versalia: ", kMakerSite, "\">");
  page.Print("<title>", head.title, "</title>");
  page.Print(options.chkCSS ? context.StyleSheetLink : context.RolloverStyle);
  page.Print("</head>\r\n");
  PrintBodyLine(values, options, context);
}

void PrintStyledHeading(PageFile& page, const SampleText& sample, const PageValues& values, std::string_view heading) {
  page.Add(sample.FontItalic ? "<I><B>" : "<B>", "<p><font face=\"", values.fontFace, "\" size=\"",
           std::to_string(values.fontSize));
  page.Print("\"><u>", heading, "<br><br></u>", sample.FontBold ? "" : "</B>");
}

void PrintJustifiedParagraph(PageFile& page, const PageValues& values) {
  page.Print("<p align=\"justify\"><font face=\"", values.fontFace, "\" size= \"", std::to_string(values.fontSize),
             "\">");
}

}  // namespace folionet
