#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <filesystem>

#include "DialogBench.h"
#include "QtText.h"
#include "TextCombo.h"
#include "frmAddnew.h"
#include "frmEncoding.h"

namespace folionet {
namespace {

std::vector<std::string> Entries(const QComboBox& list) {
  std::vector<std::string> entries;
  for (int i = 0; i < list.count(); ++i) entries.push_back(FromQt(list.itemText(i)));
  return entries;
}

std::string Typed(const QWidget& form, const char* box) { return FromQt(Find<QLineEdit>(form, box).text()); }

void Type(const QWidget& form, const char* box, const char* text) {
  Find<QLineEdit>(form, box).setText(QString::fromUtf8(text));
}

void Choose(const frmEncoding& form, const char* list, int item) {
  auto& combo = Find<QComboBox>(form, list);
  combo.setCurrentIndex(item);
  emit combo.textActivated(combo.currentText());
}

TEST(EncodingTest, ShowsTheListsAndTheStoredEntries) {
  DialogBench bench;
  bench.State().store.SaveText("Lang", "xx Of my own");
  frmEncoding form(bench.State());
  form.show();
  EXPECT_EQ(Entries(Find<QComboBox>(form, "cboLang")), (std::vector<std::string>{"en-us English USA", "el Greek"}));
  EXPECT_EQ(Entries(Find<QComboBox>(form, "cboCharset")),
            (std::vector<std::string>{"windows-1252 (ANSI Latin 1)", "utf-8 (Unicode)"}));
  EXPECT_EQ(FromQt(Find<TextCombo>(form, "cboLang").Text()), "xx Of my own") << "not in the list";
  EXPECT_EQ(Typed(form, "txtLang"), "xx Of my own");
  EXPECT_EQ(Find<QComboBox>(form, "cboCharset").currentIndex(), 0);
  EXPECT_EQ(Typed(form, "txtCharset"), "windows-1252 (ANSI Latin 1)");
}

TEST(EncodingTest, DoneStoresTheListsEntriesAndUsesTheTypedCodes) {
  const struct {
    const char* typedLanguage;  // nullptr: nothing is typed over the choice
    const char* typedCharset;
    const char* language;
    const char* charset;
    const char* codePage;
  } cases[] = {
      {nullptr, nullptr, "el", "utf-8", "utf-8"},
      {"en-za South African English", "iso-8859-7 Greek", "en-za", "iso-8859-7", "iso-8859-7"},
      {" blank first", "unknown-to-all x", "", "unknown-to-all", "windows-1252"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.charset);
    DialogBench bench;
    frmEncoding form(bench.State());
    form.show();
    Choose(form, "cboLang", 1);
    Choose(form, "cboCharset", 1);
    EXPECT_EQ(Typed(form, "txtLang"), "el Greek");
    EXPECT_EQ(Typed(form, "txtCharset"), "utf-8 (Unicode)");
    if (c.typedLanguage != nullptr) Type(form, "txtLang", c.typedLanguage);
    if (c.typedCharset != nullptr) Type(form, "txtCharset", c.typedCharset);
    Click(form, "cmdDone");
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(bench.Stored("Lang"), "el Greek");
    EXPECT_EQ(bench.Stored("Charset"), "utf-8 (Unicode)");
    EXPECT_EQ(bench.ui.panels[2], "Language: el") << "the panels show what is stored";
    EXPECT_EQ(bench.ui.panels[3], "Charset: utf-8");
    EXPECT_EQ(bench.State().texts.PageLanguage, c.language);
    EXPECT_EQ(bench.State().texts.PageCharset, c.charset);
    EXPECT_EQ(bench.State().codePage.Name(), CodePage(c.codePage).Name());
  }
}

TEST(EncodingTest, TheListsAreShownAnewInANewCodePage) {
  DialogBench bench;
  bench.Folder().Write("program/lang.txt",
                       "\"en-us\",\"English USA\"\r\n\"fr\",\"Fran\xC3\xA7"
                       "ais\"\r\n");
  frmEncoding form(bench.State());
  form.show();
  Choose(form, "cboCharset", 1);
  Type(form, "txtLang", "fr typed");
  Click(form, "cmdDone");
  EXPECT_EQ(Entries(Find<QComboBox>(form, "cboLang")), (std::vector<std::string>{"en-us English USA",
                                                                                 "fr Fran\xC3\xA7"
                                                                                 "ais"}));
  EXPECT_EQ(FromQt(Find<QComboBox>(form, "cboLang").currentText()), "en-us English USA");
  EXPECT_EQ(Typed(form, "txtLang"), "fr typed");
}

TEST(EncodingTest, ClosingTheWindowIsDone) {
  DialogBench bench;
  frmEncoding form(bench.State());
  form.show();
  Choose(form, "cboLang", 1);
  form.close();
  EXPECT_FALSE(form.isVisible());
  EXPECT_EQ(bench.Stored("Lang"), "el Greek");
  EXPECT_EQ(bench.State().texts.PageLanguage, "el");
}

TEST(EncodingTest, ACodeWithoutABlankIsReported) {
  DialogBench bench;
  frmEncoding form(bench.State());
  form.show();
  Choose(form, "cboCharset", 1);
  Type(form, "txtLang", "el");
  Click(form, "cmdDone");
  EXPECT_TRUE(form.isVisible());
  ASSERT_EQ(bench.ui.reports.size(), 1U);
  EXPECT_EQ(bench.ui.reports[0].number, 5);
  EXPECT_EQ(bench.ui.reports[0].label, "UnloadEncoding");
  EXPECT_EQ(bench.ui.reports[0].extra,
            "el\r\nutf-8 (Unicode)\r\nLang\r\nA code, a blank and a description were expected: \"el\"");
  EXPECT_EQ(bench.State().texts.PageCharset, "utf-8") << "what is stored holds";
  EXPECT_EQ(bench.State().codePage.Name(), CodePage("utf-8").Name());
  form.close();
  EXPECT_FALSE(form.isVisible()) << "a person can leave";
}

TEST(EncodingTest, AListThatCannotBeReadIsReported) {
  const struct {
    const char* name;
    const char* content;  // nullptr: the file is missing
    int error;
    std::vector<std::string> charsets;
    std::vector<std::string> languages;
  } cases[] = {
      {"enc.txt", nullptr, 53, {}, {}},
      {"enc.txt", "\"utf-8\",\"(Unicode)\"\r\n\"big5\"\r\n", 62, {"utf-8 (Unicode)"}, {}},
      {"lang.txt",
       "\"el\",\"Greek\"\r\n\"xx\",\"a\",\"b\"\r\n",
       5,
       {"windows-1252 (ANSI Latin 1)", "utf-8 (Unicode)"},
       {"el Greek"}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(std::string(c.name) + (c.content == nullptr ? " missing" : c.content));
    DialogBench bench;
    bench.State().store.SaveText("Lang", "el Greek");
    std::filesystem::remove(bench.ProgramFolder() + c.name);
    if (c.content != nullptr) bench.Folder().Write(std::string("program/") + c.name, c.content);
    frmEncoding form(bench.State());
    form.show();
    ASSERT_EQ(bench.ui.reports.size(), 1U);
    EXPECT_EQ(bench.ui.reports[0].label, "PopulateCharset");
    EXPECT_EQ(bench.ui.reports[0].number, c.error);
    EXPECT_NE(bench.ui.reports[0].extra.find(c.name), std::string::npos);
    EXPECT_EQ(Entries(Find<QComboBox>(form, "cboCharset")), c.charsets);
    EXPECT_EQ(Entries(Find<QComboBox>(form, "cboLang")), c.languages);
    form.close();
    EXPECT_EQ(bench.Stored("Lang"), "el Greek") << "a list without a text stores nothing";
  }
}

TEST(AddnewTest, AddsARecordAtTheListsEnd) {
  const struct {
    const char* code;
    const char* description;
    const char* button;
    const char* file;
    const char* before;
    const char* text[2];
    const char* after;
  } cases[] = {
      {"txtLangAbbr",
       "txtLangLang",
       "cmdUpdLang",
       "lang.txt",
       "\"el\",\"Greek\"\r\n",
       {"nl", "Dutch, and \"Flemish\""},
       "\"el\",\"Greek\"\r\n\"nl\",\"Dutch, and \"\"Flemish\"\"\"\r\n"},
      {"txtEncAbbr",
       "txtEncLang",
       "cmdUpdEnc",
       "enc.txt",
       "\"a\",\"b\"",
       {"koi8-r", "Caf\xC3\xA9"},
       "\"a\",\"b\"\r\n\"koi8-r\",\"Caf\xE9\"\r\n"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.file);
    DialogBench bench;
    const std::string path = std::string("program/") + c.file;
    bench.Folder().Write(path, c.before);
    frmAddnew form(bench.State());
    for (const bool isCodeBlank : {true, false}) {
      Type(form, c.code, isCodeBlank ? "" : "x");
      Type(form, c.description, isCodeBlank ? "x" : "");
      Click(form, c.button);
      EXPECT_EQ(bench.ui.messages.back().title, "Blank Field(s)");
      EXPECT_EQ(bench.ui.messages.back().text, "Both fields must have text in them");
      EXPECT_EQ(bench.ui.messages.back().icon, MessageIcon::kWarning);
    }
    EXPECT_EQ(bench.Folder().Read(path), c.before);
    Type(form, c.code, c.text[0]);
    Type(form, c.description, c.text[1]);
    Click(form, c.button);
    EXPECT_EQ(bench.ui.messages.back().title, "Record Added");
    EXPECT_EQ(bench.ui.messages.back().text, "Record Added");
    EXPECT_EQ(bench.ui.messages.back().icon, MessageIcon::kInformation);
    EXPECT_EQ(bench.Folder().Read(path), c.after);
    EXPECT_EQ(Typed(form, c.code), c.text[0]) << "the fields are kept";

    std::filesystem::remove_all(bench.ProgramFolder());
    Click(form, c.button);
    EXPECT_EQ(bench.ui.log.back(), std::string("report ") + c.button + "_Click");
  }
}

TEST(AddnewTest, EnterAddsTheRecordThatIsBeingTyped) {
  DialogBench bench;
  frmAddnew form(bench.State());
  form.show();
  for (const char* box : {"txtLangAbbr", "txtLangLang", "txtEncAbbr", "txtEncLang"}) Type(form, box, "x");
  QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
  QApplication::sendEvent(&Find<QLineEdit>(form, "txtEncLang"), &enter);
  EXPECT_EQ(bench.ui.log, std::vector<std::string>{"message Record Added"});
  EXPECT_NE(bench.Folder().Read("program/enc.txt").find("\"x\",\"x\"\r\n"), std::string::npos);
  EXPECT_EQ(bench.Folder().Read("program/lang.txt").find("\"x\""), std::string::npos);
}

TEST(AddnewTest, CloseListsTheNewEntriesAndTheTitleBarDoesNot) {
  for (const bool byButton : {true, false}) {
    DialogBench bench;
    frmEncoding form(bench.State());
    form.show();
    Choose(form, "cboLang", 1);
    form.openModal = [&](QDialog& dialog) {
      EXPECT_EQ(dialog.objectName(), "frmAddnew");
      dialog.show();
      for (int i = 0; i < 2; ++i) {
        Type(dialog, "txtLangAbbr", "nl");
        Type(dialog, "txtLangLang", "Dutch");
        Click(dialog, "cmdUpdLang");
      }
      if (byButton) {
        Click(dialog, "cmdCancel");
      } else {
        dialog.close();
      }
      EXPECT_FALSE(dialog.isVisible());
    };
    Click(form, "cmdAddNew");
    std::vector<std::string> entries{"en-us English USA", "el Greek"};
    if (byButton) entries.insert(entries.end(), 2, "nl Dutch");
    EXPECT_EQ(Entries(Find<QComboBox>(form, "cboLang")), entries);
    EXPECT_EQ(Typed(form, "txtLang"), byButton ? "en-us English USA" : "el Greek");
  }
}

}  // namespace
}  // namespace folionet
