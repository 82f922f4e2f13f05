#pragma once

#include <cstdint>
#include <string>

#include "Colours.h"

namespace folionet {

// What the pages are made with. The fields bear the names of the controls that show them; their forms and defaults are
// those of the settings table. Texts are UTF-8 as typed or stored; EncodePageOptions turns them into the bytes of the
// page's code page when a compile or a preview starts.

// The style of the page text, which lives in the sample text box.
struct SampleText {
  std::string FontName = "Verdana";
  double FontSize = 12;  // points
  bool FontBold = false;
  bool FontItalic = false;
  Colour BackColor = 16777215;
  Colour ForeColor = 8389122;
};

// Titles of the pages, as templates with dynamic words.
struct PageTitleOptions {
  std::string txtIndex_html;
  std::string txtPageTitles;
};

// META texts of the pages, as templates with dynamic words.
struct MetaOptions {
  std::string txtKeywordsI;
  std::string txtDescriptionI;
  std::string txtKeyWords;
  std::string txtDescription;
};

// The link from a chapter page back to the index page.
struct LinkToMainOptions {
  std::string txtLinkToMain;
  std::int16_t LCR = 2;   // 1 left, 2 center, 3 right; anything else stands for none
  std::string alignment;  // "left", "center", "right", or empty when none was set
  std::string cboSize;    // the HTML font size
};

struct BackgroundOptions {
  std::string txtImagepath;
  bool chkWaterMark = false;
};

// A colour with the caption of its swatch: "Default" means that the person has not picked it.
struct Swatch {
  Colour colour = 0;
  bool isDefault = false;
};

struct EffectsOptions {
  Swatch lblHyperlink;
  Swatch lblActive;
  Swatch lblFollowed;
  Swatch lblRColor;
  std::string cboFont;
  std::string cboSize;
  std::string cboStyle;
  bool chkSmallCaps = false;
  bool chkAllCaps = false;
  bool chkUnderline = false;
  bool chkRollover = true;
};

struct PageOptions {
  bool chkCSS = false;
  bool chkBack = false;
  bool chkUse83 = false;
  bool chkUseNames = true;
  bool chkDoubleSpace = false;
  SampleText txtSample;
  PageTitleOptions frmPAgeTitles;
  MetaOptions frmKeywords;
  LinkToMainOptions frmLinkToMAin;
  BackgroundOptions frmBackground;
  EffectsOptions frmEffects;
  std::string txthttpRoot = "txthttpRoot";  // the address of the index page
  std::string txtBibleSel = "txtBibleSel";  // the display name of the chosen translation
};

}  // namespace folionet
