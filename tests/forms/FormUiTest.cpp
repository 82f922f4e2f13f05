#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QFontDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>

#include "FormUi.h"
#include "QtText.h"
#include "frmErr.h"

namespace folionet {
namespace {

// Does something with the box that comes up next.
template <typename Box>
void WhenShown(const std::function<void(Box&)>& act) {
  QTimer::singleShot(0, qApp, [act] {
    auto* box = qobject_cast<Box*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    act(*box);
  });
}

TEST(FormUi, MessagesShowTitleTextAndIcon) {
  const struct {
    MessageIcon icon;
    QMessageBox::Icon shown;
  } kCases[] = {{MessageIcon::kInformation, QMessageBox::Information},
                {MessageIcon::kWarning, QMessageBox::Warning},
                {MessageIcon::kCritical, QMessageBox::Critical}};
  FormUi ui;
  for (const auto& row : kCases) {
    int shown = 0;
    WhenShown<QMessageBox>([&](QMessageBox& box) {
      ++shown;
      EXPECT_EQ(box.windowTitle(), QStringLiteral("Title"));
      EXPECT_EQ(box.text(), QStringLiteral("<b>one</b>\ntwo"));
      EXPECT_EQ(box.textFormat(), Qt::PlainText);
      EXPECT_EQ(box.icon(), row.shown);
      box.button(QMessageBox::Ok)->click();
    });
    ui.ShowMessage({row.icon, "Title", "<b>one</b>\r\ntwo"});
    EXPECT_EQ(shown, 1);
  }
}

TEST(FormUi, NoIsTheDefaultAnswer) {
  FormUi ui;
  for (const bool answer : {true, false}) {
    WhenShown<QMessageBox>([answer](QMessageBox& box) {
      EXPECT_EQ(box.icon(), QMessageBox::Question);
      EXPECT_EQ(box.defaultButton(), box.button(QMessageBox::No));
      box.button(answer ? QMessageBox::Yes : QMessageBox::No)->click();
    });
    EXPECT_EQ(ui.AskYesNo("T", "Q"), answer);
  }
  WhenShown<QMessageBox>([](QMessageBox& box) { box.close(); });
  EXPECT_FALSE(ui.AskYesNo("T", "Q"));
}

TEST(FormUi, ACancelledInputBoxGivesAnEmptyText) {
  FormUi ui;
  for (const bool isAccepted : {true, false}) {
    WhenShown<QInputDialog>([isAccepted](QInputDialog& box) {
      EXPECT_EQ(box.textValue(), QStringLiteral("C:\\"));
      EXPECT_EQ(box.labelText(), QStringLiteral("prompt"));
      isAccepted ? box.accept() : box.reject();
    });
    EXPECT_EQ(ui.AskText({"prompt", "title", "C:\\"}), isAccepted ? "C:\\" : "");
  }
}

TEST(FormUi, TheFontChooserOffersOnlyWhatAPageTakes) {
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

TEST(FormUi, TheReportCanBeCopiedWhole) {
  FormUi ui;
  for (const char* extra : {"", "a\r\nb"}) {
    WhenShown<frmErr>([extra](frmErr& window) {
      EXPECT_EQ(window.windowTitle(), QStringLiteral("An Error has ocurred."));
      auto* report = window.findChild<QPlainTextEdit*>(QStringLiteral("txtErr"));
      EXPECT_TRUE(report->textInteractionFlags().testFlag(Qt::TextSelectableByMouse));
      EXPECT_TRUE(report->toPlainText().startsWith(QStringLiteral("An Error has occured.\nTitle        : Folionet\n")));
      EXPECT_TRUE(report->toPlainText().contains(QStringLiteral("Module       : GetLang.\nError Number : 53\n")));
      EXPECT_TRUE(report->toPlainText().contains(QStringLiteral("Extra Info   : \n") + ToQtLines(extra) + "\n\n"));
      window.findChild<QPushButton*>(QStringLiteral("cmdClose"))->click();
    });
    ui.ShowErrorReport(53, "GetLang", extra);
  }
}

TEST(FormUi, FileFilters) {
  EXPECT_EQ(FileDialogFilter("*.gif - Compuserve GIF|*.gif| *.bmp - Windows Bitmap| *.bmp | *.* - All Files| *.*"),
            "*.gif - Compuserve GIF (*.gif);;*.bmp - Windows Bitmap (*.bmp);;*.* - All Files (*.*)");
}

}  // namespace
}  // namespace folionet
