#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <functional>
#include <memory>
#include <set>

#include "DialogBench.h"
#include "QtText.h"
#include "SettingsKeys.h"
#include "TextBox.h"
#include "TextCombo.h"
#include "frmBackground.h"
#include "frmEffects.h"
#include "frmEncoding.h"
#include "frmKeywords.h"
#include "frmLinkToMAin.h"
#include "frmPAgeTitles.h"

namespace folionet {
namespace {

// Every option dialog of one run of the program.
struct AllDialogs {
  explicit AllDialogs(AppState& state)
      : background(state), titles(state), effects(state), meta(state), encoding(state), link(state) {
    background.LoadForm();
    titles.LoadForm();
    effects.LoadForm();
    meta.LoadForm();
    encoding.LoadForm();
    link.LoadForm();
  }

  frmBackground background;
  frmPAgeTitles titles;
  frmEffects effects;
  frmKeywords meta;
  frmEncoding encoding;
  frmLinkToMAin link;
};

void Pick(const QWidget& form, const char* list, int item) {
  auto& combo = Find<QComboBox>(form, list);
  combo.setCurrentIndex(item);
  emit combo.textActivated(combo.currentText());
}

// A key, a person's way to change it, what is stored then, and what its control shows, in the form that is stored.
struct KeyCase {
  const char* key;
  const char* stored;
  std::function<void(AllDialogs&, ScriptedUi&)> change;
  std::function<std::string(const AllDialogs&)> shown;
};

KeyCase Swatch(const char* key, const char* button) {
  return {key, "66051",
          [button](AllDialogs& all, ScriptedUi& ui) {
            ui.colours = {66051};
            Click(all.effects, button);
            Click(all.effects, "cmdClose");
          },
          [key](const AllDialogs& all) {
            return std::to_string(FromQt(Find<QLabel>(all.effects, key).palette().color(QPalette::Window)));
          }};
}

KeyCase Combo(const char* key) {
  return {key, "typed, by hand",
          [key](AllDialogs& all, ScriptedUi&) {
            Find<QComboBox>(all.effects, key).setEditText("typed, by hand");
            Click(all.effects, "cmdClose");
          },
          [key](const AllDialogs& all) { return FromQt(Find<QComboBox>(all.effects, key).currentText()); }};
}

KeyCase Check(const char* key, const char* stored) {
  return {key, stored,
          [key](AllDialogs& all, ScriptedUi&) {
            Click(all.effects, key);
            Click(all.effects, "cmdClose");
          },
          [key](const AllDialogs& all) {
            return std::string(Find<QAbstractButton>(all.effects, key).isChecked() ? "1" : "0");
          }};
}

KeyCase Meta(const char* key, const char* box) {
  return {key, "  \"new\", <b>\r\nline  ",
          [box](AllDialogs& all, ScriptedUi&) {
            Find<TextBox>(all.meta, box).setPlainText("  \"new\", <b>\nline  ");
            Click(all.meta, "cmdClose");
          },
          [box](const AllDialogs& all) { return Find<TextBox>(all.meta, box).Text(); }};
}

template <typename Form>
KeyCase Line(const char* key, const char* box, Form AllDialogs::*form) {
  return {key, "%bible%, \\n",
          [box, form](AllDialogs& all, ScriptedUi&) {
            Find<QLineEdit>(all.*form, box).setText("%bible%, \\n");
            Click(all.*form, "cmdClose");
          },
          [box, form](const AllDialogs& all) { return FromQt(Find<QLineEdit>(all.*form, box).text()); }};
}

KeyCase ListEntry(const char* key, const char* list, const char* stored) {
  return {key, stored,
          [list](AllDialogs& all, ScriptedUi&) {
            Pick(all.encoding, list, 1);
            Click(all.encoding, "cmdDone");
          },
          [list](const AllDialogs& all) { return FromQt(Find<TextCombo>(all.encoding, list).Text()); }};
}

std::string ShownJustification(const AllDialogs& all) {
  const char* options[] = {"OLeft", "OCenter", "ORight"};
  for (int i = 0; i < 3; ++i) {
    if (Find<QAbstractButton>(all.link, options[i]).isChecked()) return std::to_string(i + 1);
  }
  return "none";
}

std::vector<KeyCase> Cases() {
  return {
      Swatch("lblHyperlink", "cmdHyperlink"),
      Swatch("lblActive", "cmdActive"),
      Swatch("lblFollowed", "cmdFollowed"),
      Swatch("lblRColor", "cmdRollover"),
      Combo("cboFont"),
      Combo("cboSize"),
      Combo("cboStyle"),
      Check("chkSmallCaps", "1"),
      Check("chkAllCaps", "1"),
      Check("chkUnderline", "1"),
      Check("chkRollover", "0"),
      Meta("KeywordsI", "txtKeywordsI"),
      Meta("DescriptionI", "txtDescriptionI"),
      Meta("Keywords", "txtKeyWords"),
      Meta("Description", "txtDescription"),
      Line("index_html", "txtIndex_html", &AllDialogs::titles),
      Line("PageTitles", "txtPageTitles", &AllDialogs::titles),
      Line("LinkToMain", "txtLinkToMain", &AllDialogs::link),
      Line("BackImage", "txtImagepath", &AllDialogs::background),
      ListEntry("Charset", "cboCharset", "utf-8 (Unicode)"),
      ListEntry("Lang", "cboLang", "el Greek"),
      {"LCR", "3", [](AllDialogs& all, ScriptedUi&) { Click(all.link, "ORight"); }, ShownJustification},
      {"LinkBackSize", "5", [](AllDialogs& all, ScriptedUi&) { Pick(all.link, "cboSize", 4); },
       [](const AllDialogs& all) { return FromQt(Find<TextCombo>(all.link, "cboSize").Text()); }},
      {"WaterMark", "1", [](AllDialogs& all, ScriptedUi&) { Click(all.background, "chkWaterMark"); },
       [](const AllDialogs& all) {
         return std::string(Find<QAbstractButton>(all.background, "chkWaterMark").isChecked() ? "1" : "0");
       }},
  };
}

TEST(RestartTest, EveryKeyOfADialogSurvivesARestartAndComesBackToItsDefault) {
  for (const KeyCase& c : Cases()) {
    SCOPED_TRACE(c.key);
    DialogBench bench;
    {
      AllDialogs all(bench.State());
      EXPECT_EQ(c.shown(all), FindSettingKey(c.key)->defaultText);
      c.change(all, bench.ui);
    }
    EXPECT_EQ(bench.Stored(c.key), c.stored);
    bench.StartAgain();
    EXPECT_EQ(c.shown(AllDialogs(bench.State())), c.stored);
    bench.State().store.DeleteSetting("Folionet");
    bench.StartAgain();
    EXPECT_EQ(c.shown(AllDialogs(bench.State())), FindSettingKey(c.key)->defaultText);
    EXPECT_TRUE(bench.ui.log.empty()) << bench.ui.log.front();
  }
}

// A start that failed leaves dialogs unloaded. Opening one and closing it must not store its empty controls.
TEST(RestartTest, ADialogThatWasNotLoadedLoadsWhenShown) {
  DialogBench bench;
  {
    AllDialogs all(bench.State());
    for (const KeyCase& c : Cases()) c.change(all, bench.ui);
  }
  bench.StartAgain();
  AppState& state = bench.State();
  const std::unique_ptr<QDialog> dialogs[] = {
      std::make_unique<frmBackground>(state), std::make_unique<frmPAgeTitles>(state),
      std::make_unique<frmEffects>(state),    std::make_unique<frmKeywords>(state),
      std::make_unique<frmLinkToMAin>(state), std::make_unique<frmEncoding>(state)};
  for (const auto& dialog : dialogs) {
    dialog->show();
    Click(*dialog, dialog->objectName() == "frmEncoding" ? "cmdDone" : "cmdClose");
  }
  for (const KeyCase& c : Cases()) EXPECT_EQ(bench.Stored(c.key), c.stored) << c.key;
}

TEST(RestartTest, ABadSettingThatTheStartDidNotReachIsReportedWhenShown) {
  DialogBench bench;
  bench.State().store.SaveText("WaterMark", "maybe");
  frmBackground form(bench.State());
  form.show();
  form.hide();
  form.show();
  EXPECT_EQ(bench.ui.log, std::vector<std::string>{"report Form Load - MAIN"});
}

TEST(RestartTest, EveryKeyHasAForm) {
  std::set<std::string_view> covered{"chkBack",         "chkUseNames",    "Use83",     "cboLang",   "alignmentLR",
                                     "Index_Alignment", "chkDoubleSpace", "Drive1",    "Dir1",      "FontBold",
                                     "FontItalic",      "chkCSS",         "BackColor", "ForeColor", "Font",
                                     "FontSize"};  // the main form's
  for (const KeyCase& c : Cases()) covered.insert(c.key);
  for (const SettingKey& key : SettingKeys()) EXPECT_TRUE(covered.contains(key.name)) << key.name;
}

}  // namespace
}  // namespace folionet
