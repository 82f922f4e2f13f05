#include <gtest/gtest.h>

#include "BookTitles.h"
#include "RecordingUi.h"
#include "RunTimeError.h"
#include "TinyLibrary.h"

namespace folionet {
namespace {

using test::TinyLibrary;
using Texts = std::vector<std::string>;

TEST(BookTitlesTest, TakesTheSecondAndTheLastField) {
  TinyLibrary library;
  std::string lines = test::TitleLines() + "67\tX\tNever read\nbad line\n";
  lines.replace(0, lines.find("\r\n"), "1\tGen\tx\ty\tFirst Moses");
  library.folder.Write("Sysdefs/Books.txt", "\xEF\xBB\xBF" + lines);
  for (int i = 0; i < 2; ++i) {
    ReadBookTitles(library.glob, "BOOKS.TXT");
    EXPECT_EQ(library.glob.cboStartBook.size(), 66U);
    EXPECT_EQ(library.glob.cboEndBook, library.glob.cboStartBook);
    EXPECT_EQ(library.glob.cboStartBook[0], "First Moses");
    EXPECT_EQ(library.glob.BookCodes[1], "Gen");
    EXPECT_EQ(library.glob.BookCodes[66], "B66");
  }
}

TEST(BookTitlesTest, RefusesBadFiles) {
  const struct {
    std::string lines;
    int number;
    std::string extra;
  } cases[] = {
      {test::TitleLines(65), kInputPastEnd, "FILE\r\nThe titles of 66 books were expected, 65 found."},
      {"", kInputPastEnd, "FILE\r\nThe titles of 66 books were expected, 0 found."},
      {test::TitleLines(3) + "Numbers\n", kInvalidProcedureCall,
       "FILE\r\nLine 4\r\nThree fields separated by tabs were expected: \"Numbers\""},
      {"1\tGenesis\n", kInvalidProcedureCall,
       "FILE\r\nLine 1\r\nThree fields separated by tabs were expected: \"1?Genesis\""},
  };
  for (const auto& c : cases) {
    TinyLibrary library;
    std::string extra = c.extra;
    extra.replace(0, 4, library.folder.Write("Sysdefs/BOOKS.TXT", c.lines));
    try {
      ReadBookTitles(library.glob, "BOOKS.TXT");
      ADD_FAILURE() << extra;
    } catch (const RunTimeError& error) {
      EXPECT_EQ(error.Number(), c.number);
      EXPECT_EQ(error.Extra(), extra);
    }
  }
  TinyLibrary library;
  EXPECT_THROW(ReadBookTitles(library.glob, "../BOOKS.TXT"), RunTimeError);
}

TEST(BookTitlesTest, ListsLanguageFilesInAnyLetterCase) {
  TinyLibrary library;
  for (const char* name : {"BOOKS_b.txt", "books_A.TXT", "BOOKS.TXT", "BOOKS_.txt.bak", "XBOOKS_c.txt"}) {
    library.folder.Write(std::string("SYSDEFS/") + name, "");
  }
  test::RecordingUi ui;
  EXPECT_EQ(GetLang(library.glob, ui), Outcome::kDone);
  EXPECT_EQ(library.glob.cboLang, (Texts{"books_A.TXT", "BOOKS_b.txt"}));
  EXPECT_TRUE(ui.said.empty());
}

TEST(BookTitlesTest, ReportsThatThereIsNoLanguageFile) {
  TinyLibrary library;
  test::RecordingUi ui;
  EXPECT_EQ(GetLang(library.glob, ui), Outcome::kReported);
  EXPECT_EQ(ui.said,
            Texts{"53 GetLang: No Language Definition file found\r\n" + library.folder.Path() + "Sysdefs/BOOKS_*.txt"});
}

}  // namespace
}  // namespace folionet
