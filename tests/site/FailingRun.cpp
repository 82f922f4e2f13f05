#include "FailingRun.h"

#include <filesystem>
#include <fstream>
#include <ostream>

#include "FolderContent.h"
#include "ProgramRun.h"

namespace folionet::test {

namespace fs = std::filesystem;

TEST_P(Run, SaysWhyAndWritesNothingOutsideItsFolder) {
  const TemporaryFolder home;
  MakeLibrary(home);
  if (GetParam().arrange) GetParam().arrange(home);
  const auto outside = [&] {
    FolderContent content = ReadFolder(home.Path());
    std::erase_if(content, [](const auto& file) { return file.first.starts_with("out/"); });
    return content;
  };
  const FolderContent before = outside();
  const ProgramResult run = RunCli(CompileArguments(GetParam().arguments), home.Path());
  EXPECT_EQ(DescribeDifference("standard error", GetParam().errors, run.errors), "") << run.errors;
  EXPECT_EQ(run.output, "");
  EXPECT_EQ(run.status, GetParam().status);
  EXPECT_EQ(DescribeDifference(before, outside()), "");
}

std::string NameOf(const testing::TestParamInfo<FailingRun>& parameter) { return parameter.param.name; }

void PrintTo(const FailingRun& run, std::ostream* stream) { *stream << run.name; }

void MakeLibrary(const TemporaryFolder& home) {
  fs::copy(std::string(SITE_CASES) + "/defaults/installation", home.Path() + "installation",
           fs::copy_options::recursive);
  fs::create_directories(home.Path() + "program");
}

Arguments CompileArguments(const Arguments& more) {
  Arguments arguments{"compile",          "--versalia-path", "installation", "--module-path", "installation/Modules",
                      "--program-folder", "program"};
  arguments.insert(arguments.end(), more.begin(), more.end());
  return arguments;
}

Arrangement Holds(const std::string& file, const std::string& bytes) {
  return [=](const TemporaryFolder& home) { home.Write(file, bytes); };
}

Arrangement Lacks(const std::string& file) {
  return [=](const TemporaryFolder& home) { fs::remove_all(home.Path() + file); };
}

Arrangement IsFolder(const std::string& file) {
  return [=](const TemporaryFolder& home) {
    fs::remove(home.Path() + file);
    fs::create_directories(home.Path() + file);
  };
}

Arrangement EndsWith(const std::string& file, const std::string& bytes) {
  return [=](const TemporaryFolder& home) {
    std::ofstream(home.Path() + file, std::ios::binary | std::ios::app) << bytes;
  };
}

Arrangement Says(const std::string& file, const std::string& old, const std::string& text) {
  return [=](const TemporaryFolder& home) {
    std::string bytes = home.Read(file);
    const std::size_t at = bytes.find(old);
    ASSERT_NE(at, std::string::npos) << old << " in " << file;
    home.Write(file, bytes.replace(at, old.size(), text));
  };
}

std::string Report(int number, const std::string& description, const std::string& module, const std::string& extra) {
  return "An Error has occured.\n"
         "Title        : Folionet\n"
         "App Path     : " +
         fs::path(FOLIONET_CLI).parent_path().string() +
         "\n"
         "Software Ver : 1.0.0.\n"
         "Module       : " +
         module +
         ".\n"
         "Error Number : " +
         std::to_string(number) +
         "\n"
         "Description  : " +
         description +
         ".\n"
         "Extra Info   : \n" +
         extra +
         "\n"
         "\n"
         "If the error persists, please report it at: support@versalia.example\n"
         "PLEASE SUPPLY A FULL DESCRIPTION OF THE ERROR,\n"
         "EXACTLY as you see it in this error message.\n";
}

std::string ListReport(int number, const std::string& description, const std::string& extra) {
  return Report(number, description, "Populate Combos", extra) +
         "Path and/or file not found: This error has probably occured because you have an older version of Versalia\n"
         "or because Versalia is not correctly installed.\n"
         "Folionet will attempt to gather the correct information manually\n"
         "You will need to enter the values for the following:\n"
         "1. The Versalia Path\n"
         "2. The Versalia Module Path\n"
         "Give them with --versalia-path FOLDER, which holds Sysdefs and Index, and --module-path FOLDER, which holds "
         "Bible; \"folionet-cli check\" names what is wrong in them.\n";
}

std::string IndexReport(int number, const std::string& description, const std::vector<std::string>& fields,
                        const std::string& extra) {
  std::string values = "Last Input \n";
  for (std::size_t i = 0; i < fields.size(); ++i) {
    values += std::string(1, "ABCDEFG"[i]) + " = " + fields[i] + "\n";
  }
  return Report(number, description, "Load Verse Count", values + extra) +
         "File not found: Folionet could not find the file\n" + kChapterIndex +
         "\n"
         "This file is created automatically by Versalia.\n"
         "Please do a search on this Bible in Versalia to create it and try again.\n";
}

std::string CompileReport(int number, const std::string& description, const std::vector<std::string>& place,
                          const std::string& extra) {
  return Report(number, description, "cmdCompile_Click",
                "INDEX: " + place.at(0) + "\nSL: " + place.at(1) + "\nSR: " + place.at(2) + "\n" + extra);
}

}  // namespace folionet::test
