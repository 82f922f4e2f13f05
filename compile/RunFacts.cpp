#include "RunFacts.h"

#include <algorithm>
#include <array>
#include <map>

#include "CodePage.h"
#include "FolderFacts.h"
#include "PageFile.h"
#include "PageNames.h"
#include "Paths.h"

namespace folionet {
namespace {

using ChapterCounts = std::array<int, kBooks + 1>;

// As BooksInChapters counts them: books are numbered by order of appearance.
ChapterCounts CountChapters(const ModGlob& glob) {
  ChapterCounts counts{};
  if (glob.Imported.IsThere()) {
    std::copy(glob.ChaptersInBook.begin(), glob.ChaptersInBook.end(), counts.begin());
    return counts;
  }
  std::size_t book = 0;
  for (std::size_t i = 0; i + 1 < glob.ChapterIndex.size(); ++i) {
    if (i == 0 || glob.ChapterIndex[i].Book != glob.ChapterIndex[i - 1].Book) ++book;
    if (book > kBooks) break;
    ++counts[book];
  }
  return counts;
}

class FactFinder {
 public:
  FactFinder(const CompileRequest& request, const ModGlob& glob)
      : m_request(request),
        m_glob(glob),
        m_names(glob.cboStartBook, request.options.chkUse83, CodePage(request.texts.PageCharset)),
        m_chapters(CountChapters(glob)) {}

  // What is only good to know of the books becomes a warning where pages of theirs are there now.
  void WarnOfRemoval(std::vector<RunFact>& facts) const {
    for (RunFact& fact : facts) {
      if (fact.kind == RunFactKind::kRemovesPages) fact.isWarning = fact.isWarning || ArePagesThere();
    }
  }

  void FindOtherTranslation(std::vector<RunFact>& facts) const {
    const CodePage codePage(m_request.texts.PageCharset);
    const std::string there = TranslationOfSite(m_request, m_names);
    if (there.empty() || there == codePage.DecodeForDisplay(m_request.options.txtBibleSel)) return;
    facts.push_back({RunFactKind::kOtherTranslation,
                     true,
                     {Translatable("Notice", "The folder holds pages of another translation: %1."), {there}}});
  }

  void FindNames(std::vector<RunFact>& facts) const {
    FindSharedIndex(facts);
    FindMeetingBooks(facts);
  }

 private:
  int Books() const { return static_cast<int>(m_glob.cboStartBook.size()); }
  int ChaptersOf(int book) const { return m_chapters[static_cast<std::size_t>(book)]; }

  bool ArePagesThere() const {
    const std::string folder = NativePath(m_request.txtOutputPath);
    for (int book = 1; book <= m_request.cboStartBook; ++book) {
      for (int chapter = 1; chapter <= ChaptersOf(book); ++chapter) {
        const std::string name = m_names.OnDisk(book, chapter);
        if (IsPageName(name) && FileExists(folder + name)) return true;
      }
    }
    return false;
  }

  void FindSharedIndex(std::vector<RunFact>& facts) const {
    const std::string index = IndexFileName(m_request.options.txthttpRoot);
    for (int book = 1; book <= Books(); ++book) {
      if (!index.starts_with(m_names.BookOnDisk(book))) continue;
      for (int chapter = 1; chapter <= ChaptersOf(book); ++chapter) {
        if (m_names.OnDisk(book, chapter) != index) continue;
        facts.push_back({RunFactKind::kIndexTakesPage,
                         true,
                         {Translatable("Notice", "The index page %1 takes the place of a chapter's page."), {index}}});
        return;
      }
    }
  }

  void FindMeetingBooks(std::vector<RunFact>& facts) const {
    std::map<std::string, std::vector<int>> booksOfName;
    for (int book = 1; book <= Books(); ++book) {
      if (ChaptersOf(book) > 0) booksOfName[m_names.OnDisk(book, 1)].push_back(book);
    }
    for (const auto& [name, books] : booksOfName) {
      if (books.size() < 2) continue;
      std::string numbers;
      for (const int book : books) numbers += (numbers.empty() ? "" : ", ") + std::to_string(book);
      facts.push_back({RunFactKind::kPagesMeet,
                       true,
                       {Translatable("Notice",
                                     "The books %2 have the same page names, such as %1: only the pages of the last "
                                     "one are kept."),
                        {name, numbers}},
                       {"Use83", "1"}});
    }
  }

  const CompileRequest& m_request;
  const ModGlob& m_glob;
  PageNames m_names;
  ChapterCounts m_chapters;
};

}  // namespace

std::vector<RunFact> FindRangeFacts(const ModGlob& glob, int cboStartBook, int cboEndBook) {
  std::vector<RunFact> facts;
  if (cboEndBook < cboStartBook) {
    facts.push_back(
        {RunFactKind::kEndsBeforeStart,
         true,
         {Translatable("Notice", "The ending book stands before the starting book: the index page has no links."),
          {}}});
  }
  const ChapterCounts counts = CountChapters(glob);
  int removed = -static_cast<int>(std::count_if(glob.missingChapters.begin(), glob.missingChapters.end(),
                                                [&](const auto& missing) { return missing.first <= cboStartBook; }));
  for (int book = 1; book <= cboStartBook && book <= kBooks; ++book) removed += counts[static_cast<std::size_t>(book)];
  if (removed > 0) {
    facts.push_back({RunFactKind::kRemovesPages,
                     cboEndBook < cboStartBook,
                     {Translatable("Notice", "%1 pages are removed, those of the books before the starting book."),
                      {std::to_string(removed)}}});
  }
  return facts;
}

std::vector<RunFact> FindRunFacts(const CompileRequest& request, const ModGlob& glob) {
  std::vector<RunFact> facts = FindRangeFacts(glob, request.cboStartBook, request.cboEndBook);
  const FactFinder finder(request, glob);
  finder.WarnOfRemoval(facts);
  finder.FindOtherTranslation(facts);
  finder.FindNames(facts);
  return facts;
}

}  // namespace folionet
