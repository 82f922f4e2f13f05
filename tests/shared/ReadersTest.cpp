#include <gtest/gtest.h>

#include <array>
#include <vector>

#include "LineReader.h"
#include "RecordReader.h"
#include "RunTimeError.h"
#include "TemporaryFolder.h"

namespace folionet {
namespace {

using Lines = std::vector<std::string>;

Lines ReadLines(const std::string& path) {
  LineReader reader(path);
  Lines lines;
  std::string_view line;
  while (reader.Next(line)) lines.emplace_back(line);
  return lines;
}

TEST(LineReaderTest, SplitsAtCrLfAndLf) {
  const test::TemporaryFolder folder;
  const std::string longLine(300000, 'x');
  const struct {
    std::string bytes;
    Lines lines;
  } cases[] = {
      {"", {}},
      {"a\r\nb\nc", {"a", "b", "c"}},
      {"a\n\n\r\n", {"a", "", ""}},
      {"\xEF\xBB\xBF"
       "a\n",
       {"a"}},
      {"a\rb\r\r\n", {"a\rb\r"}},
      {std::string("a\0b\n", 4), {std::string("a\0b", 3)}},
      {"x\n" + longLine + "\r\ny", {"x", longLine, "y"}},
  };
  for (const auto& c : cases) EXPECT_EQ(ReadLines(folder.Write("file", c.bytes)), c.lines);
}

TEST(LineReaderTest, RefusesWhatIsNoTextFile) {
  const test::TemporaryFolder folder;
  const std::string longLine = folder.Write("long", "a\n" + std::string(LineReader::kLongestLine + 200000, 'x'));
  const struct {
    std::string path;
    int number;
    std::string extra;
  } cases[] = {
      {folder.Path() + "none", kFileNotFound, folder.Path() + "none\r\nNo such file or directory"},
      {folder.Path() + "no/file", kPathNotFound, folder.Path() + "no/file\r\nNo such file or directory"},
      {folder.Path(), kPathFileAccessError, folder.Path() + "\r\nIt is not a regular file."},
      {"/dev/zero", kPathFileAccessError, "/dev/zero\r\nIt is not a regular file."},
      {longLine, kOutOfMemory, longLine + "\r\nLine 2\r\nThe line is longer than 4194304 bytes."},
  };
  for (const auto& c : cases) {
    try {
      ReadLines(c.path);
      ADD_FAILURE() << c.path << " was read";
    } catch (const RunTimeError& error) {
      EXPECT_EQ(error.Number(), c.number);
      EXPECT_EQ(error.Extra(), c.extra);
    }
  }
}

TEST(RecordReaderTest, ReadsFieldsQuotedOrNot) {
  const test::TemporaryFolder folder;
  const std::string path = folder.Write("file",
                                        "1,\"a, b\",c\r\n"
                                        "\r\n"
                                        "  2 , \"say \"\"x\"\"\" , c d \n"
                                        ",\"\",\n"
                                        "3,in \"the\" middle,");
  RecordReader reader(path);
  const std::vector<std::array<std::string, 3>> expected{
      {"1", "a, b", "c"}, {"2", "say \"x\"", "c d"}, {"", "", ""}, {"3", "in \"the\" middle", ""}};
  std::array<std::string, 3> fields;
  for (const auto& record : expected) {
    ASSERT_TRUE(reader.Next(fields));
    EXPECT_EQ(fields, record);
  }
  EXPECT_FALSE(reader.Next(fields));
}

TEST(RecordReaderTest, NamesLineAndFaultAndGoesOn) {
  const test::TemporaryFolder folder;
  const struct {
    const char* record;
    int number;
    const char* detail;
  } cases[] = {
      {"1,2", kInputPastEnd, "A record of 3 fields was expected, 2 found: \"1,2\""},
      {"1,\"2,3", kInputPastEnd, "A quoted field is not closed: \"1,\"2,3\""},
      {"1,2,3,4", kInvalidProcedureCall, "A record of 3 fields was expected, more found: \"1,2,3,4\""},
      {"1,\"2\"x,3", kInvalidProcedureCall, "Text follows the closing quote of a field: \"1,\"2\"x,3\""},
  };
  for (const auto& c : cases) {
    RecordReader reader(folder.Write("file", std::string("a,b,c\n") + c.record + "\nd,e,f\n"));
    std::array<std::string, 3> fields;
    ASSERT_TRUE(reader.Next(fields));
    try {
      reader.Next(fields);
      ADD_FAILURE() << c.record;
    } catch (const RunTimeError& error) {
      EXPECT_EQ(error.Number(), c.number) << c.record;
      EXPECT_EQ(error.Line(), 2U);
      EXPECT_EQ(error.Detail(), c.detail);
    }
    ASSERT_TRUE(reader.Next(fields));
    EXPECT_EQ(fields[2], "f");
  }
}

TEST(RecordReaderTest, ReadsBackWhatIsWrittenQuoted) {
  const test::TemporaryFolder folder;
  const std::array<std::string, 2> written{"a,\"b\"", " (x) "};
  EXPECT_EQ(QuotedRecord(written), "\"a,\"\"b\"\"\",\" (x) \"\r\n");
  RecordReader reader(folder.Write("file", QuotedRecord(written)));
  std::array<std::string, 2> fields;
  ASSERT_TRUE(reader.Next(fields));
  EXPECT_EQ(fields, written);
}

}  // namespace
}  // namespace folionet
