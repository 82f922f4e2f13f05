#include <gtest/gtest.h>

#include <QLabel>
#include <filesystem>
#include <memory>

#include "DialogBench.h"
#include "TextBox.h"
#include "frmCustomHeader.h"
#include "frmCustomizeFooter.h"

namespace folionet {
namespace {

struct Case {
  const char* file;
  const char* done;
  const char* loadLabel;
  std::string PageTexts::*shared;
  std::unique_ptr<CustomHtmlDialog> (*make)(AppState&);
};

const Case kCases[] = {
    {"CustomHeader.txt", "Command1", "Load_Custom_Header", &PageTexts::CustomHeader,
     [](AppState& state) -> std::unique_ptr<CustomHtmlDialog> { return std::make_unique<frmCustomHeader>(state); }},
    {"CustomFooter.txt", "cmdDone", "Load_Custom_Footer", &PageTexts::CustomFooter,
     [](AppState& state) -> std::unique_ptr<CustomHtmlDialog> { return std::make_unique<frmCustomizeFooter>(state); }},
};

TEST(CustomHtmlTest, DoneSavesAndShares) {
  for (const Case& c : kCases) {
    SCOPED_TRACE(c.file);
    DialogBench bench;
    const std::string path = std::string("program/") + c.file;
    auto form = c.make(bench.State());
    form->LoadForm();
    EXPECT_EQ(Find<TextBox>(*form, "Text1").Text(), "");
    EXPECT_FALSE(bench.Folder().Has(path));
    form->show();
    Find<TextBox>(*form, "Text1").setPlainText("<b>HELLO</b>\nyou");
    EXPECT_EQ(bench.State().texts.*c.shared, "");
    Click(*form, c.done);
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(bench.State().texts.*c.shared, "<b>HELLO</b>\r\nyou");
    EXPECT_EQ(bench.Folder().Read(path), "<b>HELLO</b>\r\nyou\r\n");

    // Each load and save adds one line break.
    bench.StartAgain();
    form = c.make(bench.State());
    form->LoadForm();
    EXPECT_EQ(bench.State().texts.*c.shared, "<b>HELLO</b>\r\nyou\r\n");
    Click(*form, c.done);
    EXPECT_EQ(bench.Folder().Read(path), "<b>HELLO</b>\r\nyou\r\n\r\n");
  }
}

TEST(CustomHtmlTest, ClosingByTheTitleBarSavesButDoesNotShare) {
  for (const Case& c : kCases) {
    SCOPED_TRACE(c.file);
    DialogBench bench;
    const auto form = c.make(bench.State());
    form->LoadForm();
    form->show();
    Find<TextBox>(*form, "Text1").setPlainText("later");
    form->close();
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(bench.Folder().Read(std::string("program/") + c.file), "later\r\n");
    EXPECT_EQ(bench.State().texts.*c.shared, "");
  }
}

// What is read is what is written, whatever bytes and line ends it has.
TEST(CustomHtmlTest, AnUntouchedTextIsKeptByteForByte) {
  const std::string text = "one\ntwo\r\nthr\xE9\x65\t\x93quoted\x94";
  DialogBench bench;
  bench.Folder().Write("program/CustomHeader.txt", text);
  frmCustomHeader form(bench.State());
  form.LoadForm();
  Click(form, "Command1");
  EXPECT_EQ(bench.Folder().Read("program/CustomHeader.txt"), text + "\r\n");
}

TEST(CustomHtmlTest, AFileThatCannotBeReadIsReportedAndTheNoteLeftOut) {
  for (const Case& c : kCases) {
    SCOPED_TRACE(c.file);
    DialogBench bench;
    const std::string path = std::string("program/") + c.file;
    std::filesystem::resize_file(bench.Folder().Write(path, "x"), (std::size_t{64} << 20) + 1);  // more than is read
    const auto form = c.make(bench.State());
    form->LoadForm();
    ASSERT_EQ(bench.ui.reports.size(), 1U);
    EXPECT_EQ(bench.ui.reports[0].label, c.loadLabel);
    EXPECT_EQ(bench.ui.reports[0].extra.rfind(std::string(c.file) + "\r\n", 0), 0U) << bench.ui.reports[0].extra;
    EXPECT_EQ(Find<QLabel>(*form, "Label1").text(), "");
    Click(*form, c.done);
    EXPECT_EQ(bench.Folder().Read(path).front(), 'x') << "an empty box does not replace it";
    Find<TextBox>(*form, "Text1").setPlainText("new");
    Click(*form, c.done);
    EXPECT_EQ(bench.Folder().Read(path), "new\r\n");
  }
}

TEST(CustomHtmlTest, AFailedSaveKeepsTheDialogOpenButLetsThePersonLeave) {
  for (const Case& c : kCases) {
    SCOPED_TRACE(c.file);
    DialogBench bench;
    const auto form = c.make(bench.State());
    form->LoadForm();
    std::filesystem::remove_all(bench.ProgramFolder());
    form->show();
    Find<TextBox>(*form, "Text1").setPlainText("typed");
    Click(*form, c.done);
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(bench.State().texts.*c.shared, "typed");
    ASSERT_EQ(bench.ui.reports.size(), 1U);
    EXPECT_EQ(bench.ui.reports[0].label, "Unload_Form");
    EXPECT_EQ(bench.ui.reports[0].extra.rfind(c.file, 0), 0U);
    Find<TextBox>(*form, "Text1").setPlainText("typed more");
    form->close();
    EXPECT_TRUE(form->isVisible());
    form->close();
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(bench.ui.reports.size(), 3U);
    EXPECT_EQ(Find<TextBox>(*form, "Text1").Text(), "typed more");
  }
}

}  // namespace
}  // namespace folionet
