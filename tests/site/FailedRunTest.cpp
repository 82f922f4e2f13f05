#include <filesystem>
#include <string>
#include <vector>

#include "FailingRun.h"
#include "FolderContent.h"
#include "ProgramRun.h"

namespace folionet::test {
namespace {

namespace fs = std::filesystem;

const FailingRun kBadIndexes[] = {
    {"IndexIsMissing", kAll, Lacks(kChapterIndex), kFails,
     "INDEX File Not Found: Cannot find: " + kChapterIndex +
         ".\n"
         "Without this file Folionet cannot continue.\n"
         "To create this file run Versalia on 'King James Version' first.\n"
         "Folionet will now close.\n"
         "Then run this command again, or choose another translation with --translation NAME.\n"},
    {"IndexRecordIsShort", kAll, EndsWith(kChapterIndex, "0,0,67\r\n"), kFails,
     Report(62, "Input past end of file", "BooksInChapters",
            kChapterIndex + "\nLine 8\nA record of 7 fields was expected, 3 found: \"0,0,67\"")},
    {"IndexBookIsAWord", kAll, EndsWith(kChapterIndex, "0,0,Jude,1,25,0,x\r\n"), kFails,
     Report(13, "Type mismatch", "BooksInChapters", kChapterIndex + "\nLine 8\nA number was expected: \"Jude\"")},
    {"IndexHasMoreThan66Books", kAll,
     [](const TemporaryFolder& home) {
       std::string index;
       for (int book = 1; book <= 67; ++book) index += "0,0," + std::to_string(book) + ",1,1,0,x\r\n";
       home.Write(kChapterIndex, index);
     },
     kFails,
     Report(9, "Subscript out of range", "BooksInChapters",
            kChapterIndex + "\nLine 67\nThe index has more than 66 books; the 67th is \"67\"")},
    {"IndexIsBinary", kAll, Holds(kChapterIndex, std::string("\x00\x01\xFF\x00\n", 5)), kFails,
     Report(62, "Input past end of file", "BooksInChapters",
            kChapterIndex + "\nLine 1\nA record of 7 fields was expected, 1 found: \"??ÿ?\"")},
    {"IndexChapterIsTooLarge", kAll, EndsWith(kChapterIndex, "a,b,3,70000,25,f,g\r\n"), kFails,
     IndexReport(6, "Overflow", {"a", "b", "3", "70000", "25", "f", "g"},
                 kChapterIndex + "\nLine 8\nA number from 0 to 255 was expected: \"70000\"")},
    {"IndexVerseCountIsTooLarge", kAll, EndsWith(kChapterIndex, "a,b,3,2,256,f,g\r\n"), kFails,
     IndexReport(6, "Overflow", {"a", "b", "3", "2", "256", "f", "g"},
                 kChapterIndex + "\nLine 8\nA number from 0 to 255 was expected: \"256\"")},
    {"IndexVerseCountIsAWord", kAll, EndsWith(kChapterIndex, "a,b,3,2,many,f,g\r\n"), kFails,
     IndexReport(13, "Type mismatch", {"a", "b", "3", "2", "many", "f", "g"},
                 kChapterIndex + "\nLine 8\nA number was expected: \"many\"")},
};

INSTANTIATE_TEST_SUITE_P(BadIndex, Run, testing::ValuesIn(kBadIndexes), NameOf);

const FailingRun kBadVerses[] = {
    {"VerseLineHasNoTabs", kAll, EndsWith(kVerses, "no tabs\r\n"), kFails,
     CompileReport(5, "Invalid procedure call or argument", {"66", "1:2", "no tabs"},
                   kVerses + "\nLine 13\nFive fields separated by tabs were expected: \"no tabs\"")},
    {"VerseLineHasThreeTabs", kAll, EndsWith(kVerses, "1\t1\t1\ttext"), kFails,
     CompileReport(5, "Invalid procedure call or argument", {"66", "1:2", "1\t1\t1\ttext"},
                   kVerses + "\nLine 13\nFive fields separated by tabs were expected: \"1?1?1?text\"")},
    {"VerseLineIsBlank", kAll, EndsWith(kVerses, "\r\n"), kFails,
     CompileReport(5, "Invalid procedure call or argument", {"66", "1:2", ""},
                   kVerses + "\nLine 13\nFive fields separated by tabs were expected: \"\"")},
    {"VerseFileIsBinary", kAll,
     Holds(kVerses, std::string("\x1B"
                                "ELF\x00\x01\xFF",
                                7)),
     kFails,
     CompileReport(5, "Invalid procedure call or argument", {"", "", "?ELF??ÿ"},
                   kVerses + "\nLine 1\nFive fields separated by tabs were expected: \"?ELF??ÿ\"")},
    {"VerseBookIsZero", kAll, EndsWith(kVerses, "1\t0\t1\t1\ttext\r\n"), kFails,
     CompileReport(9, "Subscript out of range", {"0", "1:1", "text"},
                   kVerses + "\nLine 13\nA book from 1 to 66 was expected: \"0\"")},
    {"VerseBookIs67", kAll, EndsWith(kVerses, "1\t67\t1\t1\ttext\r\n"), kFails,
     CompileReport(9, "Subscript out of range", {"67", "1:1", "text"},
                   kVerses + "\nLine 13\nA book from 1 to 66 was expected: \"67\"")},
    {"FirstVerseBookIs67", kAll, Holds(kVerses, "1\t67\t1\t1\ttext\r\n"), kFails,
     CompileReport(9, "Subscript out of range", {"67", "1:1", "text"},
                   kVerses + "\nLine 1\nA book from 1 to 66 was expected: \"67\"")},
    {"VerseBookIsAWord", kAll, EndsWith(kVerses, "1\tJude\t1\t1\ttext\r\n"), kFails,
     CompileReport(13, "Type mismatch", {"Jude", "1:1", "text"},
                   kVerses + "\nLine 13\nThe number of a book was expected: \"Jude\"")},
    {"VerseChapterIs70000", kAll, EndsWith(kVerses, "1\t66\t70000\t1\ttext\r\n"), kFails,
     CompileReport(6, "Overflow", {"66", "70000:1", "text"},
                   kVerses + "\nLine 13\nA chapter from -32768 to 32767 was expected: \"70000\"")},
};

INSTANTIATE_TEST_SUITE_P(BadVerse, Run, testing::ValuesIn(kBadVerses), NameOf);

const FailingRun kBadPages[] = {
    {"AddressHasNoDot",
     {kOut, "--index-address=index"},
     {},
     kFails,
     CompileReport(5, "Invalid procedure call or argument", kNoVerse,
                   "index\nThe address of the index page has no \".\". Enter one such as index.html.")},
    {"TitleHasASlash", kAll, Says(kTitles, "Leviticus", "Levi/ticus"), kFails,
     CompileReport(52, "Bad file name or number",
                   {"3", "1:1", "And the LORD called unto Moses, and spake unto him out of the tabernacle."},
                   "out/levi/ticus_1.html\nChoose 8.3 file names or another address, for no page can have this name: "
                   "\"levi/ticus_1.html\"")},
    {"TitleLeadsOutOfTheFolder", kAll, Says(kTitles, "Genesis", "../genesis"), kFails,
     CompileReport(52, "Bad file name or number", kNoVerse,
                   "out/../genesis_1.html\nChoose 8.3 file names or another address, for no page can have this name: "
                   "\"../genesis_1.html\"")},
    {"AddressHasABackslash",
     {kOut, "--index-address=a\\index.html"},
     {},
     kFails,
     CompileReport(52, "Bad file name or number", {"66", "1:2", "Who bare record of the word of God."},
                   "out/a\\index.html\nChoose 8.3 file names or another address, for no page can have this name: "
                   "\"a\\index.html\"")},
    {"OutputFolderIsAFile", kAll, Holds("out", "a file"), kFails,
     CompileReport(75, "Path/File access error", kNoVerse, "out/\nFile exists")},
    {"OutputFolderIsBelowAFile",
     {"--output=file/out", kIndex},
     Holds("file", "a file"),
     kFails,
     CompileReport(76, "Path not found", kNoVerse, "file/out/\nNot a directory")},
    {"PageIsAFolder", kAll, IsFolder("out/exodus_1.html"), kFails,
     CompileReport(75, "Path/File access error",
                   {"2", "2:1", "And there went a man of the house of Levi, and took [to wife] a daughter of Levi."},
                   "out/exodus_1.html\nIs a directory")},
    {"PageIsALinkOutOfTheFolder", kAll,
     [](const TemporaryFolder& home) {
       home.Write("elsewhere.html", "not ours");
       fs::create_directories(home.Path() + "out");
       fs::create_symlink("../elsewhere.html", home.Path() + "out/genesis_2.html");
     },
     kFails,
     CompileReport(
         75, "Path/File access error",
         {"1", "3:1", "Now the serpent was more subtil than any beast of the field which the LORD God had made."},
         "out/genesis_2.html\nIt is a link that leads out of the output folder. Remove it and compile again.")},
    {"StyleSheetIsMissing",
     {kOut, kIndex, "--set=chkCSS=1"},
     {},
     kFails,
     CompileReport(53, "File not found", kNoVerse, "program/default.css\nNo such file or directory")},
    {"TitleHoldsItsOwnWord", kAll, Says(kTitles, "Exodus", "Exodus %bk%"), kFails,
     Report(5, "Invalid procedure call or argument", "Build Titles",
            "\"Read the %bible% %bk% %ch%:%vs% Online or make your own for ...\"\n%bk%\nThe replacement does not end. "
            "Its value: \"Exodus %bk%\"")},
    {"CharsetHasNoBlank",
     {kOut, kIndex, "--set=Charset=utf-8"},
     {},
     kFails,
     Report(5, "Invalid procedure call or argument", "Form Load - MAIN",
            "Charset\nA code, a blank and a description were expected: \"utf-8\"")},
    {"LanguageHasNoBlank",
     {kOut, kIndex, "--set=Lang=en"},
     {},
     kFails,
     Report(5, "Invalid procedure call or argument", "Form Load - MAIN",
            "Lang\nA code, a blank and a description were expected: \"en\"")},
};

INSTANTIATE_TEST_SUITE_P(BadPage, Run, testing::ValuesIn(kBadPages), NameOf);

TEST(FailedRun, LeavesThePagesThatWereWrittenBefore) {
  const TemporaryFolder home;
  MakeLibrary(home);
  EndsWith(kVerses, "no tabs")(home);
  EXPECT_EQ(RunCli(CompileArguments(kAll), home.Path()).status, kFails);
  FolderContent expected = ReadFolder(std::string(SITE_CASES) + "/defaults/expected");
  expected.erase("revelation_1.html");  // was being made
  expected.erase("index.html");
  EXPECT_EQ(DescribeDifference(expected, ReadFolder(home.Path() + "out")), "");
}

TEST(FailedRun, ReportsAPageThatDoesNotFitOnTheDisk) {
  const TemporaryFolder home;
  MakeLibrary(home);
  home.Write("program/CustomHeader.txt", std::string(20000, 'x'));
  std::string command = "ulimit -f 8; trap '' XFSZ; exec " FOLIONET_CLI;
  for (const std::string& argument : CompileArguments(kAll)) command += " " + argument;
  const ProgramResult run = RunProgram({"/bin/sh", "-c", command}, home.Path());
  EXPECT_EQ(run.errors,
            CompileReport(61, "Disk full",
                          {"1", "2:1", "Thus the heavens and the earth were finished, and all the host of them."},
                          "out/genesis_1.html\nFile too large"));
  EXPECT_EQ(run.status, kFails);
}

TEST(FailedRun, TellsThatItsResultCannotBeWritten) {
  const TemporaryFolder home;
  MakeLibrary(home);
  const ProgramResult run = RunCli(CompileArguments(kAll), home.Path(), "/dev/full");
  EXPECT_EQ(run.errors, "folionet-cli: standard output cannot be written\n");
  EXPECT_EQ(run.status, kFails);
}

TEST(CleanUp, PassesOverNamesThatLeadOutOfTheFolderAndCountsThem) {
  const TemporaryFolder home;
  MakeLibrary(home);
  Says(kTitles, "Genesis", "../genesis")(home);
  home.Write(kVerses, "1\t2\t1\t1\tNow these are the names.\r\n");
  home.Write("genesis_1.html", "not ours");
  const ProgramResult run = RunCli(CompileArguments({kOut, kIndex, "--start-book=2"}), home.Path());
  EXPECT_EQ(run.output, "Compilation Complete!\n2 HTML pages created.\n3 pages removed\nRemaining pages -1\n");
  EXPECT_EQ(run.errors, "");
  EXPECT_EQ(ReadFile(home.Path() + "genesis_1.html"), "not ours");
}

}  // namespace
}  // namespace folionet::test
