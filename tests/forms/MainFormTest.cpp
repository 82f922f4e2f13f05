#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QFocusEvent>
#include <QMenu>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <ctime>
#include <future>
#include <string_view>

#include "FactLines.h"
#include "FolderPickers.h"
#include "FolderTree.h"
#include "FormTest.h"
#include "frmMain.h"

namespace folionet {
namespace {

class MainForm : public FormTest {};

// A setting that does not convert ends the start-up where it is read: what comes before is shown, what comes after
// keeps its initial value.
TEST_F(MainForm, ABadSettingEndsAStartWhereItIsRead) {
  const struct {
    const char* key;
    bool listsAreFilled;
    bool titlesAreLoaded;
    bool languageIsShown;
    const char* text = "x";
    const char* report = "13 Form Load - MAIN";
  } cases[] = {
      {"chkBack", false, false, false},       {"Use83", false, false, false},
      {"chkDoubleSpace", true, false, false}, {"WaterMark", true, false, false},
      {"lblActive", true, true, false},       {"BackColor", true, true, false},
      {"LinkBackSize", true, true, true},     {"FontBold", true, true, true},
      {"chkCSS", true, true, true},           {"Lang", true, true, false, "english", "5 Form Load - MAIN"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.key);
    Remove("config/Folionet.ini");
    Store(c.key, c.text);
    ASSERT_TRUE(Start());
    ASSERT_EQ(m_ui.log, Log{c.report});
    EXPECT_NE(m_ui.said[0].find(c.key), std::string::npos) << m_ui.said[0];
    EXPECT_EQ(m_ui.said[0].starts_with(m_home.Path() + "library/Modules/Bible/SMALL.TXT\r\n"), c.listsAreFilled);
    EXPECT_EQ(Get<QComboBox>("cboStartBook").count(), c.listsAreFilled ? 66 : 0);
    EXPECT_EQ(m_form->OptionDialogs().Get<frmPAgeTitles>().IsLoaded(), c.titlesAreLoaded);
    EXPECT_EQ(Shown("frmMain.StatusBar1_Panel2").empty(), !c.languageIsShown);
  }
}

// What is entered lists the translations a second time, or, without the last separator, takes them away.
TEST_F(MainForm, AfterARetryTheRightTranslationIsCompiledOrToldToBeGone) {
  const std::string good = m_home.Read("library/Sysdefs/BOOKS.TXT");
  for (const std::string modules : {"library/Modules/", "library/Modules"}) {
    SCOPED_TRACE(modules);
    m_home.Write("library/Sysdefs/BOOKS.TXT", "1\tGen\tGenesis\r\n");
    m_ui.texts = {m_home.Path() + "library/", m_home.Path() + modules};
    m_ui.onMessage = [&] { m_home.Write("library/Sysdefs/BOOKS.TXT", good); };
    ASSERT_TRUE(Start());
    auto& list = Get<QComboBox>("cboBibleName");
    const bool isThere = modules.ends_with('/');
    ASSERT_EQ(list.count(), isThere ? 4 : 2);
    const std::size_t boxes = m_ui.log.size();
    list.setCurrentIndex(list.count() - 1);
    emit list.activated(list.count() - 1);
    EXPECT_EQ(list.currentIndex() == -1, !isThere);
    const std::string file = m_home.Path() + modules + "Bible/OTHER.TXT";
    EXPECT_EQ(Shown("txtFilename"), file);
    EXPECT_EQ(m_ui.log.size(), isThere ? boxes : boxes + 1);
    const std::string gone = "Translation not found: \"Other Bible\" can no longer be read. Its text would be:\r\n";
    EXPECT_TRUE(isThere || m_ui.Boxes().back() == gone + file) << m_ui.Boxes().back();
  }
}

TEST_F(MainForm, DrivesAreListedAnewWhenTheirListIsOpened) {
  ASSERT_TRUE(Start());
  auto& drives = Get<QComboBox>("Drive1");
  m_form->Folders().volumes = [] { return std::vector<Volume>{{"Computer", "/"}}; };
  drives.showPopup();
  EXPECT_EQ(Items("Drive1"), "Computer");
  EXPECT_EQ(drives.currentIndex(), -1) << "the one that is shown is gone";
  m_form->Folders().volumes = [this] {
    return std::vector<Volume>{{"Computer", "/"}, {"Home", ToQt(m_home.Path()).chopped(1)}};
  };
  drives.hidePopup();
  drives.showPopup();
  EXPECT_EQ(Shown("Drive1"), "Home");
}

TEST_F(MainForm, AClickOnTheBackgroundOptionIsOneChange) {
  ASSERT_TRUE(Start());
  m_whenOpen = [this](QWidget&) {
    EXPECT_EQ(Shown("chkBack"), "1");
    EXPECT_FALSE(IsEnabled("cmdBackColour"));
    EXPECT_EQ(Stored("chkBack"), "<missing>");
  };
  QTest::mouseClick(&Get("chkBack"), Qt::LeftButton);
  EXPECT_EQ(m_opened, Log{"frmBackground"});
  EXPECT_EQ(Stored("chkBack"), "1");
  Click("chkCSS");
  Click("chkCSS");
  EXPECT_FALSE(IsEnabled("cmdBackColour"));
  QTest::keyClick(&Get("chkBack"), Qt::Key_Space);
  EXPECT_EQ(m_opened.size(), 1U);
  EXPECT_EQ(Stored("chkBack"), "0");
  EXPECT_TRUE(IsEnabled("cmdBackColour"));
}

TEST_F(MainForm, AFolderIsChosenInTheTreeOrByDrive) {
  const std::string home = m_home.Path();
  ASSERT_TRUE(Start());
  auto& tree = Get<FolderTree>("Dir1");
  QFocusEvent focus(QEvent::FocusIn, Qt::TabFocusReason);
  QApplication::sendEvent(&tree, &focus);
  EXPECT_EQ(tree.currentItem(), nullptr) << "nothing looks chosen before it is";
  EXPECT_EQ(Shown("txtOutputPath"), "");
  QTreeWidgetItem* root = tree.topLevelItem(0);
  ASSERT_EQ(root->childCount(), 4);  // config, library, program, site
  tree.setCurrentItem(root->child(3));
  EXPECT_EQ(Shown("txtOutputPath"), home + "site/");
  EXPECT_EQ(m_state->glob.OutputFolder, home + "site/");
  root->child(1)->setExpanded(true);
  EXPECT_EQ(root->child(1)->childCount(), 3);
  auto& drives = Get<QComboBox>("Drive1");
  emit drives.activated(1);
  EXPECT_EQ(Shown("txtOutputPath"), "/");
  Give("cmdBrowse", home + "site");
  EXPECT_EQ(FromQt(tree.Path()) + "/", home + "site/");
  EXPECT_EQ(drives.currentIndex(), 1) << "the drive that is shown has the folder too";

  ASSERT_TRUE(Start());
  auto& fresh = Get<FolderTree>("Dir1");
  emit fresh.itemClicked(fresh.topLevelItem(0), 0);  // the current one
  EXPECT_EQ(Shown("txtOutputPath"), home);
  Give("cmdBrowse", home + "site");
  emit fresh.itemActivated(fresh.topLevelItem(0), 0);  // by Enter
  EXPECT_EQ(Shown("txtOutputPath"), home);
  Click("cmdBrowse");
  EXPECT_EQ(m_ui.offered, (Log{"/", home, home}));
}

TEST_F(MainForm, FoldersAreReadAnewWhenAskedFor) {
  ASSERT_TRUE(Start());
  auto& tree = Get<FolderTree>("Dir1");
  QTreeWidgetItem* root = tree.topLevelItem(0);
  tree.setCurrentItem(root->child(3));
  const auto names = [root] {
    QStringList list;
    for (int i = 0; i < root->childCount(); ++i) list << root->child(i)->text(0);
    return FromQt(list.join(' '));
  };
  for (const char* name : {"new", "zoo"}) std::filesystem::create_directory(m_home.Path() + name);
  Remove("site");
  QTest::keyClick(&tree, Qt::Key_F5);
  EXPECT_EQ(names(), "config library new program zoo site") << "the chosen one stays";
  Remove("new");
  tree.setCurrentItem(root->child(4));
  root->setExpanded(false);
  root->setExpanded(true);
  EXPECT_EQ(names(), "config library program zoo");
  EXPECT_EQ(Shown("txtOutputPath"), m_home.Path() + "zoo/");
}

TEST_F(MainForm, RemembersAddressesFoldersAndPlaces) {
  ASSERT_TRUE(Start());
  EXPECT_GE(m_form->height(), std::min(m_form->sizeHint().height(), m_form->screen()->size().height() - 60));
  ChooseOutput("http://a/index.html");
  Click("cmdCompile");
  Give("txthttpRoot", "");
  QTimer::singleShot(0, [] {
    auto* list = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_EQ(list->actions().size(), 2);
    list->actions()[0]->trigger();
    list->close();
  });
  Get("cboLang").setFocus();
  Get("txthttpRoot").actions()[0]->trigger();
  EXPECT_EQ(Shown("txthttpRoot"), "http://a/index.html") << "offered before the next start";
  EXPECT_EQ(m_form->focusWidget(), &Get("txthttpRoot"));
  m_form->resize(1, 500);
  const QSize size = m_form->size();
  EXPECT_EQ(size.height(), 500);
  m_form->move(0, m_form->screen()->size().height() - 50);
  Exit();
  ASSERT_TRUE(Start());
  EXPECT_EQ(m_form->size(), size);
  EXPECT_LE(m_form->geometry().bottom(), m_form->screen()->size().height()) << "all of it can be seen";
  EXPECT_EQ(m_form->focusWidget(), &Get("txthttpRoot")) << "the folder is as it was";
  auto& address = Get("txthttpRoot");
  std::string walked;
  for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Up}) {
    QTest::keyClick(&address, key);
    walked += Shown("txthttpRoot") + " ";
  }
  EXPECT_EQ(walked, "http://a/index.html index.html index.html http://a/index.html ");
  QTest::keyClick(&address, Qt::Key_Return);
  EXPECT_EQ(m_ui.log.back(), "Compilation Complete Folionet");
  Click("cmdRecentFolders");
  auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  ASSERT_EQ(menu->actions().size(), 1);
  Give("cmdBrowse", m_home.Path());
  menu->actions()[0]->trigger();
  EXPECT_EQ(Shown("txtOutputPath"), m_home.Path() + "site/");
  menu->close();
  m_ui.texts = {m_home.Path() + "a&b.folionet"};
  m_form->findChild<QAction*>("actSaveSite")->trigger();
  QMenu* sites = Get<QPushButton>("cmdSite").menu();
  emit sites->aboutToShow();
  EXPECT_EQ(FromQt(sites->actions()[0]->text()), "a&&b \u2014 " + m_home.Path().substr(0, m_home.Path().size() - 1));
  EXPECT_TRUE(sites->actions()[0]->isChecked());
  m_ui.texts = {m_home.Path() + "b.folionet"};
  m_form->findChild<QAction*>("actSaveSite")->trigger();
  for (const char* first : {"b \u2014", "a&&b"}) {
    ASSERT_TRUE(Start());
    sites = Get<QPushButton>("cmdSite").menu();
    emit sites->aboutToShow();
    EXPECT_EQ(sites->actions().size(), 6) << "two sites, a line and three commands";
    EXPECT_TRUE(sites->actions()[0]->text().startsWith(first));
    m_ui.yesNo = {true};
    sites->actions()[1]->trigger();
  }
  EXPECT_EQ(m_site, m_home.Path() + "b.folionet");
}

