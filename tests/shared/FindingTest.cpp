#include <gtest/gtest.h>

#include "Finding.h"
#include "RunTimeError.h"

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

TEST(FindingsTest, CountsMoreThanItKeeps) {
  Findings findings;
  for (std::size_t i = 0; i < Findings::kMostKept + 5; ++i) findings.Add({.kind = "x", .line = i});
  findings.Add(FindingOf(RunTimeError(kOverflow, "file", "too big", 7)));
  findings.Add({.kind = "y", .severity = Severity::kNote});
  EXPECT_EQ(findings.Kept().size(), Findings::kMostKept);
  EXPECT_EQ(findings.Kept().back().line, Findings::kMostKept - 1);
  EXPECT_EQ(findings.Count(Severity::kFault), Findings::kMostKept + 6);
  EXPECT_EQ(findings.Count(), Findings::kMostKept + 7);
}

}  // namespace
}  // namespace folionet
