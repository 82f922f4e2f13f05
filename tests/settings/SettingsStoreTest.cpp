#include <gtest/gtest.h>

#include <functional>

#include "OptionRecords.h"
#include "RunTimeError.h"
#include "SettingsKeys.h"
#include "SettingsStore.h"
#include "TemporaryFolder.h"

namespace folionet {
namespace {

using test::TemporaryFolder;

TEST(SettingsStoreTest, ReadsBackEveryTextAsItWasStored) {
  const TemporaryFolder folder;
  const std::string texts[] = {
      "",           "plain",   "a, b,c",         " lead and trail ",
      "\"quoted\"", "\"half",  "back\\slash\\n", "two\r\nlines",
      "a\tb",       "x;y#z=w", "%bible% %bk%",   "Ψαλμοί – 詩篇",
      "[Keys]",     "\\",      "\"a\", \"b\"",   "C:\\new\\table\\",
      "@Bytes",     "100%",    "@Invalid()",
  };
  for (const std::string& text : texts) {
    SettingsStore(folder.Path()).SaveText("Keywords", text);
    EXPECT_EQ(SettingsStore(folder.Path()).Text("Keywords"), text);
  }
}

TEST(SettingsStoreTest, ReadsWhatAPersonEdited) {
  const struct {
    std::string line;
    const char* text;
  } cases[] = {
      {"Keywords=one, two,three", "one, two,three"},
      {"Keywords = spaced out  ", "spaced out"},
      {"Keywords=\"in quotes, with \\\"more\\\"\"", "in quotes, with \"more\""},
      {"Keywords=\"a\", \"b\"", "\"a\", \"b\""},
      {"Keywords=C:\\new\\", "C:\\new\\"},
      {"; Keywords=comment\nKeywords=x;y", "x;y"},
      {"Keywords=", ""},
  };
  for (const auto& c : cases) {
    const TemporaryFolder folder;
    folder.Write("Folionet.ini", "\xEF\xBB\xBF[Keys]\r\n" + c.line + "\r\n");
    EXPECT_EQ(SettingsStore(folder.Path()).Text("Keywords"), c.text) << c.line;
  }
}

TEST(SettingsStoreTest, KeepsKeysThatItDoesNotKnow) {
  const TemporaryFolder folder;
  folder.Write("Folionet.ini", "loose=1\n[Other]\nkey=a, b\n[Keys]\nchkCSS=1\n");
  SettingsStore(folder.Path()).SaveText("Font", "Arial");
  EXPECT_EQ(folder.Read("Folionet.ini"), "[Keys]\nFont=Arial\nchkCSS=1\n\n[Other]\nkey=a, b\n\n[]\nloose=1\n");
  SettingsStore(folder.Path()).SaveText("Font", "Arial");
  EXPECT_EQ(SettingsStore(folder.Path()).GetSetting("Folionet", "Other", "key", ""), "a, b");
}

TEST(SettingsStoreTest, AFailedSaveIsToldAndNotTriedAgain) {
  const TemporaryFolder folder;
  SettingsStore store(folder.Write("file", "") + "/");
  EXPECT_THROW(store.SaveText("Font", "Arial"), RunTimeError);
  EXPECT_EQ(store.Text("Font"), "Verdana");
}

TEST(SettingsStoreTest, ValuesThatDoNotConvertAreFailures) {
  const std::function<void(const SettingsStore&)> flag = [](const auto& s) { s.Flag("chkCSS"); };
  const std::function<void(const SettingsStore&)> colour = [](const auto& s) { s.ColourOf("BackColor"); };
  const std::function<void(const SettingsStore&)> boolean = [](const auto& s) { s.Boolean("FontBold"); };
  const std::function<void(const SettingsStore&)> number = [](const auto& s) { s.Number("LCR"); };
  const std::function<void(const SettingsStore&)> points = [](const auto& s) { s.PointSize("FontSize"); };
  const struct {
    const std::function<void(const SettingsStore&)>& read;
    const char* key;
    const char* text;
    int number;
  } cases[] = {
      {flag, "chkCSS", "x", kTypeMismatch},
      {flag, "chkCSS", "40000", kOverflow},
      {flag, "chkCSS", "2", kInvalidProcedureCall},
      {colour, "BackColor", "#FFFFFF", kTypeMismatch},
      {colour, "BackColor", "4294967296", kOverflow},
      {boolean, "FontBold", "1", kTypeMismatch},
      {number, "LCR", "", kTypeMismatch},
      {number, "LCR", "99999", kOverflow},
      {points, "FontSize", "12pt", kTypeMismatch},
      {points, "FontSize", "inf", kTypeMismatch},
      {points, "FontSize", "1,5", kTypeMismatch},
      {points, "FontSize", "1e39", kOverflow},
  };
  for (const auto& c : cases) {
    const TemporaryFolder folder;
    SettingsStore(folder.Path()).SaveText(c.key, c.text);
    try {
      c.read(SettingsStore(folder.Path()));
      ADD_FAILURE() << c.key << "=" << c.text;
    } catch (const RunTimeError& error) {
      EXPECT_EQ(error.Number(), c.number) << c.key << "=" << c.text;
      EXPECT_NE(error.Extra().find(std::string("The setting ") + c.key + " must be "), std::string::npos);
    }
  }
}

TEST(HyperlinkOptionsTest, StayAsTheyAreWhenNothingIsAsked) {
  const TemporaryFolder folder;
  EffectsOptions effects;
  effects.cboStyle = "Bold";
  SetDefaultHyperlinkColors(SettingsStore(folder.Path()), effects, 2);
  EXPECT_EQ(effects.cboStyle, "Bold");
}

}  // namespace
}  // namespace folionet
