#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QColorDialog>
#include <QDir>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QFontDatabase>
#include <QFontDialog>
#include <QFontInfo>
#include <QInputDialog>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QStatusBar>
#include <QTest>
#include <QTextBrowser>
#include <QTimer>
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <new>
#include <set>
#include <string>
#include <utility>

#include "BackgroundWork.h"
#include "FormUi.h"
#include "QtText.h"
#include "StatusPanels.h"
#include "TemporaryFolder.h"
#include "TextBox.h"
#include "Volumes.h"
#include "frmErr.h"
#include "frmImport.h"

namespace folionet {
namespace {

// What each text that was put in gives back, untouched and with "!" typed at its end.
TEST(TextBoxTest, GivesBackWhatWasPutIn) {
  const std::pair<const char*, const char*> cases[] = {
      {"", "!"},
      {"one\r\ntwo\r\n", "one\r\ntwo\r\n!"},
      {"one\ntwo", "one\r\ntwo!"},
      {"a\xC2\xA0z", "a\xC2\xA0z!"},                                              // a hard blank
      {"caf\xE9 caf\xC3\xA9", "caf\xE9 caf\xC3\xA9!"},                            // a byte that is not UTF-8
      {"\xF0\x9F\x8C\x8D\xFF\xED\xB2\x80", "\xF0\x9F\x8C\x8D\xFF\xED\xB2\x80!"},  // beyond 16 bits, and bad bytes
  };
  for (const auto& [given, edited] : cases) {
    TextBox box;
    box.SetText(given);
    EXPECT_EQ(box.Text(), given);
    box.moveCursor(QTextCursor::End);
    QTest::keyClicks(&box, "!");
    EXPECT_EQ(box.Text(), edited);
  }
}

// Does something with the box that comes up next.
template <typename Box>
void WhenShown(const std::function<void(Box&)>& act) {
  QTimer::singleShot(0, qApp, [act] {
    auto* box = qobject_cast<Box*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    act(*box);
  });
}

TEST(FormUiTest, MessagesShowTitleTextAndIcon) {
  const std::pair<MessageIcon, QMessageBox::Icon> cases[] = {{MessageIcon::kInformation, QMessageBox::Information},
                                                             {MessageIcon::kWarning, QMessageBox::Warning},
                                                             {MessageIcon::kCritical, QMessageBox::Critical}};
  FormUi ui;
  for (const auto& [icon, shown] : cases) {
    WhenShown<QMessageBox>([shownIcon = shown](QMessageBox& box) {
      EXPECT_EQ(FromQt(box.windowTitle()), "Title");
      EXPECT_EQ(FromQt(box.text()), "<b>one</b>\ntwo");
      EXPECT_EQ(box.textFormat(), Qt::PlainText);
      EXPECT_EQ(box.icon(), shownIcon);
      box.button(QMessageBox::Ok)->click();
    });
    ui.ShowMessage({icon, "Title", "<b>one</b>\r\ntwo"});
  }
}

TEST(FormUiTest, BoxesHaveRoomForTheirTextAndTheirTitle) {
  const std::string longText(40, 'm');  // fits where no font is installed, too
  FormUi ui;
  for (const auto& [title, text] : {std::pair<std::string, std::string>{"T", longText}, {longText, "T"}}) {
    WhenShown<QMessageBox>([](QMessageBox& box) {
      const auto* label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
      ASSERT_NE(label, nullptr);
      EXPECT_GE(label->width(), label->fontMetrics().horizontalAdvance(box.text()));
      EXPECT_GE(box.width(), box.fontMetrics().horizontalAdvance(box.windowTitle()) + 100) << "and the title's buttons";
      box.button(QMessageBox::Ok)->click();
    });
    ui.ShowMessage({MessageIcon::kInformation, title, text});
  }
}

// Lines of words, as a check of a site tells them, break where they are told to alone, and leave the buttons on the
// screen however many there are.
TEST(FormUiTest, BoxesShowLongTextsInTheirLinesAndWithinTheScreen) {
  FormUi ui;
  std::string line = "l";
  const QFontMetrics metrics(QApplication::font("QMessageBox"));
  for (; metrics.horizontalAdvance(ToQt(line)) < 600; line += " line") continue;
  for (const int lines : {3, 300, 1}) {
    std::string text = lines == 1 ? line + line + line : line;
    for (int i = 1; i < lines; ++i) text += "\r\n" + line;
    WhenShown<QMessageBox>([lines](QMessageBox& box) {
      const auto* label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
      ASSERT_NE(label, nullptr);
      const int most = lines == 1 ? 4 : lines;  // one that is wider than the screen breaks
      EXPECT_LT(label->heightForWidth(label->width()), (most + 1) * label->fontMetrics().lineSpacing());
      EXPECT_GE(label->height(), lines * label->fontMetrics().lineSpacing());
      EXPECT_TRUE(box.screen()->availableSize().boundedTo(box.size()) == box.size()) << box.width() << box.height();
      EXPECT_TRUE(box.rect().contains(box.button(QMessageBox::Ok)->geometry()));
      auto* scroll = box.findChild<QScrollArea*>();
      ASSERT_EQ(scroll != nullptr, lines == 300);
      EXPECT_TRUE(scroll || box.rect().contains(label->geometry())) << "nothing is cut";
      EXPECT_TRUE(!scroll || (box.layout()->indexOf(scroll) >= 0 && scroll->frameShape() == QFrame::NoFrame));
      box.button(QMessageBox::Ok)->click();
    });
    ui.ShowMessage({MessageIcon::kWarning, "T", text});
  }
}

TEST(FormUiTest, NoIsTheDefaultAnswerAndACancelledInputIsEmpty) {
  FormUi ui;
  for (const bool answer : {true, false}) {
    WhenShown<QMessageBox>([answer](QMessageBox& box) {
      EXPECT_EQ(box.icon(), QMessageBox::Question);
      EXPECT_EQ(box.defaultButton(), box.button(QMessageBox::No));
      box.button(answer ? QMessageBox::Yes : QMessageBox::No)->click();
    });
    EXPECT_EQ(ui.AskYesNo("T", "Q"), answer);
    WhenShown<QInputDialog>([answer](QInputDialog& box) {
      EXPECT_EQ(FromQt(box.windowTitle() + box.textValue() + box.labelText()), "titleC:\\prompt");
      answer ? box.accept() : box.reject();
    });
    EXPECT_EQ(ui.AskText({"prompt", "title", "C:\\"}), answer ? "C:\\" : "");
  }
  WhenShown<QMessageBox>([](QMessageBox& box) { box.close(); });
  EXPECT_FALSE(ui.AskYesNo("T", "Q"));
}

TEST(FormUiTest, AChooserThatIsCancelledKeepsWhatThereIs) {
  const test::TemporaryFolder folder;
  const std::string old = folder.Write("old.gif", "");
  const std::string other = folder.Write("other.gif", "");
  // What is in the current folder is nothing to a file that is saved elsewhere.
  const std::filesystem::path before = std::filesystem::current_path();
  std::filesystem::create_directories(folder.Path() + "here/new");
  std::filesystem::current_path(folder.Path() + "here");
  FormUi ui;
  for (const bool isAccepted : {true, false}) {
    WhenShown<QColorDialog>([isAccepted](QColorDialog& box) {
      EXPECT_EQ(box.currentColor(), QColor(1, 2, 3));
      box.setCurrentColor(QColor(4, 0, 0));
      isAccepted ? box.accept() : box.reject();
    });
    EXPECT_EQ(ui.ChooseColour(0x030201), isAccepted ? std::optional<Colour>(4) : std::nullopt);
    WhenShown<QFileDialog>([&](QFileDialog& box) {
      EXPECT_EQ(box.nameFilters(), QStringList({"*.gif - Compuserve GIF (*.gif)", "*.* - All Files (*.*)"}));
      EXPECT_EQ(box.directory().path(), ToQt(folder.Path()).chopped(1));
      box.selectFile(ToQt(other));
      isAccepted ? static_cast<QDialog&>(box).accept() : box.reject();
    });
    EXPECT_EQ(ui.ChooseFile("*.gif - Compuserve GIF|*.gif| *.* - All Files| *.*", old), isAccepted ? other : old);
    WhenShown<QFileDialog>([&](QFileDialog& box) {
      EXPECT_EQ(box.acceptMode(), QFileDialog::AcceptSave);
      EXPECT_EQ(box.nameFilters(), QStringList("Folionet (*.folionet)"));
      EXPECT_EQ(box.selectedFiles(), QStringList(ToQt(old)));
      box.selectFile(ToQt(folder.Path()) + "new");
      isAccepted ? static_cast<QDialog&>(box).accept() : box.reject();
    });
    EXPECT_EQ(ui.ChooseFileToSave("Folionet", "folionet", old), isAccepted ? folder.Path() + "new.folionet" : "");
    WhenShown<QFileDialog>([isAccepted](QFileDialog& box) {
      EXPECT_EQ(FromQt(box.windowTitle()), "title");
      box.setDirectory(QStringLiteral("/usr"));
      box.selectFile(QStringLiteral("/usr"));
      isAccepted ? static_cast<QDialog&>(box).accept() : box.reject();
    });
    EXPECT_EQ(ui.ChooseFolder(folder.Path(), "title"), isAccepted ? "/usr" : folder.Path());
  }
  std::filesystem::current_path(before);
}

// Each 40 milliseconds at most, however fast the steps come.
TEST(StatusPanelsTest, TellTheStepAtHandAndMoveTheBar) {
  QStatusBar bar;
  QProgressBar progress;
  StatusPanels panels(bar, progress, nullptr);
  const auto* label = bar.findChild<QLabel*>(QStringLiteral("StatusBar1_Panel1"));
  QElapsedTimer time;
  time.start();
  panels.BeginRun(300);
  int moves = 0;
  QObject::connect(&progress, &QProgressBar::valueChanged, &progress, [&] { ++moves; });
  int told = 0;
  for (const int step : {1, 100, 200}) {
    while (told < step) panels.Set(1, "step " + std::to_string(++told));
    EXPECT_TRUE(QTest::qWaitFor([&] { return progress.value() == step; })) << step;
    EXPECT_EQ(FromQt(label->text()), "step " + std::to_string(step));
  }
  EXPECT_LE(moves, time.elapsed() / 30) << "a timer may be early";
  time.start();
  EXPECT_TRUE(QTest::qWaitFor([&] { return time.elapsed() > 50; }));
  panels.Set(1, "slow");
  EXPECT_EQ(FromQt(label->text()), "slow") << "a step that comes late is told at once";
  panels.EndRun(CompileOutcome::kFailed);
  EXPECT_TRUE(progress.isHidden());
  EXPECT_LT(progress.value(), progress.maximum());
  panels.EndRun(CompileOutcome::kDone);
  EXPECT_EQ(progress.value(), progress.maximum());
  panels.BeginRun(2);
  EXPECT_TRUE(progress.isHidden()) << "what the run before has left";
  panels.Set(1, "first");
  EXPECT_FALSE(progress.isHidden());
  EXPECT_TRUE(QTest::qWaitFor([&] { return progress.value() == 1; }));
}

TEST(BackgroundWorkTest, AnExceptionIsAnEndAndWhatIsBegunAnewCountsAlone) {
  std::string ends;
  BackgroundWork work;
  work.Start([](const auto& /*isWanted*/) {}, [&] { ends += "dropped "; });
  work.Start([](const auto& /*isWanted*/) { throw std::bad_alloc(); }, [&] { ends += "failed "; });
  EXPECT_TRUE(QTest::qWaitFor([&] { return !work.IsRunning(); }));
  EXPECT_EQ(ends, "failed ");
}

TEST(VolumesTest, AreThoseThatAPersonKnows) {
  const test::TemporaryFolder folder;
  const std::string table =
      folder.Write("mounts",
                   "/dev/sda1 / ext4 rw 0 0\nproc /proc proc rw 0 0\n"
                   "/dev/sdb1 /media/me/My\\040Stick vfat rw 0 0\n/dev/sdc /mediatheque ext4 rw 0 0\n"
                   "/dev/sdd1 /mnt/disk ext4 rw 0 0\n/dev/sde1 /run/media/me/K vfat rw 0 0\n");
  QStringList found;
  for (const Volume& volume : VolumesOf(table.c_str())) found << volume.name + QLatin1Char('=') + volume.path;
  EXPECT_EQ(FromQt(found.join(QLatin1Char('|'))), "Home=" + FromQt(QDir::homePath()) +
                                                      "|Computer=/|My Stick=/media/me/My Stick|disk=/mnt/disk|"
                                                      "K=/run/media/me/K");
}

TEST(FormUiTest, AFolderOfALibraryIsEnteredOrThatOfAnImportedText) {
  const test::TemporaryFolder home;
  setenv("XDG_DATA_HOME", home.Path().c_str(), 1);
  const std::string text = home.Write("text", "GEN 1:1 First\n");
  FormUi ui;
  WhenShown<QInputDialog>([](QInputDialog& box) {
    EXPECT_EQ(FromQt(box.windowTitle() + box.labelText() + box.textValue()), "titlepromptC:\\");
    WhenShown<QFileDialog>([](QFileDialog& chooser) {
      chooser.setDirectory(QStringLiteral("/usr"));
      chooser.selectFile(QStringLiteral("/usr"));
      static_cast<QDialog&>(chooser).accept();
    });
    box.findChild<QPushButton*>("cmdBrowse")->click();
    EXPECT_EQ(FromQt(box.textValue()), "/usr/");
    box.setTextValue(QStringLiteral("/pasted/\r\n"));
    box.accept();
  });
  EXPECT_EQ(ui.AskText({"prompt", "title", "C:\\", LibraryFolder::kInstallation}), "/pasted/");
  WhenShown<QInputDialog>([&](QInputDialog& box) {
    WhenShown<frmImport>([&](frmImport& form) {
      for (const QString& path : {QStringLiteral("~/no text"), ToQt(text)}) {
        form.findChild<QLineEdit*>("txtPath")->setText(path);
        QTest::keyClick(form.findChild<QLineEdit*>("txtPath"), Qt::Key_Return);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !form.IsBusy(); }));
        const QString found = form.findChild<QPlainTextEdit*>("txtFound")->toPlainText();
        EXPECT_EQ(found.startsWith(QDir::homePath() + "/no text\n"), path.startsWith('~')) << FromQt(found);
      }
      EXPECT_EQ(FromQt(form.findChild<QLineEdit*>("txtStem")->placeholderText()), "TEXT");
      EXPECT_EQ(FromQt(form.findChild<QLineEdit*>("txtName")->selectedText()), "text") << "typing replaces it";
      form.findChild<QPushButton*>("cmdImport")->click();
    });
    const auto* about = box.findChild<QLabel*>("lblAbout");
    EXPECT_TRUE(about != nullptr && about->isVisible() && about->wordWrap());
    EXPECT_GT(box.width(), 60 * box.fontMetrics().averageCharWidth()) << "a path has room";
    box.findChild<QPushButton*>("cmdImport")->click();
  });
  const std::string library = home.Path() + "Folionet/library/";
  EXPECT_EQ(ui.AskText({"prompt", "title", "C:\\", LibraryFolder::kInstallation}), library);
  EXPECT_EQ(ui.AskText({"prompt", "title", "C:\\", LibraryFolder::kModules}), library + "Modules/");
  EXPECT_TRUE(std::filesystem::exists(library + "Modules/Bible/TEXT.TXT"));
}

