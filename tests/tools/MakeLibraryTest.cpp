#include <gtest/gtest.h>
#include <sys/wait.h>

#include <QSettings>
#include <QString>
#include <QTemporaryDir>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "BookTitles.h"
#include "Catalogue.h"
#include "LibraryError.h"
#include "LibraryFiles.h"
#include "LibraryWriter.h"
#include "Registration.h"
#include "VerseReader.h"
#include "Windows1252.h"

namespace folionet::tools {
namespace {

namespace fs = std::filesystem;

std::string ReadBytes(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

void WriteBytes(const fs::path& path, const std::string& bytes) {
  fs::create_directories(path.parent_path());
  std::ofstream(path, std::ios::binary) << bytes;
}

std::set<std::string> FilesUnder(const fs::path& folder) {
  std::set<std::string> files;
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    if (entry.is_regular_file()) files.insert(fs::relative(entry.path(), folder).string());
  }
  return files;
}

class InFolder : public testing::Test {
 protected:
  fs::path Path(const std::string& name) const { return fs::path(m_folder.path().toStdString()) / name; }

 private:
  QTemporaryDir m_folder;
};

TEST(Windows1252, EncodesWhatItHas) {
  const struct {
    std::string text;
    std::optional<std::string> bytes;
  } kCases[] = {{"Éxodo", "\xC9xodo"},
                {"€‚ŸžÿŒ", "\x80\x82\x9F\x9E\xFF\x8C"},
                {"", ""},
                {"Ω", std::nullopt},
                {"\xC2\x81", std::nullopt},
                {"\xFF", std::nullopt},
                {"a\xC3", std::nullopt},
                {"\xF0\x9F\x98\x80", std::nullopt},
                {std::string("a\0b", 3), std::string("a\0b", 3)}};
  for (const auto& c : kCases) EXPECT_EQ(ToWindows1252(c.text), c.bytes) << c.text;
}

TEST(BookTitles, EveryLanguageHas66TitlesThatMakeFileNamesOfTheirOwn) {
  EXPECT_EQ(TitleLanguages().size(), 7u);
  for (const TitleLanguage& language : TitleLanguages()) {
    std::set<QString> names;
    for (const auto title : language.titles) names.insert(QString::fromStdString(std::string(title)).toLower());
    EXPECT_EQ(language.titles.size(), 66u) << language.name;
    EXPECT_EQ(names.size(), 66u) << language.name;
    EXPECT_FALSE(names.contains(QString())) << language.name;
  }
  const std::string spanish = TitleFileText(TitleLanguages().at(1));
  EXPECT_EQ(spanish.substr(0, 28), "1\tGen\tG\xE9nesis\r\n2\tExo\t\xC9xodo\r\n");
  EXPECT_TRUE(spanish.ends_with("\r\n66\tRev\tApocalipsis\r\n"));
}

TEST(Catalogue, GetsTheRecord) {
  const struct {
    std::string before;
    std::string after;
  } kCases[] = {
      {"", "1,0,\"A \"\"B\"\", c\",\"KJV\"\r\n"},
      {"1,5,X,x\n", "1,5,X,x\n2,0,\"A \"\"B\"\", c\",\"KJV\"\r\n"},
      {"3, 0 ,\"X, y\",\"x\"\r\n\r\n1,0,Y,y",
       "3, 0 ,\"X, y\",\"x\"\r\n\r\n1,0,Y,y\r\n2,0,\"A \"\"B\"\", c\",\"KJV\"\r\n"},
      {"\xEF\xBB\xBF"
       "7,9,\"Old\",\"kjv\"\r\n8,0,\"Y\",\"y\"\r\n9,0,\"Old\",\"KJV\"\r\n",
       "\xEF\xBB\xBF"
       "7,9,\"A \"\"B\"\", c\",\"KJV\"\r\n8,0,\"Y\",\"y\"\r\n"},
      // A record from 1000 on is no translation, whatever its stem.
      {"1000,0,\"Notes\",\"KJV\"\n", "1000,0,\"Notes\",\"KJV\"\n1,0,\"A \"\"B\"\", c\",\"KJV\"\r\n"},
  };
  for (const auto& c : kCases) EXPECT_EQ(WithTranslation(c.before, "T", "A \"B\", c", "KJV"), c.after);
}

TEST(Catalogue, RefusesWhatItCannotRead) {
  std::string full;
  for (int number = 1; number < 1000; ++number) full += std::to_string(number) + ",0,X,x\n";
  const std::string form = ": expected number,integer,\"name\",\"stem\"";
  const struct {
    std::string content;
    std::string message;
  } kCases[] = {{"1,0,X,x\n2,0,Y\n", "T:2: \"2,0,Y\"" + form},
                {"1,0,X,x,z\r\n", "T:1: \"1,0,X,x,z\"" + form},
                {"one,0,X,x\n", "T:1: \"one,0,X,x\"" + form},
                {"1,b,X,x\n", "T:1: \"1,b,X,x\"" + form},
                {"1,0,\"X,x\n", "T:1: \"1,0,\"X,x\"" + form},
                {"1,0,\"X\"y,x\n", "T:1: \"1,0,\"X\"y,x\"" + form},
                {full, "T: every number from 1 to 999 is taken: expected a free one for the translation"}};
  for (const auto& c : kCases) {
    try {
      WithTranslation(c.content, "T", "N", "S");
      ADD_FAILURE() << c.message;
    } catch (const LibraryError& error) {
      EXPECT_EQ(error.what(), c.message);
    }
  }
}

TEST(LibraryWriter, IndexPointsIntoTheVerseFile) {
  const LibraryTexts texts = MakeLibraryTexts(ParseVerses("Ge1:1 In\nGe1:2 And\nGe2:1 Thus\n1Sm2:3 Now", "in.txt"));
  EXPECT_EQ(texts.verses, "1\t1\t1\t1\tIn\r\n2\t1\t1\t2\tAnd\r\n3\t1\t2\t1\tThus\r\n4\t9\t2\t3\tNow\r\n");
  EXPECT_EQ(texts.index, "1,0,1,1,2,25,\"Gen\"\r\n2,25,1,2,1,14,\"Gen\"\r\n3,39,9,2,1,13,\"1Sa\"\r\n");
  EXPECT_EQ(texts.books, 2);
  EXPECT_EQ(texts.chapters, 3);
}

TEST_F(InFolder, LibraryIsAddedToOneThatIsThere) {
  WriteBytes(Path("SYSDEFS/TRANSLATIONS.TXT"), "1,0,\"Old\",\"OLD\"\r\n");
  WriteBytes(Path("SYSDEFS/Books_Dutch.txt"), "mine");
  WriteBytes(Path("Modules/Bible/OLD.TXT"), "old");
  WriteBytes(Path("Modules/Bible/kjv.txt"), "older");
  WriteLibrary({"Nuevo é", "KJV", Path("").string()}, MakeLibraryTexts(ParseVerses("Ge1:1 In", "in.txt")));

  EXPECT_EQ(
      FilesUnder(Path("")),
      (std::set<std::string>{"Index/KJV.TXT.INDEX", "Modules/Bible/OLD.TXT", "Modules/Bible/kjv.txt",
                             "SYSDEFS/BOOKS.TXT", "SYSDEFS/BOOKS_ENGLISH.TXT", "SYSDEFS/BOOKS_FRENCH.TXT",
                             "SYSDEFS/BOOKS_GERMAN.TXT", "SYSDEFS/BOOKS_ITALIAN.TXT", "SYSDEFS/BOOKS_PORTUGUESE.TXT",
                             "SYSDEFS/BOOKS_SPANISH.TXT", "SYSDEFS/Books_Dutch.txt", "SYSDEFS/TRANSLATIONS.TXT"}));
  EXPECT_EQ(ReadBytes(Path("SYSDEFS/TRANSLATIONS.TXT")), "1,0,\"Old\",\"OLD\"\r\n2,0,\"Nuevo \xE9\",\"KJV\"\r\n");
  EXPECT_EQ(ReadBytes(Path("SYSDEFS/Books_Dutch.txt")), "mine");
  EXPECT_EQ(ReadBytes(Path("SYSDEFS/BOOKS.TXT")), TitleFileText(TitleLanguages().front()));
  EXPECT_EQ(ReadBytes(Path("Modules/Bible/OLD.TXT")), "old");
  EXPECT_EQ(ReadBytes(Path("Modules/Bible/kjv.txt")), "1\t1\t1\t1\tIn\r\n");
  EXPECT_EQ(ReadBytes(Path("Index/KJV.TXT.INDEX")), "1,0,1,1,1,12,\"Gen\"\r\n");
}

TEST_F(InFolder, FileThatCannotBeWrittenIsNamed) {
  fs::create_directories(Path("taken"));
  try {
    WriteWholeFile(Path("taken"), "x");
    ADD_FAILURE() << "a folder was written over";
  } catch (const LibraryError& error) {
    EXPECT_TRUE(std::string(error.what()).starts_with(Path("taken").string() + ": cannot open it for writing: "));
  }
}

TEST_F(InFolder, RegistrationKeepsOtherSettings) {
  const fs::path settings = Path("config/Versalia.ini");
  WriteBytes(settings, "[Other]\nkey=value\n[Module_Path]\nVersaliaPath=/old/\n");
  RegisterLibrary(settings, "/a, b/é/");
  QSettings store(QString::fromStdString(settings.string()), QSettings::IniFormat);
  EXPECT_EQ(store.value("Module_Path/VersaliaPath").toString(), QString("/a, b/é/"));
  EXPECT_EQ(store.value("Module_Path/ModulePath").toString(), QString("/a, b/é/Modules/"));
  EXPECT_EQ(store.value("Other/key").toString(), QString("value"));
}

TEST_F(InFolder, RegistrationLeavesAFileThatIsNoIniFile) {
  const fs::path settings = Path("Versalia.ini");
  WriteBytes(settings, "garbage\n[x]\na=1\n");
  EXPECT_THROW(RegisterLibrary(settings, "/a/"), LibraryError);
  EXPECT_EQ(ReadBytes(settings), "garbage\n[x]\na=1\n");
}

TEST_F(InFolder, RegistrationNamesTheFolderThatItCannotMake) {
  WriteBytes(Path("config"), "x");
  try {
    RegisterLibrary(Path("config/Versalia.ini"), "/a/");
    ADD_FAILURE() << "a file was taken for a folder";
  } catch (const LibraryError& error) {
    EXPECT_EQ(error.what(), Path("config").string() + ": cannot make the folder: Not a directory");
  }
}

// Runs the program in the fixture's folder, with its settings in "config" there.
class Program : public InFolder {
 protected:
  int Run(const std::string& arguments) const {
    const std::string command = "cd '" + Path("").string() + "' && XDG_CONFIG_HOME=\"$PWD/config\" '" +
                                MAKE_LIBRARY_PROGRAM + "' " + arguments + " >out 2>err";
    const int status = std::system(command.c_str());
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }
};

TEST_F(Program, BuildsAndRegistersALibrary) {
  WriteBytes(Path("in.txt"), "Ge1:1 In\r\nGe1:2\r\n");
  ASSERT_EQ(Run("in.txt --name 'King James' --stem KJV --into 'lib/./x' --register"), 0) << ReadBytes(Path("err"));
  const std::string folder = Path("lib/x/").string();
  EXPECT_EQ(ReadBytes(Path("out")), "KJV: 1 books, 1 chapters, 2 verses (1 without text) in " + folder + "\n");
  EXPECT_EQ(ReadBytes(Path("err")), "make_library: note: not in the input: Exodus to Revelation\n");
  EXPECT_EQ(ReadBytes(Path("lib/x/Sysdefs/Translations.txt")), "1,0,\"King James\",\"KJV\"\r\n");
  EXPECT_EQ(ReadBytes(Path("config/Versalia.ini")),
            "[Module_Path]\nModulePath=" + folder + "Modules/\nVersaliaPath=" + folder + "\n");
  EXPECT_EQ(Run("--version"), 0);
  EXPECT_EQ(ReadBytes(Path("out")), "make_library " FOLIONET_VERSION "\n");
}

TEST_F(Program, RefusesAndWritesNothing) {
  WriteBytes(Path("in.txt"), "Ge1:1 In\n");
  WriteBytes(Path("bad.txt"), "Ge1:1 In\nhello\n");
  const std::string plain = ": expected a plain file stem, without any of / \\ : * ? \" < > |";
  const struct {
    std::string arguments;
    int status;
    std::string message;
  } kCases[] = {
      {"in.txt --name A --stem a/b --into lib", 2, "make_library: --stem: \"a/b\"" + plain},
      {"in.txt --name A --stem 'a\\b' --into lib", 2, "make_library: --stem: \"a\\b\"" + plain},
      {"in.txt --name A --stem '' --into lib", 2, "make_library: --stem: expected a text that is not empty"},
      {"in.txt --name A --stem .. --into lib", 2,
       "make_library: --stem: \"..\": expected a stem without a leading dot"},
      {"in.txt --name A --stem \"$(printf 'a\\tb')\" --into lib", 2,
       "make_library: --stem: expected a text without control characters"},
      {"in.txt --name Ω --stem a --into lib", 2,
       "make_library: --name: \"Ω\": expected characters of windows-1252, given as UTF-8"},
      {"in.txt --name A --stem a --into ''", 2,
       "make_library: --into: expected a folder, without control characters in its name"},
      {"in.txt --name A --stem a", 2, "--into is required"},
      {"bad.txt --name A --stem a --into lib --register", 3,
       "make_library: bad.txt:2: \"hello\": expected BOOK CHAPTER:VERSE TEXT, such as \"Ge1:1 In the beginning\""},
      {"none.txt --name A --stem a --into lib", 3, "make_library: none.txt: cannot open it: No such file or directory"},
      {"in.txt --name A --stem a --into in.txt", 3,
       "make_library: " + Path("in.txt/Sysdefs").string() + ": cannot make the folder: Not a directory"},
  };
  for (const auto& c : kCases) {
    EXPECT_EQ(Run(c.arguments), c.status) << c.arguments;
    const std::string said = ReadBytes(Path("err"));
    EXPECT_EQ(said.substr(0, said.find('\n')), c.message);
    EXPECT_EQ(FilesUnder(Path("")), (std::set<std::string>{"bad.txt", "err", "in.txt", "out"})) << c.arguments;
  }
}

}  // namespace
}  // namespace folionet::tools
