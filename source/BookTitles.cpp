#include "BookTitles.h"

#include <string_view>

#include "Installation.h"
#include "LineReader.h"
#include "Paths.h"
#include "RunTimeError.h"
#include "Text.h"
#include "Utf8.h"

namespace folionet {
namespace {

constexpr std::string_view kPrefix = "BOOKS_";
constexpr std::string_view kSuffix = ".txt";

bool IsLanguageFile(std::string_view name) {
  return name.size() >= kPrefix.size() + kSuffix.size() && EqualIgnoringCase(name.substr(0, kPrefix.size()), kPrefix) &&
         EqualIgnoringCase(name.substr(name.size() - kSuffix.size()), kSuffix);
}

}  // namespace

bool NextTitleLine(LineReader& lines, std::string_view& line) {
  do {
    if (!lines.Next(line)) return false;
  } while (line.find_first_not_of(' ') == std::string_view::npos);
  lines.RefuseLineEnds(line);
  return true;
}

BookTitle ParseBookTitle(const LineReader& lines, std::string_view line) {
  const std::size_t firstTab = line.find('\t');
  const std::size_t lastTab = line.rfind('\t');
  if (firstTab == lastTab) {
    lines.Fail(kInvalidProcedureCall, "Three fields separated by tabs were expected: " + Quoted(line));
  }
  const std::string_view afterFirst = line.substr(firstTab + 1);
  return {std::string(afterFirst.substr(0, afterFirst.find('\t'))), std::string(line.substr(lastTab + 1))};
}

void ReadBookTitles(ModGlob& glob, const std::string& fileName) {
  glob.cboStartBook.clear();
  glob.cboEndBook.clear();
  if (fileName.find_first_of("/\\") != std::string::npos) {
    throw RunTimeError(kBadFileName, fileName, "The name of a book-title file without a folder was expected.")
        .About(Subject::kBookTitles);
  }
  LineReader lines(SysdefsFile(glob, fileName), Subject::kBookTitles, LineReader::kLongestEntry);
  for (std::size_t book = 1; book <= kBooks; ++book) {
    std::string_view line;
    if (!NextTitleLine(lines, line)) {
      throw RunTimeError(kInputPastEnd, lines.Path(),
                         "The titles of 66 books were expected, " + std::to_string(book - 1) + " found.")
          .About(Subject::kBookTitles);
    }
    BookTitle parsed = ParseBookTitle(lines, line);
    glob.cboStartBook.push_back(parsed.title);
    glob.cboEndBook.push_back(std::move(parsed.title));
    glob.BookCodes[book] = std::move(parsed.code);
  }
}

std::vector<std::string> LanguageFiles(const ModGlob& glob) {
  const std::string folder = SysdefsFile(glob, "");
  std::vector<std::string> names;
  if (!FolderExists(folder)) return names;
  for (std::string& name : WorkAbout(Subject::kDefinitionsFolder, [&] { return ListFolder(folder); })) {
    if (IsLanguageFile(name)) names.push_back(std::move(name));
  }
  return names;
}

Outcome GetLang(ModGlob& glob, UserInterface& ui) {
  constexpr char kNoneFound[] = "No Language Definition file found\r\n";
  glob.cboLang.clear();
  try {
    glob.cboLang = LanguageFiles(glob);
    if (glob.cboLang.empty()) {
      throw RunTimeError(kFileNotFound, glob.SysdefsPath + std::string(kPrefix) + "*" + std::string(kSuffix))
          .About(Subject::kDefinitionsFolder);
    }
    return Outcome::kDone;
  } catch (const RunTimeError& error) {
    ui.ShowErrorReport({Procedure::kGetLang, error, kNoneFound});
    return Outcome::kReported;
  }
}

}  // namespace folionet