TEST_F(MainForm, ADiskThatDoesNotAnswerDoesNotHoldTheStartUp) {
  for (const char* key : {"Dir1", "Drive1"}) {
    Remove("config/Folionet.ini");
    Store(key, key == std::string_view("Dir1") ? m_home.Path() + "site" : "/");
    std::promise<void> answer;
    m_disk = [answered = answer.get_future().share()](const std::string& /*path*/) { answered.wait(); };
    ASSERT_TRUE(Start());
    answer.set_value();
    EXPECT_EQ(m_ui.log, Log{"71 Drive_Change"}) << key;
    EXPECT_EQ(Shown("txtOutputPath"), "");
    EXPECT_EQ(Shown("Drive1").substr(0, 4), "Home");
  }
}

TEST_F(MainForm, ADiskThatDoesNotAnswerIsToldWhereItWouldBeWaitedFor) {
  std::filesystem::create_directory_symlink(m_home.Path() + "library", m_home.Path() + "nas");
  ASSERT_TRUE(Start());
  QTreeWidgetItem* root = Get<FolderTree>("Dir1").topLevelItem(0);
  ASSERT_TRUE(QTest::qWaitFor([root] { return root->childCount() == 5; })) << "a link is followed beside the form";
  EXPECT_EQ(FromQt(root->child(2)->text(0)), "nas");
  ChooseOutput();
  std::promise<void> answer;
  m_form->Folders().askDisk = [answered = answer.get_future().share()](const std::string&) { answered.wait(); };
  m_form->Folders().patience = {};
  root->child(1)->setExpanded(true);
  EXPECT_FALSE(root->child(1)->isExpanded());
  Give("cmdBrowse", m_home.Path() + "library");
  for (const char* button : {"cmdCompile", "cmdPreviewPage"}) Click(button);
  Give("Drive1", "Computer");
  EXPECT_EQ(Shown("Drive1"), "Home");
  answer.set_value();
  EXPECT_EQ(m_ui.log, Log(6, "71 Drive_Change"));
  EXPECT_EQ(m_ui.pageShown, "");
  EXPECT_EQ(m_ui.offered.back(), "") << "the chooser opens where the form does not hang";
  EXPECT_EQ(Shown("txtOutputPath"), m_home.Path() + "site/");
  m_form->Folders().patience = std::chrono::seconds(10);
  Give("cmdBrowse", m_home.Path() + "none");
  EXPECT_EQ(m_ui.log.back(), "76 Drive_Change");
}

