#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <map>
#include <set>

#include "FormTest.h"
#include "OptionTable.h"
#include "RunTimeError.h"
#include "TextBox.h"
#include "frmMain.h"

namespace folionet {
namespace {

// A key, what is stored after a person changed it, and the control for that. A key without a control changes with the
// one above it.
const struct Row {
  const char* key;
  const char* stored;
  const char* control;
  const char* given = nullptr;    // what is stored, unless it is said here
  const char* shownBy = nullptr;  // the same control, unless it is said here
  const char* shows = nullptr;    // what it shows only then, for one that does not show the stored text as it is
} kRows[] = {
    {"chkUseNames", "0", "chkUseNames"},
    {"Use83", "1", "chkUse83"},
    {"chkDoubleSpace", "1", "chkDoubleSpace"},
    {"cboLang", "BOOKS_DUTCH.TXT", "cboLang"},
    {"alignmentLR", "Justify", "OptAlignJust", "", "OptAlignJust", "1"},
    {"Index_Alignment", "Justify", "", "", "OptAlignJust", "1"},
    {"Drive1", "/", "cmdBrowse", "/usr", "Drive1", "Computer"},
    {"Dir1", "/usr", "", "", "txtOutputPath", "/usr/"},
    {"BackColor", "66051", "cmdBackColour", "66051", "txtSample", "[Background:#030201#]"},
    {"ForeColor", "66052", "cmdForeColour", "66052", "txtSample", "[Foreground:#040201#]"},
    {"Font", "DejaVu Serif", "cmdFont", "", "txtSample", "[Font:  DejaVu Serif]"},
    {"FontSize", "10.5", "", "", "txtSample", "[Fontsize:2]"},
    {"FontBold", "True", "", "", "txtSample", "Bold"},
    {"FontItalic", "True", "cmdFont", "", "txtSample", "Italic"},
    {"lblHyperlink", "1", "frmEffects.cmdHyperlink", "1", "frmEffects.lblHyperlink", "#010000"},
    {"lblActive", "2", "frmEffects.cmdActive", "2", "frmEffects.lblActive", "#020000"},
    {"lblFollowed", "3", "frmEffects.cmdFollowed", "3", "frmEffects.lblFollowed", "#030000"},
    {"lblRColor", "4", "frmEffects.cmdRollover", "4", "frmEffects.lblRColor", "#040000"},
    {"cboFont", "typed, by hand", "frmEffects.cboFont"},
    {"cboSize", "1\\n \"em\"", "frmEffects.cboSize"},
    {"cboStyle", "bold", "frmEffects.cboStyle"},
    {"chkSmallCaps", "1", "frmEffects.chkSmallCaps"},
    {"chkAllCaps", "1", "frmEffects.chkAllCaps"},
    {"chkUnderline", "1", "frmEffects.chkUnderline"},
    {"chkRollover", "0", "frmEffects.chkRollover"},
    {"KeywordsI", "  \"new\", <b> line  ", "frmKeywords.txtKeywordsI"},
    {"DescriptionI", "", "frmKeywords.txtDescriptionI"},
    {"Keywords", "a; b, 'c'", "frmKeywords.txtKeyWords"},
    {"Description", "100%  ", "frmKeywords.txtDescription"},
    {"index_html", "%bible%, \\n", "frmPAgeTitles.txtIndex_html"},
    {"PageTitles", " \xCE\xB2 ", "frmPAgeTitles.txtPageTitles"},
    {"LinkToMain", "up, %bible%", "frmLinkToMAin.txtLinkToMain"},
    {"LCR", "3", "frmLinkToMAin.ORight", "", "frmLinkToMAin.ORight", "1"},
    {"LinkBackSize", "5", "frmLinkToMAin.cboSize"},
    {"WaterMark", "1", "frmBackground.chkWaterMark"},
    {"BackImage", "a, b.gif", "frmBackground.txtImagepath"},
    {"Charset", "utf-8 (Unicode)", "frmEncoding.cboCharset"},
    {"Lang", "el Greek", "frmEncoding.cboLang"},
    {"chkBack", "1", "chkBack"},
    {"chkCSS", "1", "chkCSS"},
};

class Settings : public FormTest {
 protected:
  Settings() {
    for (const Option& option : OptionTable()) m_expected[std::string(option.key)] = option.defaultText;
  }

  // Leaves a dialog by its button, which saves.
  void Leave(const std::string& dialog) {
    const bool isHtml = dialog == "frmCustomHeader" || dialog == "frmCustomizeFooter";
    if (!isHtml) Click(dialog + (dialog == "frmEncoding" ? ".cmdDone" : ".cmdClose"));
  }

