#include <QProgressBar>
#include <QTest>
#include <array>
#include <cstdlib>
#include <set>

#include "MainFormTest.h"

namespace folionet {
namespace {

namespace fs = std::filesystem;

class CompileFromForm : public MainFormTest {
 protected:
  std::map<std::string, std::string> Files(const fs::path& folder) const {
    std::map<std::string, std::string> files;
    for (const auto& entry : fs::directory_iterator(folder)) {
      files[entry.path().filename().string()] = Bytes(entry.path());
    }
    return files;
  }
};

TEST_F(CompileFromForm, RefusalsPutTheFocusWhereTheyAreMended) {
  ASSERT_TRUE(Start());
  Click("cmdCompile");
  EXPECT_EQ(m_ui->messages.back().title, "No Path");
  EXPECT_EQ(m_ui->focused.back(), "Dir1");
  EXPECT_EQ(m_form->focusWidget(), &Get("Dir1"));
  ChooseOutput("");
  Click("cmdCompile");
  EXPECT_EQ(m_ui->messages.back().title, "No HTTP Root");
  EXPECT_EQ(m_form->focusWidget(), &Get("txthttpRoot"));
  Get<QLineEdit>("txthttpRoot").setText("index.htm");
  Click("cmdCompile");
  EXPECT_EQ(m_ui->messages.back().title, "Not a valid long file extension");
  EXPECT_TRUE(fs::is_empty(m_output));
  EXPECT_FALSE(IsEnabled("cmdOpenIndex"));
}

TEST_F(CompileFromForm, WritesTheBytesOfTheCommandLine) {
  const struct {
    const char* title;
    std::vector<const char*> clicks;
    std::vector<std::string> arguments;
    int startBook;
    const char* address;
    std::size_t files;
  } kCases[] = {
      {"defaults", {}, {}, 0, "index.html", 4},
      {"style sheet",
       {"chkCSS", "OptAlignCenter"},
       {"--set chkCSS=1", "--set Index_Alignment=Center"},
       0,
       "a/index.html",
       5},
      {"short names, second book",
       {"chkUse83", "chkDoubleSpace", "chkUseNames", "chkBack"},
       {"--set Use83=1", "--set chkDoubleSpace=1", "--set chkUseNames=0", "--set chkBack=1", "--start-book 2"},
       1,
       "index.htm",
       2},
  };
  for (const auto& row : kCases) {
    SCOPED_TRACE(row.title);
    fs::remove(m_home / "config/Folionet.ini");
    fs::remove_all(m_output);
    fs::create_directories(m_output);
    ASSERT_TRUE(Start());
    for (const char* name : row.clicks) Click(name);
    Get<QComboBox>("cboStartBook").setCurrentIndex(row.startBook);
    ChooseOutput(row.address);
    Click("cmdCompile");
    ASSERT_EQ(m_ui->reports.size(), 0U);
    EXPECT_EQ(m_ui->messages.back().title, "Compilation Complete Folionet");

    const fs::path other = m_home / "cli";
    fs::remove_all(other);
    fs::remove(m_home / "config/Folionet.ini");
    std::string command = "XDG_CONFIG_HOME=" + (m_home / "config").string() + " " FOLIONET_CLI " compile --quiet" +
                          " --program-folder " + (m_home / "program").string() + " --output " + other.string() +
                          " --index-address " + row.address;
    for (const std::string& argument : row.arguments) command += " " + argument;
    ASSERT_EQ(std::system(command.c_str()), 0) << command;
    EXPECT_EQ(Files(m_output), Files(other));
    EXPECT_EQ(Files(m_output).size(), row.files);
  }
}

TEST_F(CompileFromForm, ShowsProgressAndThenTheIndexPage) {
  ASSERT_TRUE(Start());
  ChooseOutput();
  auto& bar = Get<QProgressBar>("progressCompile");
  EXPECT_TRUE(bar.sizePolicy().retainSizeWhenHidden());
  EXPECT_FALSE(bar.isVisible());
  bool isBoxAlone = false;
  m_ui->onMessage = [&](const Message& /*message*/) { isBoxAlone = !bar.isVisible(); };
  Get<QLineEdit>("txthttpRoot").setText("index.txt");
  Click("cmdCompile");
  EXPECT_TRUE(isBoxAlone);  // a refused run has not begun
  m_ui->onMessage = {};
  Get<QLineEdit>("txthttpRoot").setText("http://example.org/b/index.html");
  Click("cmdCompile");
  EXPECT_EQ(Panel(1), m_ui->panels[1]);  // the last text is shown, however soon it came
  EXPECT_NE(Panel(1), "");
  EXPECT_TRUE(bar.isVisible());
  EXPECT_EQ(bar.value(), bar.maximum());
  EXPECT_EQ(m_ui->messages.back().text,
            "Compilation Complete!\r\n4 HTML pages created.\r\n0 pages removed\r\nRemaining pages 4");
  Click("cmdOpenIndex");
  EXPECT_EQ(m_ui->pagesShown, std::vector<std::string>{m_output.string() + "/index.html"});
  EXPECT_TRUE(fs::exists(m_ui->pagesShown[0]));
}

TEST_F(CompileFromForm, ChecksTheWrittenSite) {
  ASSERT_TRUE(Start());
  EXPECT_FALSE(IsEnabled("cmdCheckSite"));
  ChooseOutput();
  Click("cmdCompile");
  Click("cmdCheckSite");
  EXPECT_EQ(m_ui->messages.back().title, "Check site");
  EXPECT_TRUE(m_ui->messages.back().text.ends_with(" links: 0 broken, 0 pages possibly stale."));
  std::ofstream(m_output / "old.html") << "<a href=\"none.html\">";
  Click("cmdCheckSite");
  EXPECT_TRUE(m_ui->messages.back().text.ends_with(
      " links: 1 broken, 1 pages possibly stale.\r\nold.html, line 1: \"none.html\" is not there.\r\n"
      "old.html: the index does not lead here."));
  fs::remove(m_output / "index.html");
  Click("cmdCheckSite");
  EXPECT_EQ(m_ui->log.back(), "report cmdCheckSite_Click");
}

// A start that stops at a bad setting leaves later ones unread: no page is made without them, and an exit keeps them.
TEST_F(CompileFromForm, AFailedStartLosesNothing) {
  Store("BackColor", "x");
  Store("FontSize", "20");
  Store("Index_Alignment", "Center");
  ASSERT_TRUE(Start());
  ChooseOutput();
  Click("cmdCompile");
  EXPECT_EQ(m_ui->log, (std::vector<std::string>{"report Form Load - MAIN", "report Form Load - MAIN"}));
  EXPECT_TRUE(fs::is_empty(m_output));
  m_ui->yesNo = {true};
  Click("cmdClose");
  EXPECT_TRUE(m_hasEnded);
  EXPECT_EQ(Stored("FontSize"), "20");
  EXPECT_EQ(Stored("Index_Alignment"), "Center");
  EXPECT_EQ(Stored("BackColor"), "16777215");
}

TEST_F(CompileFromForm, AFailedRunIsReportedAndOffersNoPage) {
  ASSERT_TRUE(Start());
  ChooseOutput();
  m_library.Remove("Modules/Bible/SMALL.TXT");
  Click("cmdCompile");
  EXPECT_EQ(m_ui->log, std::vector<std::string>{"report cmdCompile_Click"});
  EXPECT_FALSE(IsEnabled("cmdOpenIndex"));
  EXPECT_FALSE(Get("progressCompile").isVisible());
}

TEST_F(CompileFromForm, AnIndexThatIsGoneEndsTheProgram) {
  ASSERT_TRUE(Start());
  ChooseOutput();
  m_library.Remove("Index/SMALL.TXT.INDEX");
  Click("cmdCompile");
  EXPECT_EQ(m_ui->messages.back().title, "INDEX File Not Found");
  EXPECT_TRUE(m_hasEnded);
}

// During a run, clicks and keys go nowhere, not even later, and the form does not close.
TEST_F(CompileFromForm, ARunTakesNoInput) {
  ASSERT_TRUE(Start());
  ChooseOutput();
  int pages = 0;
  m_ui->onPanel = [&](int panel, std::string_view text) {
    m_form->ShowPanel(panel, text);
    ++pages;
    QTest::mouseClick(&Get("chkDoubleSpace"), Qt::LeftButton);
    QCoreApplication::postEvent(&Get("chkUse83"), new QKeyEvent(QEvent::KeyPress, Qt::Key_Space, {}));
    QCoreApplication::postEvent(&Get("chkUse83"), new QKeyEvent(QEvent::KeyRelease, Qt::Key_Space, {}));
    m_form->close();
  };
  Click("cmdCompile");
  QCoreApplication::processEvents();
  EXPECT_GE(pages, 2);
  EXPECT_FALSE(IsChecked("chkDoubleSpace"));
  EXPECT_FALSE(IsChecked("chkUse83"));
  EXPECT_TRUE(m_ui->questions.empty());
  EXPECT_TRUE(m_form->isVisible());
  QTest::mouseClick(&Get("chkDoubleSpace"), Qt::LeftButton);
  EXPECT_TRUE(IsChecked("chkDoubleSpace"));
}

}  // namespace
}  // namespace folionet
