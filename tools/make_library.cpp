// Builds a library in Versalia's layout from a file with one verse a line. Exit status: 0 done; 2 usage; 3 an input
// that cannot be read or a file that cannot be written.

#include <CLI/CLI.hpp>
#include <algorithm>
#include <exception>
#include <iostream>
#include <string>
#include <vector>

#include "LibraryFiles.h"
#include "LibraryWriter.h"
#include "Registration.h"
#include "VerseReader.h"

namespace {

using namespace folionet::tools;

constexpr int kUsage = 2;
constexpr int kFailure = 3;

void ReportGaps(const std::vector<Verse>& verses) {
  std::string list;
  for (const std::string& part : MissingParts(verses)) list += (list.empty() ? "" : ", ") + part;
  if (!list.empty()) std::cerr << "make_library: note: not in the input: " << list << '\n';
}

void Build(const std::string& input, const LibraryRequest& request, bool registerIt) {
  const std::vector<Verse> verses = ParseVerses(ReadWholeFile(input), input);
  const LibraryTexts texts = MakeLibraryTexts(verses);
  WriteLibrary(request, texts);
  const std::string folder = AbsoluteFolder(request.folder);
  if (registerIt) RegisterLibrary(VersaliaSettingsFile(), folder);

  ReportGaps(verses);
  std::cout << request.stem << ": " << texts.books << " books, " << texts.chapters << " chapters, " << verses.size()
            << " verses";
  if (const auto empty = std::ranges::count(verses, "", &Verse::text)) std::cout << " (" << empty << " without text)";
  std::cout << " in " << folder << std::endl;
}

int Run(int argc, char** argv) {
  CLI::App app("Builds a library in Versalia's layout from a file with one verse a line.", "make_library");
  std::string input;
  LibraryRequest request;
  bool registerIt = false;
  app.add_option("VERSES", input, "Lines BOOK CHAPTER:VERSE TEXT, such as\n\"Ge1:1 In the beginning\"")->required();
  app.add_option("--name", request.name, "Display name of the translation")->required();
  app.add_option("--stem", request.stem, "Stem of its files, such as KJV")->required();
  app.add_option("--into", request.folder, "Folder of the library; one that is there is\nadded to")->required();
  app.add_flag("--register", registerIt, "Note the folder in Versalia's settings");
  app.set_version_flag("--version", "make_library " FOLIONET_VERSION);
  app.footer(
      "Example:\n"
      "  make_library kjv.txt --name \"King James Version\" --stem KJV \\\n"
      "               --into ~/library --register");
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    return app.exit(error) == 0 ? 0 : kUsage;
  }
  if (const std::string refusal = RefusalOf(request); !refusal.empty()) {
    std::cerr << "make_library: " << refusal << '\n';
    return kUsage;
  }
  const std::string folder = AbsoluteFolder(request.folder);
  if (registerIt && !CanRegister(folder)) {
    std::cerr << "make_library: --register: " << folder
              << ": expected a folder without \" and \\ in its path; choose another, or leave --register out and give "
                 "the folder with --versalia-path\n";
    return kUsage;
  }
  Build(input, request, registerIt);
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return Run(argc, argv);
  } catch (const std::exception& error) {
    std::cerr << "make_library: " << error.what() << '\n';
    return kFailure;
  }
}