TEST(FormUiTest, TheFontChooserOffersOnlyWhatAPageTakes) {
  FormUi ui;
  for (const bool isAccepted : {true, false}) {
    WhenShown<QFontDialog>([isAccepted](QFontDialog& box) {
      for (const QCheckBox* effect : box.findChildren<QCheckBox*>()) EXPECT_FALSE(effect->isVisible());
      EXPECT_TRUE(box.testOption(QFontDialog::DontUseNativeDialog)) << "which would offer the effects";
      QFont font = box.currentFont();
      font.setPointSize(20);
      box.setCurrentFont(font);
      isAccepted ? box.accept() : box.reject();
    });
    const auto chosen = ui.ChooseFont({"No Such Font", 12, true, false, 0, 0});
    ASSERT_EQ(chosen.has_value(), isAccepted);
    if (!chosen) continue;
    EXPECT_EQ(chosen->FontName, "No Such Font");
    EXPECT_EQ(chosen->FontSize, 20);
    EXPECT_TRUE(chosen->FontBold);
  }
}

// Whatever styles a family has and whatever it shows first.
TEST(FormUiTest, AFontThatIsNotTouchedStays) {
  FormUi ui;
  QStringList names{"Verdana", "No Such Font"};
  std::set<QStringList> styles;  // one family of each kind will do
  for (const QString& family : QFontDatabase::families()) {
    if (styles.insert(QFontDatabase::styles(family)).second) names << family;
  }
  for (const QString& name : names) {
    for (const auto& [isBold, isItalic] : {std::pair{false, false}, {false, true}, {true, false}, {true, true}}) {
      const QString shown = QFontInfo(QFont(name)).family();
      const auto isStyle = [&, bold = isBold, italic = isItalic](const QString& style) {
        return (QFontDatabase::weight(shown, style) >= QFont::Bold) == bold &&
               QFontDatabase::italic(shown, style) == italic;
      };
      const QStringList all = QFontDatabase::styles(shown);
      const bool hasStyle = std::any_of(all.begin(), all.end(), isStyle);
      WhenShown<QFontDialog>([&](QFontDialog& box) {
        const QFont font = box.currentFont();
        EXPECT_TRUE(!hasStyle || isStyle(font.styleName())) << FromQt(name + ' ' + font.styleName());
        box.accept();
      });
      const SampleText chosen = ui.ChooseFont({FromQt(name), 10.5, isBold, isItalic, 0, 0}).value();
      EXPECT_EQ(chosen.FontName, FromQt(name));
      EXPECT_EQ(chosen.FontSize, 10.5) << chosen.FontName;
      EXPECT_EQ(chosen.FontBold, isBold) << chosen.FontName;
      EXPECT_EQ(chosen.FontItalic, isItalic) << chosen.FontName;
    }
  }
}

