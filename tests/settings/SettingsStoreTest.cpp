#include <gtest/gtest.h>
#include <sys/file.h>

#include <filesystem>

#include "FileHandle.h"
#include "OptionLoading.h"
#include "OptionSaving.h"
#include "OwnCharset.h"
#include "RunTimeError.h"
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
    SettingsStore(folder.Path() + "a/b/").SaveText("Keywords", text);
    EXPECT_EQ(SettingsStore(folder.Path() + "a/b/").Text("Keywords"), text);
  }
}

TEST(SettingsStoreTest, ChangesWhatIsSavedAndNothingElse) {
  const struct {
    std::string before, after;
  } cases[] = {
      {"", "[Keys]\nFont=Arial\n"},
      {"loose=1\n[Other]\nkey=a, b\n[Keys]\nchkCSS=1\n", "loose=1\n[Other]\nkey=a, b\n[Keys]\nFont=Arial\nchkCSS=1\n"},
      {"; mine\r\n[Keys]\r\n# note\r\n  Font = b \r\nDir1 = \"/x\"\r\nodd\r\n",
       "; mine\r\n[Keys]\r\n# note\r\nFont=Arial\r\nDir1 = \"/x\"\r\nodd\r\n"},
      {"[Keys]\n Font = \"Arial\"\nFont=old\n\n\n[Other]", "[Keys]\n Font = \"Arial\"\nFont=Arial\n\n\n[Other]\n"},
      {"[Keys]\n\n[Other]\nx=y", "[Keys]\nFont=Arial\n\n[Other]\nx=y\n"},
      {"[Other]\rx=caf\xE9", "[Other]\rx=caf\xE9\r\r[Keys]\rFont=Arial\r"},
      {"\xEF\xBB\xBF[Keys]\nAb=1", "[Keys]\nAb=1\nFont=Arial\n"},
      {std::string("\xFF\xFE[\0K\0e\0y\0s\0]\0\n\0x\0=\0\x3D\xD8\x00\xDE", 24),
       "[Keys]\nFont=Arial\nx=\xF0\x9F\x98\x80\n"},
      {std::string("\0[\0K\0e\0y\0s\0]", 12), "[Keys]\nFont=Arial\n"},
  };
  for (const auto& c : cases) {
    const TemporaryFolder folder;
    folder.Write("Folionet.ini", c.before);
    SettingsStore(folder.Path()).SaveText("Font", "Arial");
    EXPECT_EQ(folder.Read("Folionet.ini"), c.after);
    EXPECT_EQ(SettingsStore(folder.Path()).Text("Font"), "Arial");
  }
  const TemporaryFolder folder;
  folder.Write("Folionet.ini", "\xFF\xFE\x3D\xD8");
  EXPECT_THROW(SettingsStore(folder.Path()).SaveText("Font", "Arial"), RunTimeError);
  EXPECT_EQ(folder.Read("Folionet.ini"), "\xFF\xFE\x3D\xD8");
}

TEST(SettingsStoreTest, AFailedSaveIsToldAndNotTriedAgain) {
  const TemporaryFolder folder;
  SettingsStore store(folder.Write("file", "") + "/");
  EXPECT_THROW(store.SaveText("Font", "Arial"), RunTimeError);
  EXPECT_EQ(store.Text("Font"), "Verdana");
}

TEST(SettingsStoreTest, TakesNothingAwayWhileAnotherProgramSaves) {
  const TemporaryFolder folder;
  folder.Write("Folionet.ini", "[Keys]\nFont=Arial\n");
  const FileHandle held = FileHandle::Open(folder.Write(".Folionet.ini.folionet-new", "").c_str(), O_RDONLY);
  ASSERT_EQ(flock(held.Get(), LOCK_EX), 0);
  SettingsStore store(folder.Path());
  EXPECT_THROW(store.DeleteSetting("Folionet"), RunTimeError);
  EXPECT_EQ(store.Text("Font"), "Arial");
  EXPECT_FALSE(folder.Has("Folionet.ini.before-restore"));
}

