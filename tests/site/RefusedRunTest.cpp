#include <filesystem>
#include <string>
#include <vector>

#include "FailingRun.h"
#include "FolderContent.h"
#include "ProgramRun.h"

namespace folionet::test {
namespace {

namespace fs = std::filesystem;

// What the command line says to do next, after the words of the box.
const std::string kGiveOutput = "Give one with --output FOLDER.\n";
const std::string kGiveTranslation =
    "Choose another with --translation NAME; \"folionet-cli list translations\" shows them.\n";
const std::string kGiveAddress = "Give the name or address of the index page, such as --index-address index.html.\n";
const std::string kGiveLanguage = "Give one with --language-file NAME; \"folionet-cli list languages\" shows them.\n";
const std::string kGiveLongName =
    "Give an address such as --index-address index.html, or short names with --set Use83=1.\n";
const std::string kGiveShortName =
    "Give an address such as --index-address index.htm, or long names with --set Use83=0.\n";
const std::string kSeeCheck = "No translation has its text where Versalia keeps it: see \"folionet-cli check\".\n";

const FailingRun kRefused[] = {
    {"NoOutputFolderComesFirst",
     {"--language-file=Default"},
     [](const TemporaryFolder& home) {
       Says(kCatalogue, "King James Version", "txtBibleSel")(home);
       home.Write("installation/Sysdefs/Default", home.Read(kTitles));
     },
     kIsRefused,
     "No Path: No Output path Selected.\n" + kGiveOutput},
    {"NoOutputFolderThoughAStyleSheetIsWanted",
     {"--set=chkCSS=1"},
     Holds("program/default.css", "p {}"),
     kIsRefused,
     "No Path: No Output path Selected.\n" + kGiveOutput},
    {"NoBibleComesSecond",
     {kOut},
     Says(kCatalogue, "King James Version", "txtBibleSel"),
     kIsRefused,
     "No Bible: No Bible Selected.\n" + kGiveTranslation},
    {"NoIndexAddressComesThird",
     {kOut, "--language-file=Default"},
     [](const TemporaryFolder& home) { home.Write("installation/Sysdefs/Default", home.Read(kTitles)); },
     kIsRefused,
     "No HTTP Root: No HTTP root has been entered.\n" + kGiveAddress},
    {"NoLanguageComesFourth",
     {kOut, "--index-address=index", "--language-file=Default"},
     [](const TemporaryFolder& home) { home.Write("installation/Sysdefs/Default", home.Read(kTitles)); },
     kIsRefused,
     "Language not selected: Please select a language for the Book Titles first\n" + kGiveLanguage},
    {"LongExtensionMustBeHtml",
     {kOut, "--index-address=http://example.org/index.htm"},
     {},
     kIsRefused,
     "Not a valid long file extension: \"htm\" is not a valid long filename extension. It must be \"html\"\n"
     "Please correct and try again.\n" +
         kGiveLongName},
    {"LongExtensionMustBeInLowerCase",
     {kOut, "--index-address=index.HTML"},
     {},
     kIsRefused,
     "Not a valid long file extension: \"HTML\" is not a valid long filename extension. It must be \"html\"\n"
     "Please correct and try again.\n" +
         kGiveLongName},
    {"LongExtensionEndsInASlash",
     {kOut, "--index-address=http://example.org/bible/"},
     {},
     kIsRefused,
     "Not a valid long file extension: \"org/bible/\" is not a valid long filename extension. It must be \"html\"\n"
     "Please correct and try again.\n" +
         kGiveLongName},
    {"ShortNameIsTooLong",
     {kOut, "--set=Use83=1", "--index-address=http://example.org/a/welcome01.htm"},
     {},
     kIsRefused,
     "8.3 filename error: Either \"welcome01\" is an illegal 8.3 filename or \n\"htm\" is. Please correct.\n" +
         kGiveShortName},
    {"ShortExtensionMustBeHtm",
     {kOut, "--set=Use83=1", kIndex},
     {},
     kIsRefused,
     "8.3 filename error: Either \"index\" is an illegal 8.3 filename or \n\"html\" is. Please correct.\n" +
         kGiveShortName},
    {"ShortExtensionMustBeInLowerCase",
     {kOut, "--set=Use83=1", "--index-address=index.HTM"},
     {},
     kIsRefused,
     "8.3 filename error: Either \"index\" is an illegal 8.3 filename or \n\"HTM\" is. Please correct.\n" +
         kGiveShortName},
    {"NoTranslationComesAfterTheAddress",
     {kOut, "--index-address=index.htm"},
     Holds(kCatalogue, ""),
     kIsRefused,
     "Not a valid long file extension: \"htm\" is not a valid long filename extension. It must be \"html\"\n"
     "Please correct and try again.\n" +
         kGiveLongName},
    {"NoTranslation",
     {kOut, kIndex},
     Holds(kCatalogue, ""),
     kIsRefused,
     "No Bible Selected: Please Select a Bible to compile first\n" + kSeeCheck},
    {"NoTranslationWithAVerseFile",
     {kOut, kIndex},
     Lacks(kVerses),
     kIsRefused,
     "No Bible Selected: Please Select a Bible to compile first\n" + kSeeCheck},
    {"VerseFileIsAFolder", kAll, IsFolder(kVerses), kIsRefused,
     "No Bible Selected: Please Select a Bible to compile first\n" + kSeeCheck},
};

INSTANTIATE_TEST_SUITE_P(Refused, Run, testing::ValuesIn(kRefused), NameOf);

const FailingRun kBadLists[] = {
    {"InstallationIsMissing", kAll, Lacks("installation"), kFails,
     ListReport(76, "Path not found", kCatalogue + "\nNo such file or directory")},
    {"CatalogueIsMissing", kAll, Lacks(kCatalogue), kFails,
     ListReport(53, "File not found", kCatalogue + "\nNo such file or directory")},
    {"CatalogueIsAFolder", kAll, IsFolder(kCatalogue), kFails,
     ListReport(75, "Path/File access error", kCatalogue + "\nIt is not a regular file.")},
    {"CatalogueIsCut", kAll, EndsWith(kCatalogue, "1,0,\"Cut"), kFails,
     ListReport(62, "Input past end of file", kCatalogue + "\nLine 6\nA quoted field is not closed: \"1,0,\"Cut\"")},
    {"CatalogueRecordIsShort", kAll, EndsWith(kCatalogue, "1,0,Short\r\n"), kFails,
     ListReport(62, "Input past end of file",
                kCatalogue + "\nLine 6\nA record of 4 fields was expected, 3 found: \"1,0,Short\"")},
    {"CatalogueNumberIsAWord", kAll, EndsWith(kCatalogue, "one,0,Word,KJV\r\n"), kFails,
     ListReport(13, "Type mismatch", kCatalogue + "\nLine 6\nA number was expected: \"one\"")},
    {"TitlesAreMissing", kAll, Lacks(kTitles), kFails,
     ListReport(53, "File not found", kTitles + "\nNo such file or directory")},
    {"TitlesEndEarly", kAll, Holds(kTitles, "1\tGEN\tGenesis\r\n2\tEXO\tExodus\r\n"), kFails,
     ListReport(62, "Input past end of file", kTitles + "\nThe titles of 66 books were expected, 2 found.")},
    {"TitleLineHasNoTabs", kAll, Says(kTitles, "2\tEXO\tExodus", "2 EXO Exodus"), kFails,
     ListReport(5, "Invalid procedure call or argument",
                kTitles + "\nLine 2\nThree fields separated by tabs were expected: \"2 EXO Exodus\"")},
};

INSTANTIATE_TEST_SUITE_P(BadList, Run, testing::ValuesIn(kBadLists), NameOf);

TEST(RefusedRun, HasCopiedTheStyleSheetAlready) {
  const TemporaryFolder home;
  MakeLibrary(home);
  home.Write("program/default.css", "p { margin: 0 }");
  const ProgramResult run = RunCli(CompileArguments({kOut, "--set=chkCSS=1"}), home.Path());
  EXPECT_EQ(run.errors, "No HTTP Root: No HTTP root has been entered.\n" + kGiveAddress);
  EXPECT_EQ(run.status, kIsRefused);
  EXPECT_EQ(ReadFolder(home.Path() + "out"), (FolderContent{{"default.css", "p { margin: 0 }\r\n"}}));
}

TEST(RefusedRun, MakesNoOutputFolder) {
  const TemporaryFolder home;
  MakeLibrary(home);
  EXPECT_EQ(RunCli(CompileArguments({kOut}), home.Path()).status, kIsRefused);
  EXPECT_FALSE(fs::exists(home.Path() + "out"));
}

}  // namespace
}  // namespace folionet::test