TEST_F(MainForm, APreviewWithoutATemporaryFolderIsReportedAndTheNextHasOne) {
  ASSERT_TRUE(Start());
  const QByteArray before = qgetenv("TMPDIR");
  qputenv("TMPDIR", (m_home.Path() + "none").c_str());
  Click("cmdPreviewPage");
  ASSERT_EQ(m_ui.log, Log{"75 cmdPreviewPage_Click"});
  EXPECT_TRUE(m_ui.said.back().starts_with(m_home.Path() + "none\r\n")) << m_ui.said.back();
  qputenv("TMPDIR", (m_home.Path() + "site").c_str());
  for (int i = 0; i < 2; ++i) {
    Click("cmdPreviewPage");
    EXPECT_TRUE(m_ui.pageShown.starts_with(m_home.Path() + "site/")) << m_ui.pageShown;
    EXPECT_TRUE(std::filesystem::exists(m_ui.pageShown));
    for (const auto& entry : std::filesystem::directory_iterator(m_home.Path() + "site")) {
      std::filesystem::remove_all(entry);  // as cleaners of temporary files do
    }
  }
  before.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", before);
}

TEST_F(MainForm, APreviewHasThePictureThatThePagesWouldHave) {
  Store("chkBack", "1");
  Store("BackImage", "img\\paper.gif");
  ASSERT_TRUE(Start());
  ChooseOutput();
  m_home.Write("site/img/paper.gif", "GIF");
  Click("cmdPreviewPage");
  const std::filesystem::path picture = std::filesystem::path(m_ui.pageShown).parent_path() / "img/paper.gif";
  EXPECT_EQ(std::filesystem::file_size(picture), 3U);
  Remove("site/img");
  Click("cmdPreviewPage");
  EXPECT_FALSE(std::filesystem::exists(picture)) << "that of the preview before";
  std::filesystem::create_directories(m_home.Path() + "site/img/paper.gif");
  m_ui.pageShown.clear();
  Click("cmdPreviewPage");
  EXPECT_EQ(m_ui.log, Log{"75 cmdPreviewPage_Click"});
  EXPECT_EQ(m_ui.pageShown, "");
}