TEST(SettingsStoreTest, SavingTogetherHoldsBackOurOwnKeysAlone) {
  const TemporaryFolder folder;
  SettingsStore store(folder.Path());
  const auto stored = [&] { return SettingsStore(folder.Path()).GetSetting("Other", "Keys", "Font", "none"); };
  store.SaveTogether([&] {
    store.SaveText("Font", "Arial");
    EXPECT_EQ(store.GetSetting("Other", "Keys", "Font", "none"), "none");
    store.SaveSetting("Other", "Keys", "Font", "Other");
    EXPECT_EQ(stored(), "Other");
  });
  EXPECT_EQ(SettingsStore(folder.Path()).Text("Font"), "Arial");
  const auto failing = [&] {
    store.SaveText("Font", "Lost");
    throw RunTimeError(kOutOfMemory, "x");
  };
  EXPECT_THROW(store.SaveTogether(failing), RunTimeError);
  store.SaveText("FontSize", "9");
  EXPECT_EQ(SettingsStore(folder.Path()).Text("FontSize") + SettingsStore(folder.Path()).Text("Font"), "9Arial");
  store.SaveText("Font", "Serif");
  EXPECT_EQ(SettingsStore(folder.Path()).Text("Font"), "Serif") << "at once again";
}

TEST(OptionsTest, ThatDoNotConvertAreFailuresAndStayAsTheyAreStored) {
  const struct {
    const char* key;
    const char* text;
    int number;
  } cases[] = {
      {"chkCSS", "x", kTypeMismatch},
      {"chkCSS", "40000", kOverflow},
      {"chkCSS", "2", kInvalidProcedureCall},
      {"BackColor", "#FFFFFF", kTypeMismatch},
      {"BackColor", "4294967296", kOverflow},
      {"FontBold", "1", kTypeMismatch},
      {"LCR", "", kTypeMismatch},
      {"LCR", "99999", kOverflow},
      {"LinkBackSize", "32760", kOverflow},
      {"FontSize", "12pt", kTypeMismatch},
      {"FontSize", "inf", kTypeMismatch},
      {"FontSize", "1,5", kTypeMismatch},
      {"FontSize", "1e39", kOverflow},
      {"lblRColor", "red", kTypeMismatch},
      {"Lang", "en", kInvalidProcedureCall},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(std::string(c.key) + "=" + c.text);
    const TemporaryFolder folder;
    SettingsStore(folder.Path()).SaveText(c.key, c.text);
    const std::string before = folder.Read("Folionet.ini");
    SettingsStore store(folder.Path());
    PageOptions options;
    try {
      LoadAllOptions(store, options);
      ADD_FAILURE() << "read";
    } catch (const RunTimeError& error) {
      EXPECT_EQ(error.Number(), c.number);
      EXPECT_NE(error.Extra().find(c.key), std::string::npos) << error.Extra();
    }
    LoadMissingOptions(store, options);
    SaveDefaults(store, options);
    SaveOptions(store, FindOption(c.key)->part, options);
    EXPECT_EQ(SettingsStore(folder.Path()).Text(c.key), c.text);
    EXPECT_NE(folder.Read("Folionet.ini"), before);
  }
}

// What a person gives an option that could not be read takes the place of what is stored, the default too once it is
// asked for.
TEST(OptionsTest, ThatAPersonChangedAreSaved) {
  const TemporaryFolder folder;
  SettingsStore store(folder.Path());
  store.SaveText("lblActive", "red");
  store.SaveText("lblHyperlink", "blue");
  PageOptions options;
  EXPECT_THROW(LoadOptions(store, OptionPart::kEffects, options), RunTimeError);
  options.frmEffects.lblActive.colour = 7;
  SaveOptions(store, OptionPart::kEffects, options);
  EXPECT_EQ(store.Text("lblActive") + " " + store.Text("lblHyperlink"), "7 blue");
  ResetOptions(OptionPart::kEffects, options);
  SaveOptions(store, OptionPart::kEffects, options);
  EXPECT_EQ(store.Text("lblActive") + " " + store.Text("lblHyperlink"), "255 16711680");
}

