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
  LineReader reader(path, Subject::kNone);
  Lines lines;
  std::string_view line;
  while (reader.Next(line)) lines.emplace_back(line);
  return lines;
}

TEST(LineReaderTest, SplitsAtTheEndsOfTheFirstLine) {
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
      {"a\r\r\nb\rc\r\n", {"a", "b\rc"}},
      {"a\rb\r\nc\r\n", {"a", "b", "c"}},
      {"a\rb", {"a", "b"}},
      {"a\n\x1A\x1A", {"a"}},
      {"a\n" + std::string(70000, '\x1A'), {"a"}},
      {std::string("a\0b\n", 4), {std::string("a\0b", 3)}},
      {"x\n" + longLine + "\r\ny", {"x", longLine, "y"}},
  };
  for (const auto& c : cases) EXPECT_EQ(ReadLines(folder.Write("file", c.bytes)), c.lines);
}

TEST(RecordReaderTest, ReadsFieldsQuotedOrNot) {
  const test::TemporaryFolder folder;
  const std::string path = folder.Write("file",
                                        "1,\"a, b\",c\r\n"
                                        "\r\n"
                                        "  2 , \"say \"\"x\"\"\" , c d \n"
                                        ",\"\",\n"
                                        "3,in \"the\" middle,");
  RecordReader reader(path, Subject::kNone);
  const std::vector<std::array<std::string_view, 3>> expected{
      {"1", "a, b", "c"}, {"2", "say \"x\"", "c d"}, {"", "", ""}, {"3", "in \"the\" middle", ""}};
  std::array<std::string_view, 3> fields;
  for (const auto& record : expected) {
    ASSERT_TRUE(reader.Next(fields));
    EXPECT_EQ(fields, record);
  }
  EXPECT_FALSE(reader.Next(fields));
}

}  // namespace
}  // namespace folionet
