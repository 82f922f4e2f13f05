#include <sys/stat.h>

#include "MainFormTest.h"
#include "SampleTextBox.h"

namespace folionet {
namespace {

class Exit : public MainFormTest {};

TEST_F(Exit, NoKeepsTheFormAndSavesNothing) {
  for (const char* way : {"cmdClose", "title bar"}) {
    ASSERT_TRUE(Start());
    const std::string before = Bytes(m_home / "config/Folionet.ini");
    Click("chkDoubleSpace");
    m_ui->yesNo = {false};
    way == std::string("cmdClose") ? Click("cmdClose") : static_cast<void>(m_form->close());
    ASSERT_EQ(m_ui->questions.size(), 1U);
    EXPECT_EQ(m_ui->questions[0].title, "Confirm Exit");
    EXPECT_EQ(m_ui->questions[0].text, "All settings will be saved.\r\nOK?");
    EXPECT_TRUE(m_form->isVisible());
    EXPECT_FALSE(m_hasEnded);
    EXPECT_TRUE(IsChecked("chkDoubleSpace"));
    EXPECT_EQ(Bytes(m_home / "config/Folionet.ini"), before);
  }
}

// Every option of the form is found again at the next start.
TEST_F(Exit, YesSavesWhatTheNextStartFinds) {
  ASSERT_TRUE(Start());
  m_ui->colours = {1, 2};
  m_ui->fonts.push_back({"DejaVu Serif", 10.5, true, true, 0, 0});
  for (const char* name : {"cmdBackColour", "cmdForeColour", "cmdFont", "chkUse83", "chkDoubleSpace", "OptAlignJust"}) {
    Click(name);
  }
  Choose("cboLang", 0);
  ChooseOutput();
  m_ui->yesNo = {true};
  Click("cmdClose");
  EXPECT_TRUE(m_hasEnded);
  EXPECT_FALSE(m_form->isVisible());

  const struct {
    const char* key;
    std::string text;
  } kKeys[] = {
      {"BackColor", "1"},      {"ForeColor", "2"},          {"Font", "DejaVu Serif"},    {"FontSize", "10.5"},
      {"Use83", "1"},          {"FontBold", "True"},        {"FontItalic", "True"},      {"alignmentLR", "Justify"},
      {"chkDoubleSpace", "1"}, {"Drive1", m_home.string()}, {"Dir1", m_output.string()}, {"Index_Alignment", "Justify"},
  };
  for (const auto& row : kKeys) EXPECT_EQ(Stored(row.key), row.text) << row.key;

  ASSERT_TRUE(Start());
  EXPECT_EQ(m_ui->log, std::vector<std::string>{});
  EXPECT_EQ(FromQt(Get<SampleTextBox>("txtSample").toPlainText()),
            "Sample Text [Font:  DejaVu Serif]\n[Fontsize:2] Format: BoldItalic\n[Foreground:#020000#]\n"
            "[Background:#010000#]");
  for (const char* name : {"chkUse83", "chkDoubleSpace", "OptAlignJust"}) EXPECT_TRUE(IsChecked(name)) << name;
  EXPECT_EQ(TextOf("txtOutputPath"), m_output.string() + "/");
  EXPECT_EQ(ListText("cboLang"), "BOOKS_DUTCH.TXT");
}

TEST_F(Exit, AnAlignmentThatIsNotKnownIsKept) {
  Store("Index_Alignment", "odd");
  ASSERT_TRUE(Start());
  m_ui->yesNo = {true};
  Click("cmdClose");
  EXPECT_EQ(Stored("Index_Alignment"), "odd");
  EXPECT_EQ(Stored("alignmentLR"), "");
}

TEST_F(Exit, RestoreAllEndsWithAnEmptyStore) {
  Store("PageTitles", "mine");
  Store("BackColor", "1");
  Store("chkRollover", "0");
  Store("Charset", "utf-8 Unicode");
  ASSERT_TRUE(Start());
  m_ui->yesNo = {false, true};
  Click("cmdRestoreAll");
  EXPECT_EQ(m_ui->questions[0].title, "Restore Factory Settings");
  EXPECT_EQ(m_ui->questions[0].text, "Rerurn all settings to default?\r\nAre you sure???");
  EXPECT_EQ(Stored("PageTitles"), "mine");
  EXPECT_FALSE(m_hasEnded);

  Click("cmdRestoreAll");
  EXPECT_FALSE(std::filesystem::exists(m_home / "config/Folionet.ini"));
  EXPECT_EQ(m_state->options.frmPAgeTitles.txtPageTitles, "FREE Online %bible%. %bk% Chapter %ch%:%vs%.");
  EXPECT_TRUE(m_state->options.frmEffects.chkRollover);
  EXPECT_NE(m_state->texts.RolloverStyle, "");
  EXPECT_EQ(m_state->options.txtSample.BackColor, 16777215);
  EXPECT_EQ(Panel(3), "Charset: windows-1252");
  EXPECT_EQ(m_ui->messages.back().title, "Restart Folionet");
  EXPECT_EQ(m_ui->messages.back().text, "Please restart Folionet to complete.");
  EXPECT_TRUE(m_hasEnded);
  EXPECT_TRUE(m_form->close());
  EXPECT_EQ(m_ui->questions.size(), 2U);  // nothing more is asked
  EXPECT_FALSE(std::filesystem::exists(m_home / "config/Folionet.ini"));
}

// A settings file that cannot be written is told of once; every option still works.
TEST_F(Exit, AFailureToSaveIsToldOnce) {
  ASSERT_TRUE(Start());
  std::filesystem::remove_all(m_home / "config");
  std::ofstream(m_home / "config") << "no folder";
  m_ui->log.clear();
  Click("chkUseNames");
  Click("chkCSS");
  Click("chkCSS");
  m_ui->yesNo = {true};
  Click("cmdClose");
  EXPECT_EQ(m_ui->log, (std::vector<std::string>{"report chkUseNames_Click", "message CSS file to be used",
                                                 "question Confirm Exit"}));
  EXPECT_NE(m_ui->reports[0].extra.find("Folionet.ini"), std::string::npos);
  EXPECT_TRUE(m_hasEnded);
}

}  // namespace
}  // namespace folionet