// Seconds that this thread has worked, whatever else the machine does.
double ThreadTime() {
  timespec time{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
}

// In seconds of the processor; a build that is not optimised takes several times as many, and the sanitizers more.
#ifdef NDEBUG
constexpr double kLongestGap = 0.1;
#else
const double kLongestGap = std::stoi(BOUND_SECONDS) > 10 ? 1 : 0.3;
#endif

TEST_F(MainForm, AnswersWhileALargeFolderIsLookedAt) {
  const std::filesystem::path memory = std::filesystem::exists("/dev/shm") ? "/dev/shm" : m_home.Path();
  std::string folder = memory / "folionet-XXXXXX";
  ASSERT_NE(mkdtemp(folder.data()), nullptr);
  constexpr int kFiles = 100000;
  for (int i = 0; i < kFiles; ++i) std::fclose(std::fopen((folder + '/' + std::to_string(i)).c_str(), "w"));
  ASSERT_TRUE(Start());
  double last = ThreadTime();
  double longest = 0;
  const auto tick = [&] { longest = std::max(longest, ThreadTime() - std::exchange(last, ThreadTime())); };
  QTimer ticks;
  QObject::connect(&ticks, &QTimer::timeout, tick);
  ticks.start(1);
  Give("cmdBrowse", folder);
  Get<FolderTree>("Dir1").currentItem()->setExpanded(true);
  ASSERT_TRUE(QTest::qWaitFor([this] { return !m_form->Facts().IsLooking(); }, 60000));
  tick();
  std::filesystem::remove_all(folder);
  EXPECT_EQ(Shown("lblFolderFacts"), QLocale().toString(kFiles).toStdString() + " other files stay untouched.");
  EXPECT_LT(longest, kLongestGap);
}

}  // namespace
}  // namespace folionet
