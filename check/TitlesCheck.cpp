#include "TitlesCheck.h"

#include <map>
#include <utility>

#include "BookTitles.h"
#include "Installation.h"
#include "LineReader.h"
#include "PageFile.h"
#include "PageNames.h"
#include "Paths.h"
#include "Text.h"
#include "Utf8.h"

namespace folionet {
namespace {

constexpr std::size_t kLongestFileName = 255;

// The page names of one file of titles, by the book that has them.
class PageNameCheck {
 public:
  PageNameCheck(const LineReader& lines, CheckedLibrary& library) : m_lines(lines), m_library(library) {}

  void Add(int book, const std::string& title) {
    const PageNames names({title}, false, m_library.codePage);
    const std::string name = names.OnDisk(1, 1);
    if (title.empty() || !IsPageName(name) || name.size() > kLongestFileName) {
      m_library.Add("bad-title", m_lines.Path(), m_lines.LineNumber(),
                    {"The title cannot be a file name: %1", {Quoted(title)}}, {book});
    } else if (!names.AreReached(1)) {
      m_library.Add(
          "bad-title", m_lines.Path(), m_lines.LineNumber(),
          {"No browser finds the pages of the title %1: \"?\", \"#\", \":\" and a quotation mark have another "
           "meaning in a link.",
           {Quoted(title)}},
          {book});
    }
    const auto [first, isNew] = m_bookOfName.emplace(name, book);
    if (!isNew) {
      m_library.Add("shared-name", m_lines.Path(), m_lines.LineNumber(),
                    {"Books %1 and %2 have the same page names, such as %3",
                     {std::to_string(first->second), std::to_string(book), name}},
                    {book});
    }
  }

 private:
  const LineReader& m_lines;
  CheckedLibrary& m_library;
  std::map<std::string, int> m_bookOfName;
};

// The imported translation that a file of titles belongs to.
const ImportedText* ImportOf(const std::string& fileName, const CheckedLibrary& library) {
  for (const ImportedText& text : library.glob.BibleImports) {
    if (text.IsThere() && EqualIgnoringCase(text.titles, fileName)) return &text;
  }
  return nullptr;
}

void CheckTitleFile(const std::string& fileName, CheckedLibrary& whole) {
  const ModGlob& glob = whole.glob;
  const ImportedText* const imported = ImportOf(fileName, whole);
  const CodePage codePage = imported != nullptr ? CodePage(imported->charset) : whole.codePage;
  CheckedLibrary library{whole.glob, codePage, whole.titlesFile, whole.typed, whole.findings};
  try {
    const std::string path = SysdefsFile(glob, fileName);
    BookTitleReader titles(path);
    library.CheckLetterCase(path, glob.SysdefsPath + fileName);
    PageNameCheck names(titles.Lines(), library);
    while (titles.Next()) {
      const int book = static_cast<int>(titles.Book());
      library.CheckBytes(path, titles.Lines().LineNumber(), titles.Line(), {book});
      try {
        names.Add(book, titles.Title().title);
      } catch (const RunTimeError& error) {
        library.findings.Add(FindingOf(error));
      }
    }
    if (Sentence missing = titles.WhatIsMissing(); !missing.IsEmpty()) {
      library.Add("missing-titles", path, 0, std::move(missing));
    }
  } catch (const RunTimeError& error) {
    library.findings.Add(FindingOf(error));
  }
}

}  // namespace

void CheckTitles(CheckedLibrary& library) {
  const std::string& chosen = library.titlesFile;
  CheckTitleFile(chosen, library);
  try {
    for (const std::string& name : LanguageFiles(library.glob)) {
      // The titles of another language may be in another charset than the one translation that is asked about.
      const bool isAskedAbout = library.translation.empty() || ImportOf(name, library) != nullptr;
      if (isAskedAbout && !EqualIgnoringCase(name, chosen)) CheckTitleFile(name, library);
    }
  } catch (const RunTimeError& error) {
    library.findings.Add(FindingOf(error));
  }
}

}  // namespace folionet