TEST(OptionsTest, OfAFileThatCannotBeReadAreNotWrittenOver) {
  const TemporaryFolder folder;
  const std::string file = folder.Path() + "Folionet.ini";
  folder.Write("Folionet.ini", "[Keys]\nDir1=/kept\n");
  std::filesystem::rename(file, file + ".away");
  std::filesystem::create_directory(file);
  SettingsStore store(folder.Path());
  PageOptions options;
  EXPECT_THROW(LoadAllOptions(store, options), RunTimeError);
  LoadMissingOptions(store, options);
  std::filesystem::remove(file);
  std::filesystem::rename(file + ".away", file);
  options.main.Drive1 = "/";
  SaveDefaults(store, options);
  EXPECT_EQ(folder.Read("Folionet.ini"), "[Keys]\nDir1=/kept\nDrive1=/\n");
}

// A change of the charset that was killed, and a file of which others have saved before the next start.
TEST(SettingsStoreTest, AnUnfinishedChangeIsMadeInLaterSettingsAndUndoneForOtherLaterFiles) {
  const std::string before = "[Keys]\nCharset=a b\nOld=1\n";
  const std::string after = "[Keys]\nCharset=c d\n";
  const struct {
    std::string header, ini, wantedHeader, wantedIni;
  } cases[] = {
      {"old", before, "new", after},
      {"new", before + "chkCSS=1\n", "new", after + "chkCSS=1\n"},
      {"old", after + "chkCSS=1\n", "new", after + "chkCSS=1\n"},
      {"later", before, "later", before},
      {"later", after + "chkCSS=1\n", "later", before + "chkCSS=1\n"},
  };
  for (const auto& c : cases) {
    const TemporaryFolder folder;
    std::string note = "Folionet: a change of files, not finished\n";
    for (const std::string& text :
         {folder.Path() + "own/header", std::string("old"), std::string("old"), std::string("new"),
          folder.Path() + "own/added", std::string("new"), std::string(), std::string("x"),
          folder.Path() + "Folionet.ini", std::string("old"), before, after}) {
      note += std::to_string(text.size()) + "\n" + text;
    }
    folder.Write(".Folionet.unfinished", note);
    folder.Write("own/header", c.header);
    folder.Write("own/added", "x");
    folder.Write("Folionet.ini", c.ini);
    const SettingsStore store(folder.Path());
    EXPECT_EQ(store.Text("Charset"), c.ini.find("c d") == std::string::npos ? "a b" : "c d");
    // A disk that is away has lost nothing: the change waits for it.
    std::filesystem::rename(folder.Path() + "own", folder.Path() + "away");
    EXPECT_THROW(OwnFolderToSave(store, folder.Path()), RunTimeError);
    EXPECT_EQ(folder.Read(".Folionet.unfinished"), note);
    EXPECT_EQ(folder.Read("Folionet.ini"), c.ini);
    std::filesystem::rename(folder.Path() + "away", folder.Path() + "own");
    OwnFolderToSave(store, folder.Path());
    EXPECT_NE(c.wantedIni.find("Charset=" + store.Text("Charset")), std::string::npos);
    EXPECT_EQ(folder.Read("own/header"), c.wantedHeader);
    EXPECT_EQ(folder.Read("Folionet.ini"), c.wantedIni);
    EXPECT_EQ(folder.Has("own/added"), c.wantedHeader == "new");
    EXPECT_FALSE(folder.Has(".Folionet.unfinished"));
  }
}

// Each row has a field of its own, and a default of its form that comes back from that field as it is.
TEST(OptionsTest, HaveTheDefaultsOfTheirTable) {
  const PageOptions defaults;
  for (const Option& option : OptionTable()) {
    EXPECT_EQ(CheckOption(option.form, option.defaultText), 0) << option.key;
    EXPECT_EQ(OptionText(option, defaults), option.defaultText) << option.key;
    PageOptions changed;
    SetOption(option, option.defaultText == "0" || option.defaultText == "False" ? "1" : "0", changed);
    for (const Option& other : OptionTable()) {
      EXPECT_EQ(OptionText(other, changed) == other.defaultText, &other != &option) << option.key << " " << other.key;
    }
  }
}

}  // namespace
}  // namespace folionet
