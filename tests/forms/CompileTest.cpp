#include <sys/stat.h>
#include <unistd.h>

#include <QApplication>
#include <QComboBox>
#include <QProgressBar>
#include <QProgressDialog>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "FactLines.h"
#include "FormTest.h"
#include "frmMain.h"

namespace folionet {
namespace {

class CompileFromForm : public FormTest {};

TEST_F(CompileFromForm, ShowsProgressAndThenTheSite) {
  Store("chkCSS", "1");  // the style sheet is no page
  ASSERT_TRUE(Start());
  ChooseOutput("index.txt");
  auto& bar = Get<QProgressBar>("progressCompile");
  EXPECT_TRUE(bar.sizePolicy().retainSizeWhenHidden());
  m_ui.onMessage = [&] { EXPECT_FALSE(bar.isVisible()) << "a refused run has not begun"; };
  Click("cmdCompile");
  EXPECT_EQ(m_ui.log.size(), 1U);
  m_ui.onMessage = [] {};
  Give("txthttpRoot", "http://example.org/b/index.html");
  EXPECT_FALSE(bar.isVisible());
  std::string last;
  m_ui.onPanel = [&](int panel, std::string_view text) {
    m_form->ShowPanel(panel, text);
    if (panel == 1) last = text;
  };
  Click("cmdCompile");
  EXPECT_EQ(last, "Building index file1 Please stand by...");
  const std::string folder = m_home.Path().substr(m_home.Path().rfind('/', m_home.Path().size() - 2) + 1) + "site, ";
  EXPECT_TRUE(Shown("frmMain.StatusBar1_Panel1").starts_with("4 pages in .../" + folder))
      << Shown("frmMain.StatusBar1_Panel1");
  EXPECT_EQ(m_form->focusWidget(), &Get("cmdOpenIndex"));
  EXPECT_TRUE(bar.isVisible());
  EXPECT_EQ(bar.value(), bar.maximum());
  EXPECT_EQ(m_ui.said.back(), "Compilation Complete!\r\n4 HTML pages created.\r\n0 pages removed\r\nRemaining pages 4");
  Click("cmdOpenIndex");
  EXPECT_EQ(m_ui.pageShown, m_home.Path() + "site/index.html");

  Click("cmdVerifySite");
  EXPECT_EQ(m_ui.log.back(), "Verify site");
  EXPECT_TRUE(m_ui.said.back().ends_with(", broken: 0, not reached: 0.")) << m_ui.said.back();
  std::filesystem::copy(m_home.Path() + "site/index.html", m_home.Path() + "site/old_1.html");
  const uid_t user = geteuid();
  const auto permit = [&](mode_t mode) {
    for (const std::string& path : {m_home.Path(), m_home.Path() + "site"}) chmod(path.c_str(), mode);
  };
  permit(0555);
  ASSERT_TRUE(user != 0 || seteuid(65534) == 0);  // one who may not write
  m_ui.yesNo = {true};
  Click("cmdVerifySite");
  EXPECT_EQ(seteuid(user), 0);
  permit(0755);
  EXPECT_EQ(m_ui.said.back(),
            "0 pages were deleted. Remove them from your server too.\r\n"
            "old_1.html: cannot be removed: Permission denied.");
  m_ui.yesNo = {true};
  Click("cmdVerifySite");
  EXPECT_EQ(m_ui.said[m_ui.said.size() - 2], "Nothing leads to this page of Folionet:\r\nold_1.html\r\nDelete it?");
  EXPECT_EQ(m_ui.said.back(), "1 page was deleted. Remove it from your server too.\r\nold_1.html");
  EXPECT_FALSE(std::filesystem::exists(m_home.Path() + "site/old_1.html"));
}

TEST_F(CompileFromForm, AStoppedCheckSaysSoAndRemovesNothing) {
  ASSERT_TRUE(Start());
  ChooseOutput();
  Click("cmdCompile");
  std::string index;
  for (int i = 0; i < 400; ++i) {
    const std::string page = "own_" + std::to_string(i) + ".html";
    index += "<a href=" + page + ">";
    m_home.Write("site/" + page, std::string(100000, '\n'));
  }
  m_home.Write("site/index.html", index);
  bool isEnd = false;  // of the program, which a person's Stop is not
  QTimer stop;
  QObject::connect(&stop, &QTimer::timeout, [&] {
    auto* box = m_form->findChild<QProgressDialog*>(QStringLiteral("frmVerify"));
    if (box == nullptr || (!isEnd && box->value() < 1)) return;  // it moves
    EXPECT_TRUE(isEnd || box->maximum() > 400) << box->maximum();
    EXPECT_LT(box->minimumDuration(), 1000) << "it comes when a person begins to wait";
    m_form->close();  // which must do nothing by now
    isEnd ? QApplication::exit() : box->findChild<QPushButton*>()->click();
  });
  stop.start(0);
  Log log{"Compilation Complete Folionet"};
  for (const bool isLast : {false, true}) {
    isEnd = isLast;
    QTimer::singleShot(0, [this] {
      Click("cmdVerifySite");
      QApplication::exit();
    });
    QApplication::exec();
    log.emplace_back("Verify site");
    EXPECT_EQ(m_ui.log, log) << "nothing was asked before or after it";
    EXPECT_EQ(m_ui.icon, MessageIcon::kWarning);
    EXPECT_TRUE(m_ui.said.back().starts_with("Stopped before all pages were read.\r\nPages: ")) << m_ui.said.back();
  }
}

// The keys of the two buttons, which setting their texts must not clear, do nothing before there is a site.
TEST_F(CompileFromForm, KeysShowTheSiteThatWasCompiled) {
  ASSERT_TRUE(Start());
  ChooseOutput();
  QApplication::setActiveWindow(m_form.get());
  const auto pressKeys = [this] {
    QTest::keyClick(m_form.get(), Qt::Key_O, Qt::ControlModifier);
    QTest::keyClick(m_form.get(), Qt::Key_F8);
  };
  pressKeys();
  EXPECT_EQ(m_ui.pageShown + Shown("frmMain.StatusBar1_Panel1"), "");
  EXPECT_EQ(m_ui.log, Log{});
  Click("cmdCompile");
  pressKeys();
  EXPECT_EQ(m_ui.pageShown, m_home.Path() + "site/index.html");
  EXPECT_EQ(m_ui.log, (Log{"Compilation Complete Folionet", "Verify site"}));
}

// During a run, clicks and keys go nowhere, not even later, and the form does not close.
TEST_F(CompileFromForm, ARunTakesNoInput) {
  ASSERT_TRUE(Start());
  ChooseOutput();
  int pages = 0;
  m_ui.onPanel = [&](int panel, std::string_view text) {
    m_form->ShowPanel(panel, text);
    ++pages;
    QTest::mouseClick(&Get("chkDoubleSpace"), Qt::LeftButton);
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
      QCoreApplication::postEvent(&Get("chkUse83"), new QKeyEvent(type, Qt::Key_Space, {}));
    }
    m_form->close();
  };
  Click("cmdCompile");
  QCoreApplication::processEvents();
  EXPECT_GE(pages, 2);
  EXPECT_EQ(Shown("chkDoubleSpace") + Shown("chkUse83"), "00");
  EXPECT_EQ(m_ui.log, Log{"Compilation Complete Folionet"});
  EXPECT_TRUE(m_form->isVisible());
  QTest::mouseClick(&Get("chkDoubleSpace"), Qt::LeftButton);
  EXPECT_EQ(Shown("chkDoubleSpace"), "1");
}

}  // namespace
}  // namespace folionet
