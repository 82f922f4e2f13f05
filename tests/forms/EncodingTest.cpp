#include <QComboBox>

#include "FormTest.h"

namespace folionet {
namespace {

class Encoding : public FormTest {
 protected:
  void Open() {
    ASSERT_TRUE(Start());
    Click("cmdPageEncoding");
  }

  Log Entries(const char* list) const {
    Log entries;
    const auto& combo = Get<QComboBox>(list);
    for (int i = 0; i < combo.count(); ++i) entries.push_back(FromQt(combo.itemText(i)));
    return entries;
  }
};

TEST_F(Encoding, ShowsTheListsAndTheStoredEntries) {
  Store("Lang", "xx Of my own");
  Open();
  EXPECT_EQ(Entries("frmEncoding.cboLang"), (Log{"en-us English USA", "el Greek"}));
  EXPECT_EQ(Entries("frmEncoding.cboCharset"), (Log{"windows-1252 (ANSI Latin 1)", "utf-8 (Unicode)"}));
  EXPECT_EQ(Shown("frmEncoding.cboLang"), "xx Of my own") << "not in the list";
  EXPECT_EQ(Shown("frmEncoding.txtLang"), "xx Of my own");
  EXPECT_EQ(Shown("frmEncoding.txtCharset"), "windows-1252 (ANSI Latin 1)");
}

TEST_F(Encoding, DoneStoresTheListsEntriesAndUsesTheTypedCodes) {
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
    Remove("config/Folionet.ini");
    m_home.Write("program/CustomHeader.txt", "caf\xE9");
    Open();
    Give("frmEncoding.cboLang", "el Greek");
    Give("frmEncoding.cboCharset", "utf-8 (Unicode)");
    EXPECT_EQ(Shown("frmEncoding.txtLang"), "el Greek");
    EXPECT_EQ(Shown("frmEncoding.txtCharset"), "utf-8 (Unicode)");
    if (c.typedLanguage != nullptr) Give("frmEncoding.txtLang", c.typedLanguage);
    if (c.typedCharset != nullptr) Give("frmEncoding.txtCharset", c.typedCharset);
    Click("frmEncoding.cmdDone");
    EXPECT_FALSE(IsShown("frmEncoding."));
    EXPECT_EQ(Stored("Lang"), "el Greek");
    EXPECT_EQ(Stored("Charset"), "utf-8 (Unicode)");
    EXPECT_EQ(Shown("frmMain.StatusBar1_Panel2"), "Language: el") << "the panels show what is stored";
    EXPECT_EQ(m_state->texts.PageLanguage, c.language);
    EXPECT_EQ(m_state->texts.PageCharset, c.charset);
    EXPECT_EQ(m_state->codePage.Name(), CodePage(c.codePage).Name());
    EXPECT_EQ(m_home.Read("program/CustomHeader.txt"), "caf\xC3\xA9") << "it stays readable";
  }
}

TEST_F(Encoding, ACodeWithoutABlankIsReportedAndTheTitleBarLetsThePersonLeave) {
  Open();
  Give("frmEncoding.cboCharset", "utf-8 (Unicode)");
  Give("frmEncoding.txtLang", "el");
  Click("frmEncoding.cmdDone");
  EXPECT_TRUE(IsShown("frmEncoding."));
  EXPECT_EQ(m_ui.log, Log{"5 UnloadEncoding"});
  EXPECT_EQ(m_ui.said, Log{"el\r\nutf-8 (Unicode)\r\nLang\r\nA code, a blank and a description were expected: \"el\""});
  EXPECT_EQ(m_state->texts.PageCharset, "utf-8") << "what is stored holds";
  EXPECT_EQ(m_state->codePage.Name(), CodePage("utf-8").Name());
  Give("frmEncoding.cboLang", "el Greek");
  Get("frmEncoding.").close();
  EXPECT_FALSE(IsShown("frmEncoding."));
  EXPECT_EQ(Stored("Lang"), "el Greek") << "the title bar saves as Done does";
  EXPECT_EQ(m_state->texts.PageLanguage, "el");
}

TEST_F(Encoding, AListThatCannotBeReadIsReported) {
  const struct {
    const char* file;
    const char* content;  // nullptr: the file is missing
    const char* report;
    Log charsets;
    Log languages;
  } cases[] = {
      {"program/enc.txt", nullptr, "53 PopulateCharset", {}, {}},
      {"program/enc.txt", "\"utf-8\",\"(Unicode)\"\r\n\"big5\"\r\n", "62 PopulateCharset", {"utf-8 (Unicode)"}, {}},
      {"program/lang.txt",
       "\"el\",\"Greek\"\r\n\"xx\",\"a\",\"b\"\r\n",
       "5 PopulateCharset",
       {"windows-1252 (ANSI Latin 1)", "utf-8 (Unicode)"},
       {"el Greek"}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.report);
    m_home.Write("program/enc.txt", "\"windows-1252\",\"(ANSI Latin 1)\"\r\n\"utf-8\",\"(Unicode)\"\r\n");
    Store("Lang", "el Greek");
    Remove(c.file);
    if (c.content != nullptr) m_home.Write(c.file, c.content);
    Open();
    ASSERT_EQ(m_ui.log, Log{c.report});
    EXPECT_NE(m_ui.said[0].find(m_home.Path() + c.file), std::string::npos);
    EXPECT_EQ(Entries("frmEncoding.cboCharset"), c.charsets);
    EXPECT_EQ(Entries("frmEncoding.cboLang"), c.languages);
    Get("frmEncoding.").close();
    EXPECT_EQ(Stored("Lang"), "el Greek") << "a list without a text stores nothing";
  }
}

TEST_F(Encoding, AddNewAddsARecordAtTheListsEnd) {
  const struct {
    std::string form;  // the part of it
    std::string file;
    const char* before;
    const char* code;
    const char* description;
    const char* after;
  } cases[] = {
      {"Lang", "program/lang.txt", "\"el\",\"Greek\"\r\n", "nl", "Dutch, and \"Flemish\"",
       "\"el\",\"Greek\"\r\n\"nl\",\"Dutch, and \"\"Flemish\"\"\"\r\n"},
      {"Enc", "program/enc.txt", "\"a\",\"b\"", "koi8-r", "Caf\xC3\xA9", "\"a\",\"b\"\r\n\"koi8-r\",\"Caf\xE9\"\r\n"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.file);
    m_home.Write(c.file, c.before);
    Open();
    m_ui.log.clear();
    Click("frmEncoding.cmdAddNew");
    const std::string code = "frmAddnew.txt" + c.form + "Abbr";
    const std::string description = "frmAddnew.txt" + c.form + "Lang";
    for (const char* blank : {code.c_str(), description.c_str()}) {
      for (const std::string& box : {code, description}) Give(box, box == blank ? "" : "x");
      Click("frmAddnew.cmdUpd" + c.form);
      EXPECT_EQ(m_ui.log.back() + ": " + m_ui.said.back(), "Blank Field(s): Both fields must have text in them");
      EXPECT_EQ(m_ui.icon, MessageIcon::kWarning);
      EXPECT_EQ(m_home.Read(c.file), c.before);
    }
    Give(code, c.code);
    Give(description, c.description);
    Key(Get(description), QEvent::KeyPress, Qt::Key_Return);
    EXPECT_EQ(m_ui.log, (Log{"Blank Field(s)", "Blank Field(s)", "Record Added"}));
    EXPECT_EQ(m_ui.said.back(), "Record Added");
    EXPECT_EQ(m_ui.icon, MessageIcon::kInformation);
    EXPECT_EQ(m_home.Read(c.file), c.after);
    EXPECT_EQ(Shown(code), c.code) << "the fields are kept";
    Remove(c.file);
    m_home.Write(c.file + "/in the way", "");
    Click("frmAddnew.cmdUpd" + c.form);
    EXPECT_TRUE(m_ui.log.back().ends_with(" cmdUpd" + c.form + "_Click")) << m_ui.log.back();
    EXPECT_EQ(Shown(code), c.code);
    Remove(c.file);
  }
}

TEST_F(Encoding, CloseListsTheNewEntriesAndTheTitleBarDoesNot) {
  for (const bool byButton : {false, true}) {
    m_home.Write("program/lang.txt", "\"en-us\",\"English USA\"\r\n\"el\",\"Greek\"\r\n");
    Open();
    Give("frmEncoding.cboLang", "el Greek");
    Click("frmEncoding.cmdAddNew");
    Give("frmAddnew.txtLangAbbr", "nl");
    Give("frmAddnew.txtLangLang", "Dutch");
    for (int i = 0; i < 2; ++i) Click("frmAddnew.cmdUpdLang");
    byButton ? Click("frmAddnew.cmdCancel") : static_cast<void>(Get("frmAddnew.").close());
    EXPECT_FALSE(IsShown("frmAddnew."));
    Log entries{"en-us English USA", "el Greek"};
    if (byButton) entries.insert(entries.end(), 2, "nl Dutch");
    EXPECT_EQ(Entries("frmEncoding.cboLang"), entries);
    EXPECT_EQ(Shown("frmEncoding.txtLang"), byButton ? "en-us English USA" : "el Greek");
  }
}

}  // namespace
}  // namespace folionet
