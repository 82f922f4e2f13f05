#include "PageHead.h"

#include "BuildInfo.h"
#include "Html.h"

namespace folionet {
namespace {

std::string MetaName(std::string_view name, std::string_view content) {
  return "<meta name=" + InQuotes(name) + " content=" + InQuotes(content) + ">";
}

std::string MetaHttpEquiv(std::string_view name, std::string_view content) {
  return "<meta http-equiv=" + InQuotes(name) + " content=" + InQuotes(content) + ">";
}

// Without its leading "<". With an image the text colour goes without "#": that is meant.
std::string BodyTag(const DocumentHead& head, const PageOptions& options) {
  const std::string background = " bgcolor=" + InQuotes("#" + std::string(head.background));
  if (!options.chkBack) return "body" + background + " text=" + InQuotes("#" + std::string(head.textColour)) + ">";
  return "body background=" + InQuotes(options.frmBackground.txtImagepath) +
         (options.frmBackground.chkWaterMark ? " bgproperties=" + InQuotes("fixed") : "") + background +
         " text=" + InQuotes(head.textColour) + ">";
}

// With link colours the word "body" stands a second time, as an attribute; without them a blank begins the line. Both
// are meant.
std::string BodyLine(const DocumentHead& head, const PageOptions& options, const CompileContext& context) {
  if (options.chkCSS) return "<body>";
  return context.BodyLinkTag + " " + (context.BodyLinkTag.empty() ? "<" : "") + BodyTag(head, options);
}

}  // namespace

void PrintDocumentHead(const DocumentHead& head, const PageOptions& options, CompileContext& context) {
  PageFile& page = context.PageFile;
  page.Print("<html>\r\n<head>");
  page.Print(MetaName("GENERATOR", "Versalia Folionet Ver " + std::string(head.version)));
  page.Print(MetaHttpEquiv("Content-Type", "text/html; charset=" + std::string(head.charset)));
  page.Print(MetaHttpEquiv("Content-Language", head.language));
  page.Print(MetaName("DESCRIPTION", head.description));
  page.Print(MetaName("KEYWORDS", head.keywords));
  page.Print(MetaName("ProgId", std::string("By Versalia: ") + kMakerSite));
  page.Print("<title>" + std::string(head.title) + "</title>");
  page.Print(options.chkCSS ? context.StyleSheetLink : context.RolloverStyle);
  page.Print("</head>");
  page.Print("");
  page.Print(BodyLine(head, options, context));
}

std::string StyledHeading(const SampleText& sample, const std::string& heading) {
  const std::string bold = "<B>" + heading + (sample.FontBold ? "" : "</B>");
  return sample.FontItalic ? "<I>" + bold : bold;
}

std::string JustifiedParagraph(std::string_view fontFace, int fontSize) {
  return "<p align=" + InQuotes("justify") + "><font face=" + InQuotes(fontFace) +
         " size= " + InQuotes(std::to_string(fontSize)) + ">";
}

}  // namespace folionet
