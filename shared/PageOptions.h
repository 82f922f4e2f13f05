#pragma once

#include <bitset>
#include <cstddef>
#include <cstdint>
#include <string>

#include "Colours.h"

namespace folionet {

// What a person chooses, most of it for the pages. The fields bear the names of the controls that show them; their
// forms and defaults stand in OptionTable.cpp. Texts are UTF-8 as typed or stored; EncodePageOptions turns them into
// the bytes of the page's code page when a compile or a preview starts.

// The style of the page text, which lives in the sample text box.
struct SampleText {
  std::string FontName;
  double FontSize = 0;  // points
  bool FontBold = false;
  bool FontItalic = false;
  Colour BackColor = 0;
  Colour ForeColor = 0;
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
  std::int16_t LCR = 0;   // 1 left, 2 center, 3 right; anything else stands for none
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
  bool chkRollover = false;
};

// The entries of the lists of encodings: a code, a blank and a description.
struct EncodingOptions {
  std::string cboCharset;
  std::string cboLang;
};

// What the main form keeps beside.
struct MainOptions {
  std::string cboLang;      // the file name of the book titles
  std::string alignmentLR;  // the last of the words "Left", "Center" and "Justify" that `alignment` was
  std::string alignment;    // overall link alignment, one of these words or any other text that is stored
  std::string Drive1;
  std::string Dir1;
};

inline constexpr std::size_t kMostOptions = 64;

// What the two hold before a person has entered or chosen one, as their boxes do.
inline constexpr char kNoHttpRoot[] = "txthttpRoot";
inline constexpr char kNoBibleSel[] = "txtBibleSel";

struct PageOptions {
  PageOptions();  // every default

  bool chkCSS = false;
  bool chkBack = false;
  bool chkUse83 = false;
  bool chkUseNames = false;
  bool chkDoubleSpace = false;
  SampleText txtSample;
  PageTitleOptions frmPAgeTitles;
  MetaOptions frmKeywords;
  LinkToMainOptions frmLinkToMAin;
  BackgroundOptions frmBackground;
  EffectsOptions frmEffects;
  EncodingOptions frmEncoding;
  MainOptions main;
  std::string txthttpRoot = kNoHttpRoot;  // the address of the index page
  std::string txtBibleSel = kNoBibleSel;  // the display name of the chosen translation

  // By an option's place in the table, whether its field was read, saved, reset or chosen. What is stored for any other
  // is kept by every saving as long as the field has its default.
  std::bitset<kMostOptions> maySave;

  // In the same order, whether its last saving was refused. It is saved at exit.
  std::bitset<kMostOptions> isRefused;

  // What was read, or has another value than its default, is not read again: the rest of a start that stopped is read.
  bool areKept = false;
};

}  // namespace folionet
