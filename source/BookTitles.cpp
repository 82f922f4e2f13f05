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

BookTitleReader::BookTitleReader(const std::string& path)
    : m_lines(path, Subject::kBookTitles, LineReader::kLongestEntry) {}

bool BookTitleReader::Next() {
  if (m_book == kBooks) return false;
  do {
    if (!m_lines.Next(m_line)) return false;
  } while (m_line.find_first_not_of(' ') == std::string_view::npos);
  m_lines.RefuseLineEnds(m_line);
  ++m_book;
  return true;
}

BookTitle BookTitleReader::Title() const {
  const std::size_t firstTab = m_line.find('\t');
  const std::size_t lastTab = m_line.rfind('\t');
  if (firstTab == lastTab) {
    m_lines.Fail(kInvalidProcedureCall, "Three fields separated by tabs were expected: " + Quoted(m_line));
  }
  const std::string_view afterFirst = m_line.substr(firstTab + 1);
  return {std::string(afterFirst.substr(0, afterFirst.find('\t'))), std::string(m_line.substr(lastTab + 1))};
}

Sentence BookTitleReader::WhatIsMissing() const {
  if (m_book == kBooks) return {};
  return {Words("Import", "The titles of 66 books were expected, %1 found."), {std::to_string(m_book)}};
}

void ReadBookTitles(ModGlob& glob, const std::string& fileName) {
  glob.cboStartBook.clear();
  glob.cboEndBook.clear();
  if (fileName.find_first_of("/\\") != std::string::npos) {
    throw RunTimeError(kBadFileName, fileName, "The name of a book-title file without a folder was expected.")
        .About(Subject::kBookTitles);
  }
  BookTitleReader titles(SysdefsFile(glob, fileName));
  while (titles.Next()) {
    BookTitle read = titles.Title();
    glob.cboStartBook.push_back(read.title);
    glob.cboEndBook.push_back(std::move(read.title));
    glob.BookCodes[titles.Book()] = std::move(read.code);
  }
  if (const Sentence missing = titles.WhatIsMissing(); !missing.IsEmpty()) {
    throw RunTimeError(kInputPastEnd, titles.Lines().Path(), missing.InEnglish()).About(Subject::kBookTitles);
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
