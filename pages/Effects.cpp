#include "Effects.h"

namespace folionet {
namespace {

std::string ColourText(const Swatch& swatch) { return "#" + HtmlColour(swatch.colour); }

std::string RolloverStyle(const EffectsOptions& options) {
  if (!options.chkRollover) return {};
  const auto styleHas = [&](const char* word) { return options.cboStyle.find(word) != std::string::npos; };
  std::string text = "<style fprolloverstyle>A:hover {color: " + ColourText(options.lblRColor) + "; ";
  if (options.cboFont != "Default Font") text += "font-family: " + options.cboFont + "; ";
  if (options.cboSize != "Default Size") text += "font-size: " + options.cboSize + "; ";
  if (styleHas("Italic")) text += "font-style: italic; ";
  if (options.chkAllCaps) text += "text-transform: uppercase; ";
  text += options.chkUnderline ? "text-decoration: underline; " : "text-decoration: none; ";
  if (options.chkSmallCaps) text += "font-variant: small-caps; ";
  if (styleHas("Bold")) text += "font-weight: bold ";  // the last piece has no semicolon
  return text + "}</style>";
}

std::string BodyLinkTag(const EffectsOptions& options) {
  std::string text;
  if (!options.lblHyperlink.isDefault) text += "link=\"" + ColourText(options.lblHyperlink) + "\"";
  if (!options.lblActive.isDefault) text += " alink=\"" + ColourText(options.lblActive) + "\"";
  if (!options.lblFollowed.isDefault) text += " vlink=\"" + ColourText(options.lblFollowed) + "\"";
  return text.empty() ? text : "<body " + text;
}

}  // namespace

LinkEffects Effects(const EffectsOptions& options) { return {RolloverStyle(options), BodyLinkTag(options)}; }

}  // namespace folionet
