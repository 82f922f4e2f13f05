#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <iosfwd>
#include <string>
#include <vector>

#include "TemporaryFolder.h"

// Runs that are refused or fail, as rows of a table: what is said, how the program ends and what it leaves alone.

namespace folionet::test {

using Arguments = std::vector<std::string>;
using Arrangement = std::function<void(const TemporaryFolder&)>;

struct FailingRun {
  std::string name;
  Arguments arguments;  // of a compile, next to those that name the library and the program's folder
  Arrangement arrange;  // what is wrong with the library or the output folder
  int status;
  std::string errors;  // the whole of standard error
};

void PrintTo(const FailingRun& run, std::ostream* stream);

// Compiles a small library in a folder of its own; the test is one for all rows.
class Run : public testing::TestWithParam<FailingRun> {};

std::string NameOf(const testing::TestParamInfo<FailingRun>& parameter);

// Makes the small library that a row starts from; it compiles.
void MakeLibrary(const TemporaryFolder& home);

// The arguments that name the library in MakeLibrary's folder, and these after them.
Arguments CompileArguments(const Arguments& more);

constexpr int kIsRefused = 1;
constexpr int kFails = 3;
inline const std::string kOut = "--output=out";
inline const std::string kIndex = "--index-address=index.html";
inline const Arguments kAll{kOut, kIndex};
inline const std::string kCatalogue = "installation/Sysdefs/Translations.txt";
inline const std::string kTitles = "installation/Sysdefs/BOOKS.TXT";
inline const std::string kChapterIndex = "installation/Index/KJV.TXT.INDEX";
inline const std::string kVerses = "installation/Modules/Bible/KJV.TXT";

Arrangement Holds(const std::string& file, const std::string& bytes);
Arrangement Lacks(const std::string& file);
Arrangement IsFolder(const std::string& file);
Arrangement EndsWith(const std::string& file, const std::string& bytes);
Arrangement Says(const std::string& file, const std::string& old, const std::string& text);

// The report of a run-time error, whole.
std::string Report(int number, const std::string& description, const std::string& module, const std::string& extra);

// A failure of reading the catalogue or the book titles.
std::string ListReport(int number, const std::string& description, const std::string& extra);

// A failure of reading the chapter index for its verse counts; `fields` are the seven of the last record.
std::string IndexReport(int number, const std::string& description, const std::vector<std::string>& fields,
                        const std::string& extra);

// A failure of the compile run; `place` is the last verse seen: its book, its chapter and verse, its text.
std::string CompileReport(int number, const std::string& description, const std::vector<std::string>& place,
                          const std::string& extra);
inline const std::vector<std::string> kNoVerse{"", "", ""};

}  // namespace folionet::test
