#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QFontDatabase>
#include <QFontDialog>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <utility>

#include "FormUi.h"
#include "QtText.h"
#include "TextBox.h"
#include "frmErr.h"

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
    box.insertPlainText(QStringLiteral("!"));
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
  const std::string longText(60, 'm');
  FormUi ui;
  for (const auto& [title, text] : {std::pair<std::string, std::string>{"T", longText}, {longText, "T"}}) {
    WhenShown<QMessageBox>([](QMessageBox& box) {
      const auto* label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
      ASSERT_NE(label, nullptr);
      EXPECT_GE(label->width(), label->fontMetrics().horizontalAdvance(box.text()));
      EXPECT_GE(box.width(), box.fontMetrics().horizontalAdvance(box.windowTitle()));
      box.button(QMessageBox::Ok)->click();
    });
    ui.ShowMessage({MessageIcon::kInformation, title, text});
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
      EXPECT_EQ(FromQt(box.textValue() + box.labelText()), "C:\\prompt");
      answer ? box.accept() : box.reject();
    });
    EXPECT_EQ(ui.AskText({"prompt", "title", "C:\\"}), answer ? "C:\\" : "");
  }
  WhenShown<QMessageBox>([](QMessageBox& box) { box.close(); });
  EXPECT_FALSE(ui.AskYesNo("T", "Q"));
}

TEST(FormUiTest, TheFontChooserOffersOnlyWhatAPageTakes) {
  FormUi ui;
  for (const bool isAccepted : {true, false}) {
    WhenShown<QFontDialog>([isAccepted](QFontDialog& box) {
      for (const QCheckBox* effect : box.findChildren<QCheckBox*>()) EXPECT_FALSE(effect->isVisible());
      QFont font = box.currentFont();
      font.setPointSize(20);
      box.setCurrentFont(font);
      isAccepted ? box.accept() : box.reject();
    });
    const SampleText chosen = ui.ChooseFont({"No Such Font", 12, true, false, 0, 0});
    EXPECT_EQ(chosen.FontName, "No Such Font");
    EXPECT_EQ(chosen.FontSize, isAccepted ? 20 : 12);
    EXPECT_TRUE(chosen.FontBold);
  }
}

// Whatever styles a family has and whatever it shows first.
TEST(FormUiTest, AFontThatIsNotTouchedStays) {
  FormUi ui;
  QStringList names = QFontDatabase::families();
  names << "Verdana"
        << "No Such Font";
  for (const QString& name : names) {
    for (const auto& [isBold, isItalic] : {std::pair{false, false}, {false, true}, {true, false}, {true, true}}) {
      WhenShown<QFontDialog>([](QFontDialog& box) { box.accept(); });
      const SampleText chosen = ui.ChooseFont({FromQt(name), 10.5, isBold, isItalic, 0, 0});
      EXPECT_EQ(chosen.FontName, FromQt(name));
      EXPECT_EQ(chosen.FontSize, 10.5) << chosen.FontName;
      EXPECT_EQ(chosen.FontBold, isBold) << chosen.FontName;
      EXPECT_EQ(chosen.FontItalic, isItalic) << chosen.FontName;
    }
  }
}

// What stands in for a font that is not installed is taken when the person comes back to it from another.
TEST(FormUiTest, AStandInIsTakenOnceAFontWasChosen) {
  if (QFontDatabase::families().size() < 2) GTEST_SKIP() << "there is no font to come back from";
  FormUi ui;
  std::string standIn;
  WhenShown<QFontDialog>([&](QFontDialog& box) {
    const QFont shown = box.currentFont();
    standIn = FromQt(shown.family());
    QFont other = shown;
    for (const QString& family : QFontDatabase::families()) {
      if (family != shown.family()) other.setFamilies({family});
    }
    ASSERT_NE(other.family(), shown.family());
    box.setCurrentFont(other);
    box.setCurrentFont(shown);
    box.accept();
  });
  EXPECT_EQ(ui.ChooseFont({"No Such Font", 12, false, false, 0, 0}).FontName, standIn);
}

TEST(FormUiTest, TheReportCanBeCopiedWhole) {
  FormUi ui;
  for (const char* extra : {"", "a\r\nb"}) {
    WhenShown<frmErr>([extra](frmErr& window) {
      EXPECT_EQ(FromQt(window.windowTitle()), "An Error has ocurred.");
      auto* report = window.findChild<QPlainTextEdit*>(QStringLiteral("txtErr"));
      EXPECT_TRUE(report->textInteractionFlags().testFlag(Qt::TextSelectableByMouse));
      EXPECT_TRUE(report->toPlainText().startsWith(QStringLiteral("An Error has occured.\nTitle        : Folionet\n")));
      EXPECT_TRUE(report->toPlainText().contains(QStringLiteral("Module       : GetLang.\nError Number : 53\n")));
      EXPECT_TRUE(report->toPlainText().contains(QStringLiteral("Extra Info   : \n") + ToQtLines(extra) + "\n\n"));
      window.findChild<QPushButton*>(QStringLiteral("cmdClose"))->click();
    });
    ui.ShowErrorReport({Procedure::kGetLang, kFileNotFound, extra});
  }
  EXPECT_EQ(FileDialogFilter("*.gif - Compuserve GIF|*.gif| *.bmp - Windows Bitmap| *.bmp | *.* - All Files| *.*"),
            "*.gif - Compuserve GIF (*.gif);;*.bmp - Windows Bitmap (*.bmp);;*.* - All Files (*.*)");
}

}  // namespace
}  // namespace folionet
