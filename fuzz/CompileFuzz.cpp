// Compiles a library of any files with any texts, in memory. Nothing but the output folder's own files may change.

#include <algorithm>

#include "BookTitles.h"
#include "Catalogue.h"
#include "ChapterIndex.h"
#include "Compile.h"
#include "FuzzFiles.h"
#include "Installation.h"
#include "RunTimeError.h"
#include "SilentUi.h"

namespace folionet::fuzz {
namespace {

namespace fs = std::filesystem;

// Sixty-six book titles, the first of which come from the input.
std::string Titles(const std::string& given) {
  std::string text = given;
  auto lines = std::count(given.begin(), given.end(), '\n');
  for (; lines < kBooks; ++lines) text += "\n1\tCode\tBook " + std::to_string(lines);
  return text;
}

void WriteLibrary(const Folder& folder, const std::vector<std::string>& parts) {
  folder.Write("Sysdefs/Translations.txt", "1,0,\"A Bible\",\"KJV\"\n" + parts[0]);
  folder.Write("Sysdefs/BOOKS.TXT", Titles(parts[1]));
  folder.Write("Index/KJV.TXT.INDEX", parts[2]);
  folder.Write("Bible/KJV.TXT", parts[3]);
}

CompileRequest Request(const Folder& folder, const std::vector<std::string>& parts, const ModGlob& glob) {
  CompileRequest request;
  const std::string& bits = parts[4];
  const auto bit = [&](std::size_t i) { return i < bits.size() && (bits[i] & 1) != 0; };
  request.options.chkCSS = bit(0);
  request.options.chkUse83 = bit(1);
  request.options.chkDoubleSpace = bit(2);
  request.options.chkBack = bit(3);
  request.cboStartBook = bit(4) ? 2 : 0;
  request.texts.PageCharset = bit(5) ? "utf-8" : bit(6) ? "shift_jis" : "windows-1252";
  request.options.frmPAgeTitles.txtPageTitles = parts[5];
  request.options.frmLinkToMAin.txtLinkToMain = parts[5];
  request.options.frmLinkToMAin.cboSize = "2";
  request.options.txthttpRoot = parts[6] + (bit(1) ? ".htm" : ".html");
  request.options.txtBibleSel = glob.BibleNames.front();
  request.txtOutputPath = folder.Path() + "out/";
  request.txtFilename = folder.Path() + "Bible/KJV.TXT";
  request.programFolder = folder.Path() + "program/";
  request.cboLang = "BOOKS.TXT";
  request.cboBibleName = 0;
  request.makeOutputFolder = true;
  return request;
}

std::ptrdiff_t CountFiles(const std::string& folder) {
  return std::distance(fs::recursive_directory_iterator(folder), fs::recursive_directory_iterator());
}

void Compile(const Folder& folder, const std::vector<std::string>& parts) {
  WriteLibrary(folder, parts);
  fs::remove_all(folder.Path() + "out");
  const std::ptrdiff_t before = CountFiles(folder.Path());
  SilentUi ui;
  ModGlob glob;
  SetInstallation(glob, folder.Path(), folder.Path(), "Sysdefs");
  const CodePage codePage;
  try {
    ReadCatalogue(glob, codePage);
    ReadBookTitles(glob, "BOOKS.TXT");
  } catch (const RunTimeError&) {
    return;
  }
  if (LoadVerseCount(glob, folder.Path() + "Index/KJV.TXT.INDEX", ui) != Outcome::kDone) return;
  cmdCompile_Click(Request(folder, parts, glob), glob, ui);
  fs::remove_all(folder.Path() + "out");
  if (CountFiles(folder.Path()) != before) std::abort();
}

}  // namespace
}  // namespace folionet::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace folionet::fuzz;
  static const Folder folder;
  static const bool made = [] {
    for (const char* name : {"Sysdefs", "Index", "Bible", "program"}) fs::create_directory(folder.Path() + name);
    folder.Write("program/default.css", "body {}");
    return true;
  }();
  if (made) Compile(folder, Parts(Text(data, size), 7));
  return 0;
}
