#include <gtest/gtest.h>
#include <sys/stat.h>

#include <fstream>
#include <functional>
#include <ostream>

#include "SmallLibrary.h"

// Files of a library that are huge, no text at all, or no files: each ends in a report (or a site) within the time and
// the memory that the program is given here.

namespace folionet::test {
namespace {

constexpr std::size_t kMiB = std::size_t{1} << 20;

struct BadFile {
  std::string name;
  std::function<void(const TemporaryFolder&)> arrange;
  int status;
  std::string error;  // what standard error must hold
};

void PrintTo(const BadFile& file, std::ostream* stream) { *stream << file.name; }

// Writes a file of the text, again and again.
auto Repeats(const std::string& file, const std::string& text, std::size_t count, const std::string& before = {}) {
  return [=](const TemporaryFolder& home) {
    std::ofstream stream(home.Path() + file, std::ios::binary);
    stream << before;
    const std::size_t together = std::max<std::size_t>(1, kMiB / text.size());
    std::string block;
    for (std::size_t i = 0; i < together; ++i) block += text;
    std::size_t left = count;
    for (; left >= together; left -= together) stream << block;
    for (; left > 0; --left) stream << text;
  };
}

auto IsPipe(const std::string& file) {
  return [=](const TemporaryFolder& home) {
    std::filesystem::remove(home.Path() + file);
    std::filesystem::create_directories(std::filesystem::path(home.Path() + file).parent_path());
    ASSERT_EQ(mkfifo((home.Path() + file).c_str(), 0600), 0);
  };
}

auto IsLinkTo(const std::string& target, const std::string& file) {
  return [=](const TemporaryFolder& home) {
    std::filesystem::remove(home.Path() + file);
    std::filesystem::create_directories(std::filesystem::path(home.Path() + file).parent_path());
    std::filesystem::create_symlink(target, home.Path() + file);
  };
}

std::string AllBytes() {
  std::string bytes;
  for (int value = 0; value < 256; ++value) bytes += static_cast<char>(value);
  return bytes;
}

auto HasVerse(const std::string& text) {
  return [=](const TemporaryFolder& home) { home.Write(kVersesFile, "1\t1\t1\t1\t" + text); };
}

class Library : public testing::TestWithParam<BadFile> {};

TEST_P(Library, EndsInAReportWithinBounds) {
  const TemporaryFolder home;
  MakeSmallLibrary(home);
  ASSERT_NO_FATAL_FAILURE(GetParam().arrange(home));
  std::vector<std::string> command{"/usr/bin/timeout", "60", "/usr/bin/prlimit"};
  // Seconds of the processor's time, and bytes of address space.
  command.push_back("--cpu=" BOUND_SECONDS);
  if (BOUND_MEMORY[0] != '\0') command.push_back("--as=" BOUND_MEMORY);
  for (const std::string& part : CompileSmall()) command.push_back(part);
  const ProgramResult run = RunProgram(command, home.Path());
  EXPECT_EQ(run.status, GetParam().status) << run.errors.substr(0, 2000);
  EXPECT_NE(run.errors.find(GetParam().error), std::string::npos) << run.errors.substr(0, 2000);
  EXPECT_LT(run.errors.size(), 5000U) << "The report is too long to be read.";
}

constexpr int kFails = 3;

const BadFile kFiles[] = {
    {"VerseLineOf200MiB", Repeats(kVersesFile, "x", 200 * kMiB), kFails, "The line is longer than 4194304 bytes."},
    {"TitleLineOf200MiB", Repeats(kTitlesFile, "x", 200 * kMiB), kFails, "The line is longer than 65536 bytes."},
    {"CatalogueLineOf200MiB", Repeats(kCatalogueFile, "x", 200 * kMiB), kFails, "The line is longer than 65536 bytes."},
    {"IndexLineOf200MiB", Repeats(kIndexFile, "x", 200 * kMiB), kFails, "The line is longer than 65536 bytes."},
    {"SettingsOf200MiB",
     [](const TemporaryFolder& home) {
       home.Write("config/Folionet.ini", "");
       Repeats("config/Folionet.ini", "x=y\n", 50 * kMiB)(home);
     },
     kFails, "Folionet.ini"},
    {"HeaderOf200MiB", Repeats("program/CustomHeader.txt", "x", 200 * kMiB), kFails, "CustomHeader.txt"},
    {"MillionTabs", Repeats(kVersesFile, "\t", 1000000), kFails, "The number of a book was expected"},
    {"MillionTabsInATitle", Repeats(kTitlesFile, "\t", 1000000), kFails, "The line is longer than 65536 bytes."},
    {"MillionTranslations", Repeats(kCatalogueFile, "1,0,\"A Bible\",\"KJV\"\r\n", 1000000), kFails,
     "More than 10000 translations are listed."},
    {"MillionMissingTranslations", Repeats(kCatalogueFile, "1,0,\"A Bible\",\"NONE\"\r\n", 1000000), kFails,
     "More than 10000 translations are listed."},
    {"MillionHiddenTranslations",
     Repeats(kCatalogueFile, "1000,0,\"A Bible\",\"NONE\"\r\n", 1000000, "1,0,\"King James Version\",\"KJV\"\r\n"), 0,
     ""},
    {"MillionChapters", Repeats(kIndexFile, "1,0,1,1,31,0,\"x\"\r\n", 1000000), kFails,
     "The book has more than 32767 chapters."},
    {"MillionVersesOfOneChapter", Repeats(kVersesFile, "1\t1\t1\t1\ttext\r\n", 1000000), 0, ""},
    {"ChapterOf200MiB", Repeats(kVersesFile, "1\t1\t1\t1\t" + std::string(1012, 'x') + "\r\n", 200 * 1024), kFails,
     "genesis_1.html\nThe page is longer than 67108864 bytes."},
    {"VerseOf3MiB", HasVerse(std::string(3 * kMiB, 'x')), 0, ""},
    {"VerseOfAllBytes", HasVerse(std::string(AllBytes()).replace(9, 2, "  ")), 0, ""},
    {"VerseOfNulBytes", HasVerse(std::string(1000, '\0')), 0, ""},
    {"VersesAreAllBytes", [](const TemporaryFolder& home) { home.Write(kVersesFile, AllBytes()); }, kFails,
     "Five fields separated by tabs were expected"},
    {"IndexIsAllBytes", [](const TemporaryFolder& home) { home.Write(kIndexFile, AllBytes()); }, kFails,
     "A record of 7 fields was expected"},
    {"TitlesAreNulBytes", Repeats(kTitlesFile, std::string(1, '\0'), 100000), kFails,
     "The line is longer than 65536 bytes."},
    {"SettingsAreAllBytes",
     [](const TemporaryFolder& home) { home.Write("config/Folionet.ini", "[Keys]\nPageTitles=" + AllBytes()); }, 0, ""},
    {"VersesAreAPipe", IsPipe(kVersesFile), 1, "Please Select a Bible to compile first"},
    {"CatalogueIsAPipe", IsPipe(kCatalogueFile), kFails, "It is not a regular file."},
    {"TitlesAreAPipe", IsPipe(kTitlesFile), kFails, "It is not a regular file."},
    {"SettingsAreAPipe", IsPipe("config/Folionet.ini"), kFails, "It is not a regular file."},
    {"HeaderIsAPipe", IsPipe("program/CustomHeader.txt"), kFails, "It is not a regular file."},
    {"TitlesAreADevice", IsLinkTo("/dev/zero", kTitlesFile), kFails, "It is not a regular file."},
    {"CatalogueIsADevice", IsLinkTo("/dev/zero", kCatalogueFile), kFails, "It is not a regular file."},
    {"IndexIsADevice", IsLinkTo("/dev/zero", kIndexFile), kFails, "KJV.TXT.INDEX"},
    {"SettingsAreADevice", IsLinkTo("/dev/zero", "config/Folionet.ini"), kFails, "It is not a regular file."},
    {"PageIsADevice", IsLinkTo("/dev/full", "out/genesis_2.html"), kFails, "genesis_2.html"},
    {"PageIsAPipe", IsPipe("out/genesis_2.html"), kFails, "genesis_2.html"},
};

INSTANTIATE_TEST_SUITE_P(Whatever, Library, testing::ValuesIn(kFiles),
                         [](const auto& parameter) { return parameter.param.name; });

}  // namespace
}  // namespace folionet::test
