#include <gtest/gtest.h>

#include <filesystem>

#include "FolderContent.h"
#include "Library.h"
#include "ProgramRun.h"

namespace folionet::test {
namespace {

constexpr char kTitles[] = "Sysdefs/BOOKS.TXT";
constexpr char kCatalogue[] = "Sysdefs/Translations.txt";
constexpr char kIndex[] = "Index/ONE.TXT.INDEX";
constexpr char kText[] = "Modules/Bible/ONE.TXT";

// Each edit makes exactly the faults of its row; "@" stands for the library's folder.
struct Row {
  const char* file;
  std::string piece;
  std::string by;
  std::string faults;
};

const Row kRows[] = {
    {kCatalogue, "\"ONE\"\r\n", "\"ONE\"\r\n2,0,Two\r\nx,0,Three,C\r\n3,0,Four,../D\r\n4,0,Five,GONE\r\n",
     "@Sysdefs/Translations.txt:2: Input past end of file. A record of 4 fields was expected, 3 found: \"2,0,Two\"\n"
     "@Sysdefs/Translations.txt:3: Type mismatch. A number was expected: \"x\"\n"
     "@Sysdefs/Translations.txt:4: Bad file name or number. A file name without a folder was expected: \"../D\"\n"
     "@Sysdefs/Translations.txt:5: The text of \"Five\" is missing: @Modules/Bible/GONE.TXT\n"},
    {kCatalogue, "A Bible", "A \x81 Bible",
     "@Sysdefs/Translations.txt:1: The charset windows-1252 does not hold the byte 0x81 at column 3.\n"},
    {kTitles, "2\tB2\tBook 2\r\n", "2 Book 2\r\n",
     "@Sysdefs/BOOKS.TXT:2: Invalid procedure call or argument. Three fields separated by tabs were expected: \"2 Book "
     "2\"\n"},
    {kTitles, "66\tB66\tBook 66\r\n", "", "@Sysdefs/BOOKS.TXT: The titles of 66 books were expected, 65 found.\n"},
    {kTitles, "\tBook 3\r", "\tBook 2\r",
     "@Sysdefs/BOOKS.TXT:3: Books 2 and 3 have the same page names, such as book_2_1.html\n"},
    {kTitles, "\tBook 3\r", "\tBOOK_2\r",
     "@Sysdefs/BOOKS.TXT:3: Books 2 and 3 have the same page names, such as book_2_1.html\n"},
    {kTitles, "\tBook 3\r", "\tGen/Ex\r", "@Sysdefs/BOOKS.TXT:3: The title cannot be a file name: \"Gen/Ex\"\n"},
    {kIndex, "0,0,5,1,2,0,\"\"\r\n", "0,0,5\r\n",
     "@Index/ONE.TXT.INDEX:5: Input past end of file. A record of 7 fields was expected, 3 found: \"0,0,5\"\n"
     "@Index/ONE.TXT.INDEX:6: Missing: book 5\n"
     "@Modules/Bible/ONE.TXT:9: Book 5 chapter 1 stands in the text but not in the index.\n"},
    {kIndex, "0,0,5,1,2,", "0,0,5,1,300,",
     "@Index/ONE.TXT.INDEX:5: Overflow. A number from 0 to 255 was expected: \"300\"\n"
     "@Index/ONE.TXT.INDEX:6: Missing: book 5\n"
     "@Modules/Bible/ONE.TXT:9: Book 5 chapter 1 stands in the text but not in the index.\n"},
    {kIndex, "0,0,5,1,2,", "0,0,5,1,3,",
     "@Index/ONE.TXT.INDEX:5: Book 5 chapter 1 has 3 verses in the index, 2 in the text.\n"},
    {kIndex, "0,0,5,1,2,0,\"\"\r\n", "0,0,5,1,2,0,\"\"\r\n0,0,5,1,2,0,\"\"\r\n0,0,5,4,2,0,\"\"\r\n0,0,0,1,2,0,\"\"\r\n",
     "@Index/ONE.TXT.INDEX:6: Book 5 chapter 1 is doubled: it began on line 5\n"
     "@Index/ONE.TXT.INDEX:7: Missing: book 5 chapter 2 to 3\n"
     "@Index/ONE.TXT.INDEX:8: A book from 1 to 66 was expected: 0\n"
     "@Index/ONE.TXT.INDEX:7: Book 5 chapter 4 stands in the index but not in the text.\n"},
    {kText, "0\t3\t1\t2\tText\r\n", "\r\n0\t3\t1\tb\tText\r\n0\t67\t1\t1\tText\r\n",
     "@Modules/Bible/ONE.TXT:6: Invalid procedure call or argument. Five fields separated by tabs were expected: \"\"\n"
     "@Modules/Bible/ONE.TXT:7: Book 3 chapter 1: The number of a verse was expected: \"b\"\n"
     "@Modules/Bible/ONE.TXT:8: Subscript out of range. A book from 1 to 66 was expected: \"67\"\n"},
    {kText, "0\t3\t1\t1\tText\r\n", "0\t3\t1\t4\tText\r\n",
     "@Modules/Bible/ONE.TXT:5: Book 3 chapter 1: Missing: verse 1 to 3\n"
     "@Modules/Bible/ONE.TXT:6: Book 3 chapter 1: Verse 2 is out of order.\n"},
    {kText, "0\t3\t1\t2\tText\r\n", "0\t3\t1\t1\tText\r\n",
     "@Modules/Bible/ONE.TXT:6: Book 3 chapter 1: Verse 1 is doubled.\n"},
    {kText, "0\t66\t1\t2\tText\r\n", "0\t66\t1\t2\tText\r\n0\t1\t2\t1\tText\r\n",
     "@Modules/Bible/ONE.TXT:133: Book 1 chapter 2 is out of order: it follows Book 66 chapter 1\n"
     "@Modules/Bible/ONE.TXT:133: Book 1 chapter 2 stands in the text but not in the index.\n"},
};

std::string WithPath(std::string text, const std::string& path) {
  for (std::size_t at = text.find('@'); at != std::string::npos; at = text.find('@', at + path.size())) {
    text.replace(at, 1, path);
  }
  return text;
}

ProgramResult Check(const Library& library, std::vector<std::string> more = {}) {
  more.insert(more.begin(), {"check", "--versalia-path", library.Path()});
  return RunCli(more, library.home.Path());
}

TEST(CheckTest, NamesEachFaultWithFileAndLineAndChangesNothing) {
  for (const Row& row : kRows) {
    const Library library;
    library.Edit(row.file, row.piece, row.by);
    const FolderContent before = ReadFolder(library.Path());
    const ProgramResult result = Check(library);
    const auto count = std::count(row.faults.begin(), row.faults.end(), '\n');
    EXPECT_EQ(result.output, WithPath(row.faults, library.Path()) + std::to_string(count) +
                                 (count == 1 ? " fault found.\n" : " faults found.\n"));
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.status, count == 0 ? 0 : 1);
    EXPECT_EQ(ReadFolder(library.Path()), before);
  }
}

TEST(CheckTest, NamesBytesThatTheDeclaredCharsetDoesNotHold) {
  const Library library;
  library.Edit(kText, "0\t4\t1\t1\tText", "0\t4\t1\t1\tT\xE9xt");
  library.Edit(kTitles, "\tBook 7\r", "\t\xE9\r");
  library.home.Write("config/Folionet.ini", "[Keys]\nCharset=utf-8 (Unicode)\n");
  EXPECT_EQ(Check(library).output, WithPath("@Sysdefs/BOOKS.TXT:7: The charset utf-8 does not hold the byte 0xE9 at "
                                            "column 6.\n"
                                            "@Modules/Bible/ONE.TXT:7: The charset utf-8 does not hold the byte 0xE9 "
                                            "at column 2.\n2 faults found.\n",
                                            library.Path()));
}

TEST(CheckTest, NamesFilesInAnotherLetterCase) {
  const Library library;
  std::filesystem::rename(library.Path("Sysdefs"), library.Path("SYSDEFS"));
  std::filesystem::rename(library.Path("Modules/Bible/ONE.TXT"), library.Path("Modules/Bible/one.txt"));
  EXPECT_EQ(Check(library).output,
            WithPath("@SYSDEFS/Translations.txt: The name is found only in another letter case; it should be "
                     "@Sysdefs/Translations.txt\n"
                     "@Modules/Bible/one.txt: The name is found only in another letter case; it should be "
                     "@Modules/Bible/ONE.TXT\n"
                     "@SYSDEFS/BOOKS.TXT: The name is found only in another letter case; it should be "
                     "@Sysdefs/BOOKS.TXT\n3 faults found.\n",
                     library.Path()));
}

TEST(CheckTest, NamesMissingFilesAndOneTranslationOnly) {
  const Library library;
  library.home.Write("library/Modules/Bible/TWO.TXT", "");
  library.Edit(kCatalogue, "\"ONE\"\r\n", "\"ONE\"\r\n2,0,Two,TWO\r\n");
  EXPECT_EQ(Check(library, {"--translation", "one"}).output, "0 faults found.\n");
  EXPECT_EQ(Check(library, {"--translation", "Two"}).output,
            WithPath("@Index/TWO.TXT.INDEX: The chapter index is missing. Versalia makes it at the first search in "
                     "this translation.\n@Modules/Bible/TWO.TXT: Missing: book 1 to 66\n2 faults found.\n",
                     library.Path()));
  std::filesystem::remove_all(library.Path("Sysdefs"));
  EXPECT_EQ(Check(library).output, WithPath("@Sysdefs/Translations.txt: Path not found. No such file or directory\n"
                                            "@Sysdefs/BOOKS.TXT: Path not found. No such file or directory\n"
                                            "2 faults found.\n",
                                            library.Path()));
}

}  // namespace
}  // namespace folionet::test
