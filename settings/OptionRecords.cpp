#include "OptionRecords.h"

#include <array>

#include "Numbers.h"
#include "RunTimeError.h"
#include "SettingsKeys.h"

namespace folionet {
namespace {

struct SwatchKey {
  std::string_view key;
  Swatch EffectsOptions::*swatch;
};

constexpr std::array kSwatches{
    SwatchKey{"lblHyperlink", &EffectsOptions::lblHyperlink},
    SwatchKey{"lblActive", &EffectsOptions::lblActive},
    SwatchKey{"lblFollowed", &EffectsOptions::lblFollowed},
    SwatchKey{"lblRColor", &EffectsOptions::lblRColor},
};

std::string_view DefaultText(std::string_view key) { return FindSettingKey(key)->defaultText; }

Colour DefaultColour(std::string_view key) {
  return static_cast<Colour>(ReadInteger(DefaultText(key), kInt32Min, kInt32Max).value);
}

void LoadHyperlinkOptions(const StoredSettings& store, EffectsOptions& options) {
  for (const auto& [key, swatch] : kSwatches) {
    (options.*swatch).colour = store.ColourOf(key);
    if ((options.*swatch).colour == DefaultColour(key)) (options.*swatch).isDefault = true;
  }
  options.cboFont = store.Text("cboFont");
  options.cboSize = store.Text("cboSize");
  options.cboStyle = store.Text("cboStyle");
  options.chkSmallCaps = store.Flag("chkSmallCaps");
  options.chkAllCaps = store.Flag("chkAllCaps");
  options.chkUnderline = store.Flag("chkUnderline");
  options.chkRollover = store.Flag("chkRollover");
}

void ResetHyperlinkOptions(EffectsOptions& options) {
  for (const auto& [key, swatch] : kSwatches) options.*swatch = {DefaultColour(key), true};
  options.cboFont = DefaultText("cboFont");
  options.cboSize = DefaultText("cboSize");
  options.cboStyle = DefaultText("cboStyle");
  options.chkSmallCaps = false;
  options.chkAllCaps = false;
  options.chkUnderline = false;
  options.chkRollover = true;
}

}  // namespace

bool IsKnownAlignment(std::string_view text) { return text == "Left" || text == "Center" || text == "Justify"; }

AlignmentReading LoadAlignment(const StoredSettings& store) {
  AlignmentReading reading;
  reading.selected = store.Text("alignmentLR") == "Left" ? "Left" : "Center";
  reading.text = store.Text("Index_Alignment");
  if (IsKnownAlignment(reading.text)) reading.selected = reading.text;
  return reading;
}

void GetDefaults(const StoredSettings& store, SampleText& sample) {
  sample.BackColor = store.ColourOf("BackColor");
  sample.ForeColor = store.ColourOf("ForeColor");
  sample.FontName = store.Text("Font");
  sample.FontSize = store.PointSize("FontSize");
}

void ReadForSaveDefaults(const StoredSettings& store, PageOptions& options, MainOptions& main) {
  const auto read = [](const auto& reading) {
    try {
      reading();
    } catch (const RunTimeError&) {
      // The start has reported the one that it stopped at.
    }
  };
  SampleText& sample = options.txtSample;
  read([&] { sample.BackColor = store.ColourOf("BackColor"); });
  read([&] { sample.ForeColor = store.ColourOf("ForeColor"); });
  read([&] { sample.FontName = store.Text("Font"); });
  read([&] { sample.FontSize = store.PointSize("FontSize"); });
  read([&] { sample.FontBold = store.Boolean("FontBold"); });
  read([&] { sample.FontItalic = store.Boolean("FontItalic"); });
  read([&] { options.chkUse83 = store.Flag("Use83"); });
  read([&] { options.chkDoubleSpace = store.Flag("chkDoubleSpace"); });
  read([&] { main.alignment = LoadAlignment(store).text; });
  read([&] { main.Drive1 = store.Text("Drive1"); });
  read([&] { main.Dir1 = store.Text("Dir1"); });
}

void LoadTitles(const StoredSettings& store, PageTitleOptions& options) {
  options.txtIndex_html = store.Text("index_html");
  options.txtPageTitles = store.Text("PageTitles");
}

void LoadMETA(const StoredSettings& store, MetaOptions& options) {
  options.txtKeywordsI = store.Text("KeywordsI");
  options.txtDescriptionI = store.Text("DescriptionI");
  options.txtKeyWords = store.Text("Keywords");
  options.txtDescription = store.Text("Description");
}

std::string_view AlignmentWord(int justification) {
  constexpr std::array<std::string_view, 3> kWords{"left", "center", "right"};
  return justification >= 1 && justification <= 3 ? kWords[static_cast<std::size_t>(justification - 1)] : "";
}

void LoadLinkToMain(const StoredSettings& store, LinkToMainOptions& options) {
  options.txtLinkToMain = store.Text("LinkToMain");
  options.LCR = store.Number("LCR");
  if (const std::string_view word = AlignmentWord(options.LCR); !word.empty()) options.alignment = word;
  const std::int16_t size = store.Number("LinkBackSize");
  options.cboSize = store.Text("LinkBackSize");
  if (size > kInt16Max - 8) {
    throw RunTimeError(kOverflow, "LinkBackSize", "The size plus 8 points must fit 16 bits: " + options.cboSize);
  }
}

void LoadBackground(const StoredSettings& store, BackgroundOptions& options) {
  options.chkWaterMark = store.Flag("WaterMark");
  options.txtImagepath = store.Text("BackImage");
}

void SetDefaultHyperlinkColors(const StoredSettings& store, EffectsOptions& options, int ask) {
  if (ask == 0) LoadHyperlinkOptions(store, options);
  if (ask == 1) ResetHyperlinkOptions(options);
}

PageOptions LoadPageOptions(const StoredSettings& store, MainOptions& main) {
  PageOptions options;
  options.chkBack = store.Flag("chkBack");
  options.chkUseNames = store.Flag("chkUseNames");
  options.chkUse83 = store.Flag("Use83");
  main.cboLang = store.Text("cboLang");
  main.alignment = LoadAlignment(store).text;
  options.chkDoubleSpace = store.Flag("chkDoubleSpace");
  main.Drive1 = store.Text("Drive1");
  main.Dir1 = store.Text("Dir1");
  LoadBackground(store, options.frmBackground);
  LoadTitles(store, options.frmPAgeTitles);
  SetDefaultHyperlinkColors(store, options.frmEffects, 0);
  LoadMETA(store, options.frmKeywords);
  GetDefaults(store, options.txtSample);
  LoadLinkToMain(store, options.frmLinkToMAin);
  options.txtSample.FontBold = store.Boolean("FontBold");
  options.txtSample.FontItalic = store.Boolean("FontItalic");
  options.chkCSS = store.Flag("chkCSS");
  return options;
}

}  // namespace folionet
