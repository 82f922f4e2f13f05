#include <gtest/gtest.h>

#include "Finding.h"

namespace folionet {
namespace {

TEST(SentenceTest, PutsArgumentsInTheirPlaces) {
  const struct {
    Sentence sentence;
    const char* text;
  } cases[] = {
      {{"Missing: book %1 to %2", {"3", "5"}}, "Missing: book 3 to 5"},
      {{"%2 before %1", {"%2", "%1"}}, "%1 before %2"},
      {{"100% of %1, %2 and %", {"x"}}, "100% of x, %2 and %"},
      {{"%0 %a %%1", {"x"}}, "%0 %a %x"},
  };
  for (const auto& c : cases) EXPECT_EQ(c.sentence.InEnglish(), c.text);
}

}  // namespace
}  // namespace folionet
