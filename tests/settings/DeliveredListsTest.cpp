#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <set>

#include "EncodingLists.h"
#include "SettingsStore.h"

namespace folionet {
namespace {

// Each line of the lists that are delivered is a record, no code comes twice, and the defaults are among them.
TEST(DeliveredListsTest, ReadWholeAndHoldTheDefaults) {
  for (const auto& [name, entry] :
       {std::pair{kLanguageList, "en-us English USA"}, {kCharsetList, "windows-1252 (ANSI Latin 1)"}}) {
    const std::string path = std::string(DELIVERED_FOLDER) + "/" + name;
    const auto [entries, failure] = ReadEncodingList({std::string(DELIVERED_FOLDER) + "/"}, name);
    EXPECT_FALSE(failure) << failure->what();
    std::ifstream file(path);
    std::size_t lines = 0;
    for (std::string line; std::getline(file, line);) lines += line.size() > 1 ? 1 : 0;
    EXPECT_EQ(entries.size(), lines) << name;
    EXPECT_EQ(std::count(entries.begin(), entries.end(), entry), 1) << name;
    std::set<std::string> codes;
    for (const std::string& text : entries) codes.insert(text.substr(0, text.find(' ')));
    EXPECT_EQ(codes.size(), lines) << name;
    if (name != std::string_view(kCharsetList)) continue;
    for (const std::string& code : codes) EXPECT_EQ(CodePage(code).Use(), CharsetUse::kAsDeclared) << code;
  }
}

}  // namespace
}  // namespace folionet
