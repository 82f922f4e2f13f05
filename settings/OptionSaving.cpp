#include "OptionSaving.h"

namespace folionet {

void SaveDefaults(SettingsStore& store, const PageOptions& options, const MainOptions& main) {
  store.SaveTogether([&] {
    store.SaveInteger("BackColor", options.txtSample.BackColor);
    store.SaveInteger("ForeColor", options.txtSample.ForeColor);
    store.SaveText("Font", options.txtSample.FontName);
    store.SavePointSize("FontSize", options.txtSample.FontSize);
    store.SaveFlag("Use83", options.chkUse83);
    store.SaveBoolean("FontBold", options.txtSample.FontBold);
    store.SaveBoolean("FontItalic", options.txtSample.FontItalic);
    if (IsKnownAlignment(main.alignment)) store.SaveText("alignmentLR", main.alignment);
    store.SaveFlag("chkDoubleSpace", options.chkDoubleSpace);
    store.SaveText("Drive1", main.Drive1);
    store.SaveText("Dir1", main.Dir1);
    store.SaveText("Index_Alignment", main.alignment);
  });
}

void SaveTitles(SettingsStore& store, const PageTitleOptions& options) {
  store.SaveTogether([&] {
    store.SaveText("index_html", options.txtIndex_html);
    store.SaveText("PageTitles", options.txtPageTitles);
  });
}

void SaveMETA(SettingsStore& store, const MetaOptions& options) {
  store.SaveTogether([&] {
    store.SaveText("KeywordsI", options.txtKeywordsI);
    store.SaveText("DescriptionI", options.txtDescriptionI);
    store.SaveText("Keywords", options.txtKeyWords);
    store.SaveText("Description", options.txtDescription);
  });
}

void SaveLinkToMain(SettingsStore& store, const LinkToMainOptions& options) {
  store.SaveText("LinkToMain", options.txtLinkToMain);
}

void SaveLCR(SettingsStore& store, int justification) { store.SaveInteger("LCR", justification); }

void SaveLinkBackSize(SettingsStore& store, int size) { store.SaveInteger("LinkBackSize", size); }

void SaveBackImage(SettingsStore& store, const BackgroundOptions& options) {
  store.SaveText("BackImage", options.txtImagepath);
}

void SaveWaterMark(SettingsStore& store, const BackgroundOptions& options) {
  store.SaveFlag("WaterMark", options.chkWaterMark);
}

void SaveDefaultHyperlinkColors(SettingsStore& store, const EffectsOptions& options) {
  store.SaveTogether([&] {
    store.SaveInteger("lblHyperlink", options.lblHyperlink.colour);
    store.SaveInteger("lblActive", options.lblActive.colour);
    store.SaveInteger("lblFollowed", options.lblFollowed.colour);
    store.SaveInteger("lblRColor", options.lblRColor.colour);
    store.SaveText("cboFont", options.cboFont);
    store.SaveText("cboSize", options.cboSize);
    store.SaveText("cboStyle", options.cboStyle);
    store.SaveFlag("chkSmallCaps", options.chkSmallCaps);
    store.SaveFlag("chkAllCaps", options.chkAllCaps);
    store.SaveFlag("chkUnderline", options.chkUnderline);
    store.SaveFlag("chkRollover", options.chkRollover);
  });
}

}  // namespace folionet
