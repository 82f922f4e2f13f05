#include <gtest/gtest.h>

#include "RunTimeError.h"
#include "TemporaryFolder.h"
#include "VerseFileReader.h"

namespace folionet {
namespace {

TEST(VerseFileReaderTest, SplitsALineAtItsFirstThreeTabsAndItsLast) {
  const test::TemporaryFolder folder;
  VerseFileReader reader(folder.Write("file",
                                      "\xEF\xBB\xBF"
                                      "7\t1\t2\t3\tIn the beginning\r\n"
                                      "\t 66 \t007\ta\tb\t\n"
                                      "x\t1\t-1\t\ttext, <b>\"quoted\"</b>"));
  const struct {
    int book;
    int chapter;
    const char* chapterField;
    const char* verse;
    const char* text;
  } expected[] = {
      {1, 2, "2", "3", "In the beginning"}, {66, 7, "007", "a\tb", ""}, {1, -1, "-1", "", "text, <b>\"quoted\"</b>"}};
  Verse verse;
  for (const auto& e : expected) {
    ASSERT_TRUE(reader.Next(verse));
    EXPECT_EQ(verse.book, e.book);
    EXPECT_EQ(verse.chapter, e.chapter);
    EXPECT_EQ(verse.chapterField, e.chapterField);
    EXPECT_EQ(verse.verse, e.verse);
    EXPECT_EQ(verse.text, e.text);
  }
  EXPECT_FALSE(reader.Next(verse));
}

TEST(VerseFileReaderTest, NamesLineAndFaultAndGoesOn) {
  const struct {
    const char* line;
    int number;
    const char* detail;
  } cases[] = {
      {"In the beginning", kInvalidProcedureCall, "Five fields separated by tabs were expected: \"In the beginning\""},
      {"", kInvalidProcedureCall, "Five fields separated by tabs were expected: \"\""},
      {"\t\t\t", kInvalidProcedureCall, "Five fields separated by tabs were expected: \"???\""},
      {"1\t1\t1\t1", kInvalidProcedureCall, "Five fields separated by tabs were expected: \"1?1?1?1\""},
      {"1\t0\t1\t1\tx", kSubscriptOutOfRange, "A book from 1 to 66 was expected: \"0\""},
      {"1\t67\t1\t1\tx", kSubscriptOutOfRange, "A book from 1 to 66 was expected: \"67\""},
      {"1\t-1\t1\t1\tx", kSubscriptOutOfRange, "A book from 1 to 66 was expected: \"-1\""},
      {"1\tGen\t1\t1\tx", kTypeMismatch, "The number of a book was expected: \"Gen\""},
      {"1\t1\t\t1\tx", kTypeMismatch, "The number of a chapter was expected: \"\""},
      {"1\t1\t70000\t1\tx", kOverflow, "A chapter from -32768 to 32767 was expected: \"70000\""},
  };
  const test::TemporaryFolder folder;
  for (const auto& c : cases) {
    VerseFileReader reader(folder.Write("file", std::string("1\t2\t3\t4\tx\n") + c.line + "\n1\t2\t3\t5\tx\n"));
    Verse verse;
    ASSERT_TRUE(reader.Next(verse));
    try {
      reader.Next(verse);
      ADD_FAILURE() << c.line;
    } catch (const RunTimeError& error) {
      EXPECT_EQ(error.Number(), c.number) << c.line;
      EXPECT_EQ(error.Line(), 2U);
      EXPECT_EQ(error.Detail(), c.detail);
    }
    ASSERT_TRUE(reader.Next(verse));
    EXPECT_EQ(verse.book, 2);
  }
}

}  // namespace
}  // namespace folionet
