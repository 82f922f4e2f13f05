// Reads any bytes as a verse file, a file of book titles, a catalogue and a chapter index.

#include "BookTitles.h"
#include "Catalogue.h"
#include "ChapterIndex.h"
#include "FuzzFiles.h"
#include "Installation.h"
#include "RunTimeError.h"
#include "SilentUi.h"
#include "Utf16.h"
#include "VerseFileReader.h"

namespace folionet::fuzz {
namespace {

// Of the verse at hand, also after a failure, all that is given can be read, and stands in the file.
void CheckCurrent(const Verse& verse, std::string_view input) {
  for (const std::string_view part : {verse.bookField, verse.chapterField, verse.verse, verse.text}) {
    if (input.find(part) == std::string_view::npos) std::abort();
  }
}

void ReadVerses(const std::string& path, std::string_view input) {
  if (LooksUtf16(input)) return;  // is refused as a whole
  VerseFileReader reader(path);
  const Verse& verse = reader.Current();
  for (bool more = true; more;) {
    try {
      more = reader.Next();
      if (more && (verse.book < 1 || verse.book > kBooks)) std::abort();
      if (more && verse.text.find('\t') != std::string_view::npos) std::abort();
    } catch (const RunTimeError& error) {
      if (error.Line() == 0) std::abort();
    }
    CheckCurrent(verse, input);
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