  void Change(const Row& row) {
    const std::string control = row.control;
    const std::string dialog = control.substr(0, control.find('.') + 1);
    if (!dialog.empty()) Get(dialog).show();
    m_ui.fonts = {{"DejaVu Serif", 10.5, true, row.key == std::string("FontItalic"), 0, 0}};
    if (!control.empty()) Give(control, row.given == nullptr ? row.stored : row.given);
    if (!dialog.empty()) Leave(dialog.substr(0, dialog.size() - 1));
    m_expected[row.key] = row.stored;
  }

  // Starts the program and compares what its controls show with the settings that it must have found.
  void ExpectStartShowsThem() {
    ASSERT_TRUE(Start());
    Get("frmEncoding.").show();  // loads when it is first shown
    EXPECT_EQ(m_ui.log, Log{});
    for (const Row& row : kRows) {
      const std::string shown = Shown(row.shownBy == nullptr ? row.control : row.shownBy);
      if (row.shows == nullptr) {
        EXPECT_EQ(shown, m_expected[row.key]) << row.key;
      } else {
        EXPECT_EQ(shown.find(row.shows) != std::string::npos, m_expected[row.key] == row.stored) << row.key << shown;
      }
    }
  }

  void ExpectStored() {
    const SettingsStore store(m_home.Path() + "config");
    for (const auto& [key, text] : m_expected) EXPECT_EQ(store.Text(key), text) << key;
  }

  std::map<std::string, std::string> m_expected;
};

TEST_F(Settings, EveryKeySurvivesARestartByItself) {
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.key);
    if (*row.control != '\0') ExpectStartShowsThem();
    Change(row);
    const Row* next = &row + 1;
    if (next != std::end(kRows) && *next->control == '\0') continue;
    Exit();
    ExpectStored();
  }
  ExpectStartShowsThem();
}

// Every key of the table has a row here, and with it a control; every control that a person can set has its key, but
// for those that choose what to compile, where a chooser is opened or what is only added to a list.
TEST_F(Settings, EveryKeyHasItsControlAndEveryControlItsKey) {
  std::set<std::string> keys;
  std::set<std::string> controls;
  for (const char* other :
       {"cboBibleName", "cboStartBook", "cboEndBook", "txthttpRoot", "optAlignLeft", "OptAlignCenter", "Drive1",
        "frmLinkToMAin.OLeft", "frmLinkToMAin.OCenter", "frmEncoding.txtLang", "frmEncoding.txtCharset",
        "frmCustomHeader.Text1", "frmCustomizeFooter.Text1"}) {
    controls.insert(other);
  }
  for (const Row& row : kRows) {
    EXPECT_NE(FindOption(row.key), nullptr) << row.key;
    EXPECT_TRUE(keys.insert(row.key).second) << row.key;
    controls.insert(row.control);
  }
  for (const Option& option : OptionTable())
    EXPECT_TRUE(keys.contains(std::string(option.key))) << option.key << " has no control";
  ASSERT_TRUE(Start());
  Get("frmEncoding.");
  for (const QWidget* control : m_form->findChildren<QWidget*>()) {
    const auto* button = qobject_cast<const QAbstractButton*>(control);
    const auto* line = qobject_cast<const QLineEdit*>(control);
    const auto* box = qobject_cast<const TextBox*>(control);
    const bool isSet = (button != nullptr && button->isCheckable()) || (line != nullptr && !line->isReadOnly()) ||
                       (box != nullptr && !box->isReadOnly()) || qobject_cast<const QComboBox*>(control) != nullptr;
    const QString name = control->objectName();
    if (!isSet || name.isEmpty() || name.startsWith("qt_")) continue;  // a part of another control
    const QWidget* form = control->window();
    const std::string full = (form == m_form.get() ? "" : FromQt(form->objectName()) + ".") + FromQt(name);
    EXPECT_TRUE(controls.contains(full)) << full << " has no key";
  }
}

TEST_F(Settings, RestoreAllBringsEveryDefaultBack) {
  ASSERT_TRUE(Start());
  for (const Row& row : kRows) Change(row);
  Exit();
  ExpectStored();
  ASSERT_TRUE(Start());
  m_ui.yesNo = {false, true};
  Click("cmdRestoreAll");
  EXPECT_EQ(m_ui.log, Log{"Restore Factory Settings?"});
  EXPECT_EQ(m_ui.said[0], "Rerurn all settings to default?\r\nAre you sure???");
  EXPECT_FALSE(m_hasEnded);
  ExpectStored();

  Click("cmdRestoreAll");
  EXPECT_EQ(m_ui.log.back(), "Restart Folionet");
  EXPECT_EQ(m_ui.said.back(), "Please restart Folionet to complete.");
  EXPECT_TRUE(m_hasEnded);
  EXPECT_EQ(m_state->options.frmPAgeTitles.txtPageTitles, "FREE Online %bible%. %bk% Chapter %ch%:%vs%.");
  EXPECT_NE(m_state->texts.RolloverStyle, "");
  EXPECT_EQ(m_state->options.txtSample.BackColor, 16777215);
  EXPECT_EQ(Shown("frmMain.StatusBar1_Panel3"), "Charset: windows-1252");
  EXPECT_TRUE(m_form->close());
  EXPECT_EQ(m_ui.log.size(), 3U) << "nothing more is asked";
  EXPECT_FALSE(m_home.Has("config/Folionet.ini"));
  EXPECT_NE(m_home.Read("config/Folionet.ini.before-restore").find("Font=DejaVu Serif"), std::string::npos);
  for (const Option& option : OptionTable()) m_expected[std::string(option.key)] = option.defaultText;
  ExpectStartShowsThem();
}

