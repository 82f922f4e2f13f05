// Reads any bytes as a verse file, a file of book titles, a catalogue and a chapter index.

#include "BookTitles.h"
#include "Catalogue.h"
#include "ChapterIndex.h"
#include "FuzzFiles.h"
#include "RunTimeError.h"
#include "SilentUi.h"
#include "VerseFileReader.h"

namespace folionet::fuzz {
namespace {

void ReadVerses(const std::string& path, std::string_view input) {
  try {
    VerseFileReader reader(path);
    const Verse& verse = reader.Current();
    while (reader.Next()) {
      if (verse.book < 1 || verse.book > kBooks) std::abort();
      if (verse.text.find('\t') != std::string_view::npos) std::abort();
      if (input.find(verse.text) == std::string_view::npos) std::abort();
    }
  } catch (const RunTimeError& error) {
    if (error.Line() == 0) std::abort();
  }
}

void ReadTitles(const Folder& folder) {
  ModGlob glob;
  SetInstallation(glob, folder.Path(), folder.Path(), "Sysdefs");
  try {
    ReadBookTitles(glob, "file");
    if (glob.cboStartBook.size() != kBooks) std::abort();
  } catch (const RunTimeError&) {
  }
  try {
    ReadCatalogue(glob, CodePage());
    if (glob.BibleNames.size() != glob.BibleFiles.size()) std::abort();
  } catch (const RunTimeError&) {
  }
}

}  // namespace
}  // namespace folionet::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace folionet;
  using namespace folionet::fuzz;
  static const Folder folder;
  static const bool made = std::filesystem::create_directory(folder.Path() + "Sysdefs") &&
                           std::filesystem::create_directory(folder.Path() + "Bible");
  if (!made) std::abort();
  const std::string_view input = Text(data, size);
  const std::string path = folder.Write("Sysdefs/file", input);
  folder.Write("Sysdefs/Translations.txt", input);
  ReadVerses(path, input);
  ReadTitles(folder);
  SilentUi ui;
  ModGlob glob;
  LoadVerseCount(glob, path, ui);
  VerseCounts(glob).GetVSCnt("", input.substr(0, 20), ui);
  return 0;
}