// What stands in for a font that is not installed is taken when the person comes back to it from another.
TEST(FormUiTest, AStandInIsTakenOnceAFontWasChosen) {
  FormUi ui;
  std::string standIn;
  WhenShown<QFontDialog>([&](QFontDialog& box) {
    const QFont shown = box.currentFont();
    standIn = FromQt(shown.family());
    QFont other = shown;
    other.setFamilies({QStringLiteral("Another Font")});
    emit box.currentFontChanged(other);
    emit box.currentFontChanged(shown);
    box.accept();
  });
  EXPECT_EQ(ui.ChooseFont({"No Such Font", 12, false, false, 0, 0}).value().FontName, standIn);
}

TEST(FormUiTest, TheReportCanBeCopiedWhole) {
  FormUi ui;
  for (const char* extra : {"", "a\r\nb"}) {
    WhenShown<frmErr>([extra](frmErr& window) {
      EXPECT_EQ(FromQt(window.windowTitle()), "An Error has ocurred.");
      auto* report = window.findChild<QPlainTextEdit*>(QStringLiteral("txtErr"));
      EXPECT_EQ(report->font().families().first(), "Fixedsys");
      EXPECT_EQ(report->font().styleHint(), QFont::Monospace);
      EXPECT_TRUE(report->textInteractionFlags().testFlag(Qt::TextSelectableByMouse));
      EXPECT_TRUE(report->toPlainText().startsWith(QStringLiteral("An Error has occured.\nTitle        : Folionet\n")));
      EXPECT_TRUE(report->toPlainText().contains(QStringLiteral("Module       : GetLang.\nError Number : 53\n")));
      EXPECT_TRUE(report->toPlainText().contains(QStringLiteral("Extra Info   : \n") + ToQtLines(extra) + "\n\n"));
      QApplication::setActiveWindow(&window);
      QTest::keyClick(&window, Qt::Key_F1);
      const auto* help = window.findChild<QTextBrowser*>(QStringLiteral("helpPage"));
      EXPECT_EQ(help != nullptr ? FromQt(help->source().fragment()) : "no help", "report");
      auto* close = window.findChild<QPushButton*>(QStringLiteral("cmdClose"));
      EXPECT_EQ(window.focusWidget(), close) << "Return closes";
      report->setFocus();
      close->click();
    });
    ui.ShowErrorReport({Procedure::kGetLang, kFileNotFound, extra});
  }
}

}  // namespace
}  // namespace folionet
