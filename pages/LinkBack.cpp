#include "LinkBack.h"

#include "BuildTitles.h"
#include "Quotes.h"

namespace folionet {

std::optional<std::string> SetString(const PageOptions& options, const VerseCounts& counts, UserInterface& ui) {
  const LinkToMainOptions& link = options.frmLinkToMAin;
  const auto text = BuildTitles(link.txtLinkToMain, {options.txtBibleSel, "1", "1"}, counts, ui);
  if (!text) return std::nullopt;
  if (options.chkCSS) {
    return "<br><h1 align=" + InQuotes(link.alignment) + "><a href=" + InQuotes(options.txthttpRoot) + ">" + *text +
           "</a></h1>";
  }
  return "<br><p align=" + InQuotes(link.alignment) + "><a href=" + InQuotes(options.txthttpRoot) +
         "><b><font face=" + InQuotes(options.txtSample.FontName) + " size=" + InQuotes(link.cboSize) + ">" + *text +
         "</font></b></a></p>";
}

std::string BuildLinkToMain(const PageOptions& options, const std::string& backToString, int fontSize,
                            const std::string& fontFace) {
  if (options.chkCSS) return backToString;
  return "<br><p><font face=" + InQuotes(fontFace) + "size=" + InQuotes(std::to_string(fontSize)) +
         "><a href=" + InQuotes(options.txthttpRoot) + ">" + backToString + "</a></font></p>";
}

}  // namespace folionet
