#include <gtest/gtest.h>

#include "Numbers.h"
#include "RunTimeError.h"

namespace folionet {
namespace {

TEST(NumbersTest, ReadsDecimalIntegersOnly) {
  const struct {
    const char* text;
    std::int64_t value;
    int error;
  } cases[] = {
      {"7", 7, 0},
      {" \t7 ", 7, 0},
      {"-3", -3, 0},
      {"+3", 3, 0},
      {"007", 7, 0},
      {"", 0, kTypeMismatch},
      {" ", 0, kTypeMismatch},
      {"x1", 0, kTypeMismatch},
      {"1x", 0, kTypeMismatch},
      {"1 2", 0, kTypeMismatch},
      {"1.0", 0, kTypeMismatch},
      {"+-3", 0, kTypeMismatch},
      {"70000", 0, kOverflow},
      {"99999999999999999999", 0, kOverflow},
      {"-32769", 0, kOverflow},
  };
  for (const auto& c : cases) {
    const IntegerReading reading = ReadInteger(c.text, kInt16Min, kInt16Max);
    EXPECT_EQ(reading.error, c.error) << c.text;
    EXPECT_EQ(reading.value, c.value) << c.text;
  }
}

TEST(NumbersTest, RoundsHalvesToTheEvenNeighbour) {
  const struct {
    double value;
    double rounded;
  } cases[] = {{1.5, 2}, {2.5, 2}, {0.5, 0}, {-0.5, 0}, {-1.5, -2}, {2.4, 2}, {2.6, 3}, {-1, -1}};
  for (const auto& c : cases) EXPECT_EQ(RoundHalfEven(c.value), c.rounded) << c.value;
}

TEST(NumbersTest, TakesTheNumberThatATextBeginsWith) {
  const struct {
    const char* text;
    std::optional<std::int16_t> value;
  } cases[] = {{"12abc", 12},       {"", 0},    {"x", 0},         {"  5", 5},
               {"12.5", 12},        {"-4", -4}, {"32767", 32767}, {"32768", {}},
               {"99999999999", {}}, {"nan", 0}, {"info", 0},      {".", 0}};
  for (const auto& c : cases) EXPECT_EQ(LeadingInteger(c.text), c.value) << c.text;
}

TEST(NumbersTest, EachErrorHasItsWords) {
  std::string all;
  for (int number = 1; number <= 100; ++number) {
    const std::string_view text = StandardMessage(number);
    if (text != StandardMessage(0)) all += std::to_string(number) + " " + std::string(text) + "\n";
  }
  EXPECT_EQ(all + std::string(StandardMessage(0)),
            "5 Invalid procedure call or argument\n6 Overflow\n7 Out of memory\n9 Subscript out of range\n"
            "13 Type mismatch\n52 Bad file name or number\n53 File not found\n55 File already open\n"
            "57 Device I/O error\n61 Disk full\n62 Input past end of file\n67 Too many files\n"
            "68 Device unavailable\n70 Permission denied\n71 Disk not ready\n75 Path/File access error\n"
            "76 Path not found\nApplication-defined or object-defined error");
}

}  // namespace
}  // namespace folionet
