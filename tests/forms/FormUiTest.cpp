#include <gtest/gtest.h>

#include <QApplication>
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
