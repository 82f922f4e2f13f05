#include "TitlesCheck.h"

#include <map>
#include <set>

#include "BookTitles.h"
#include "CharacterReferences.h"
#include "Installation.h"
#include "LineReader.h"
#include "PageFile.h"
#include "PageNames.h"
#include "Paths.h"

namespace folionet {
namespace {

constexpr std::size_t kLongestFileName = 255;

// The page names of one file of titles, by the book that has them.
class PageNameCheck {
 public:
  PageNameCheck(const LineReader& lines, FaultList& faults) : m_lines(lines), m_faults(faults) {}

  void Add(int book, const std::string& title) {
    const CodePage& codePage = m_faults.Charset();
    const std::string name =
        WithoutCharacterReferences(codePage.Decode(ChapterPageName(title, book, 1, false, codePage)));
    if (title.empty() || !IsPageName(name) || name.size() > kLongestFileName) {
      m_faults.Add(m_lines.Path(), m_lines.LineNumber(), "The title cannot be a file name: " + Quoted(title));
    }
    const auto [first, isNew] = m_bookOfName.emplace(name, book);
    if (!isNew) {
      m_faults.Add(m_lines.Path(), m_lines.LineNumber(),
                   "Books " + std::to_string(first->second) + " and " + std::to_string(book) +
                       " have the same page names, such as " + name);
    }
  }

 private:
  const LineReader& m_lines;
  FaultList& m_faults;
  std::map<std::string, int> m_bookOfName;
};

void CheckTitleFile(const ModGlob& glob, const std::string& fileName, FaultList& faults) {
  try {
    const std::string path = SysdefsFile(glob, fileName);
    LineReader lines(path, LineReader::kLongestEntry);
    faults.CheckLetterCase(path, glob.SysdefsPath + fileName);
    PageNameCheck names(lines, faults);
    std::string_view line;
    int book = 0;
    while (book < kBooks && NextTitleLine(lines, line)) {
      ++book;
      faults.CheckBytes(path, lines.LineNumber(), line);
      try {
        names.Add(book, ParseBookTitle(lines, line).title);
      } catch (const RunTimeError& error) {
        faults.Add(error);
      }
    }
    if (book < kBooks) {
      faults.Add(path, 0, "The titles of 66 books were expected, " + std::to_string(book) + " found.");
    }
  } catch (const RunTimeError& error) {
    faults.Add(error);
  }
}

}  // namespace

void CheckTitles(const ModGlob& glob, const std::string& chosen, FaultList& faults) {
  CheckTitleFile(glob, chosen, faults);
  try {
    for (const std::string& name : LanguageFiles(glob)) {
      if (!EqualIgnoringCase(name, chosen)) CheckTitleFile(glob, name, faults);
    }
  } catch (const RunTimeError& error) {
    faults.Add(error);
  }
}

}  // namespace folionet