// Opening a dialog that a failed start left unloaded and closing it must not store its empty controls.
TEST_F(Settings, AFailedStartLosesNoneOfThem) {
  ASSERT_TRUE(Start());
  for (const Row& row : kRows) Change(row);
  Exit();
  Store("chkBack", "x");
  ASSERT_TRUE(Start());
  m_form->OptionDialogs().Get<frmBackground>().show();
  for (const char* name : {"cmdPageTitles", "cmdKeyWords", "cmdEffects", "cmdLinkToMain", "cmdPageEncoding"}) {
    Click(name);
  }
  for (const std::string& dialog : m_opened) Leave(dialog);
  Leave("frmBackground");
  Exit();
  EXPECT_EQ(Stored("chkBack"), "x");
  Store("chkBack", "1");
  ExpectStored();
}

// A settings file that cannot be written is told of once in a row; every option still works, and nothing that was typed
// is lost.
TEST_F(Settings, AFailureToSaveIsToldOnce) {
  const std::pair<std::string, std::string> cases[] = {{"chkUseNames", "chkUseNames_Click"},
                                                       {"cboLang", "cboLang_Click"},
                                                       {"chkBack", "updateCheck"},
                                                       {"chkCSS", "CSSCheck"},
                                                       {"cmdClose", "SaveDefaults"},
                                                       {"frmBackground.chkWaterMark", "chkWaterMark_Click"},
                                                       {"frmBackground.cmdClose", "SaveBackImage"},
                                                       {"frmPAgeTitles.cmdCheck", "SaveTitles"},
                                                       {"frmKeywords.cmdClose", "SaveMETA"},
                                                       {"frmEffects.cmdClose", "SaveDefaultHyperlinkColors"},
                                                       {"frmLinkToMAin.OLeft", "SetJustification"},
                                                       {"frmLinkToMAin.cboSize", "SetFontSize"},
                                                       {"frmLinkToMAin.cmdClose", "SaveLinkToMain"},
                                                       {"frmEncoding.cmdDone", "UnloadEncoding"}};
  ASSERT_TRUE(Start());
  Get("frmEncoding.").show();
  Give("frmEncoding.cboLang", "el Greek");
  BlockSettings();
  for (const auto& [control, label] : cases) {
    m_ui.log.clear();
    m_state->lastSaveFailure.reset();
    m_ui.yesNo = {true};
    Give(control, control == "cboLang" ? "BOOKS_DUTCH.TXT" : "4");
    Give("chkUseNames", "");
    std::erase_if(m_ui.log, [](const std::string& box) { return box.starts_with("C"); });  // boxes that ask or inform
    EXPECT_EQ(m_ui.log, Log{"76 " + label});
  }
  EXPECT_FALSE(m_hasEnded) << "an exit that cannot save leaves the form open";
}

// Else the exit would store again what was removed.
TEST_F(Settings, ARestoreThatFailsBehindTheRemovalEndsTheProgramToo) {
  Store("PageTitles", "mine");
  ASSERT_TRUE(Start());
  m_ui.onPanel = [](int, std::string_view) { throw RunTimeError(kDeviceIoError, "panel"); };
  m_ui.yesNo = {true};
  Click("cmdRestoreAll");
  EXPECT_EQ(m_ui.log, (Log{"Restore Factory Settings?", "57 cmdRestoreAll_Click", "Restart Folionet"}));
  EXPECT_TRUE(m_hasEnded);
  EXPECT_EQ(Stored("PageTitles"), "<missing>");
}

TEST_F(Settings, AreReadWhereTheyCannotBeWritten) {
  BlockSettings();
  m_given = {m_home.Path() + "library/", ""};
  ASSERT_TRUE(Start());
  EXPECT_EQ(m_ui.log, Log{"76 SetFontSize"});
  EXPECT_NE(Shown("frmLinkToMAin.txtBackToString"), "");
}

}  // namespace
}  // namespace folionet
