#include "RunFacts.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <map>
#include <set>
#include <unordered_set>

#include "CodePage.h"
#include "FileHandle.h"
#include "FolderFacts.h"
#include "GeneratorLine.h"
#include "OutputFolder.h"
#include "PageFile.h"
#include "PageNames.h"
#include "Paths.h"
#include "WholeFile.h"

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

bool IsPageByName(const std::string& name) { return name.ends_with(".html") || name.ends_with(".htm"); }

bool IsPageOfOurs(const std::string& path) {
  const FileHandle file = FileHandle::Open(path.c_str(), O_RDONLY | O_NONBLOCK);
  std::string head;
  return FileExists(path) && file.IsOpen() && ReadAll(file.Get(), head, kGeneratorHead, 0) && IsOurPage(head);
}

class FactFinder {
 public:
  FactFinder(const CompileRequest& request, const ModGlob& glob)
      : m_request(request),
        m_glob(glob),
        m_names(glob.cboStartBook, request.options.chkUse83, CodePage(request.texts.PageCharset)),
        m_chapters(CountChapters(glob)),
        m_index(IndexFileName(request.options.txthttpRoot)) {}

  // What is only good to know of the books becomes a warning where pages of theirs are there now.
  void WarnOfRemoval(std::vector<RunFact>& facts) const {
    if (m_request.txtOutputPath.empty()) return;
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

  // Pages of ours in the output folder that this run neither writes nor deletes.
  void FindOldPages(std::vector<RunFact>& facts) const {
    const std::string folder = NativePath(m_request.txtOutputPath);
    if (folder.empty() || !FolderExists(folder)) return;
    const std::unordered_set<std::string> known = NamesOfRun();
    std::set<std::string> old;
    for (std::string& name : FolderEntries(folder)) {
      if (IsPageByName(name) && !known.contains(name) && IsPageOfOurs(folder + name)) old.insert(std::move(name));
    }
    if (old.empty()) return;
    facts.push_back(
        {RunFactKind::kOldPages,
         true,
         {Translatable("Notice",
                       "%1 pages of earlier compiles, such as %2, lie in the folder. This one does not write "
                       "them, and its index page does not lead to them."),
          {std::to_string(old.size()), *old.begin()}}});
  }

 private:
  int Books() const { return static_cast<int>(m_glob.cboStartBook.size()); }
  int ChaptersOf(int book) const { return m_chapters[static_cast<std::size_t>(book)]; }

  // By the numbers of the index and by the order of its books: the one that the text has may be either.
  std::unordered_set<std::string> NamesOfRun() const {
    std::unordered_set<std::string> names{m_index};
    for (const ChapterEntry& entry : m_glob.ChapterIndex) {
      if (entry.Book >= 1 && entry.Book <= Books()) names.insert(m_names.OnDisk(entry.Book, entry.Chapter));
    }
    for (int book = 1; book <= Books(); ++book) {
      for (int chapter = 1; chapter <= ChaptersOf(book); ++chapter) names.insert(m_names.OnDisk(book, chapter));
    }
    names.insert(m_names.OnDisk(m_request.cboStartBook + 1, 1));
    return names;
  }

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

  // The pages of the books before the starting one are deleted in any case, and those that stay are not.
  void FindSharedIndex(std::vector<RunFact>& facts) const {
    for (int book = m_request.cboStartBook + 1; book <= Books(); ++book) {
      if (!m_index.starts_with(m_names.BookOnDisk(book))) continue;
      for (int chapter = 1; chapter <= ChaptersOf(book); ++chapter) {
        if (m_names.OnDisk(book, chapter) != m_index) continue;
        facts.push_back(
            {RunFactKind::kIndexTakesPage,
             true,
             {Translatable("Notice", "The index page %1 takes the place of a chapter's page."), {m_index}}});
        return;
      }
    }
  }

  void FindMeetingBooks(std::vector<RunFact>& facts) const {
    std::map<std::string, std::vector<int>> booksOfName;
    for (int book = m_request.cboStartBook + 1; book <= Books(); ++book) {
      if (ChaptersOf(book) > 0) booksOfName[m_names.OnDisk(book, 1)].push_back(book);
    }
    for (const auto& [name, books] : booksOfName) {
      if (books.size() < 2) continue;
      std::string numbers;
      for (const int book : books) numbers += (numbers.empty() ? "" : ", ") + std::to_string(book);
      facts.push_back({RunFactKind::kPagesMeet,
                       true,
                       {Translatable("Notice",
                                     "The books %2 have the same page names, such as %1: only the pages of "
                                     "the last one are kept."),
                        {name, numbers}},
                       {"Use83", "1"}});
    }
  }

  const CompileRequest& m_request;
  const ModGlob& m_glob;
  PageNames m_names;
  ChapterCounts m_chapters;
  std::string m_index;
};

void Append(std::vector<RunFact>& facts, std::vector<RunFact> more) {
  std::move(more.begin(), more.end(), std::back_inserter(facts));
}

}  // namespace

std::vector<RunFact> FindRangeFacts(const CompileRequest& request, const ModGlob& glob) {
  std::vector<RunFact> facts;
  const bool isReversed = request.cboEndBook < request.cboStartBook;
  if (isReversed) {
    facts.push_back(
        {RunFactKind::kEndsBeforeStart,
         true,
         {Translatable("Notice", "The ending book stands before the starting book: the index page has no links."),
          {}}});
  }
  const ChapterCounts counts = CountChapters(glob);
  const auto missing = [&](int book) {
    return static_cast<int>(std::count_if(glob.missingChapters.begin(), glob.missingChapters.end(),
                                          [&](const auto& chapter) { return chapter.first == book; }));
  };
  int before = 0;
  for (int book = 1; book <= std::min(request.cboStartBook, kBooks); ++book) {
    before += counts[static_cast<std::size_t>(book)] - missing(book);
  }
  if (before > 0) {
    facts.push_back({RunFactKind::kRemovesPages,
                     isReversed,
                     {Translatable("Notice", "%1 pages are removed, those of the books before the starting book."),
                      {std::to_string(before)}}});
  }
  if (!request.onlyChosen) return facts;
  int removed = 0;
  const PageNames names(glob.cboStartBook, request.options.chkUse83, CodePage(request.texts.PageCharset));
  for (const int book : BooksRemovedAfter(request, names))
    removed += counts[static_cast<std::size_t>(book)] - missing(book);
  if (removed > 0) {
    facts.push_back({RunFactKind::kRemovesLaterPages,
                     isReversed,
                     {Translatable("Notice", "%1 pages are removed, those of the books after the ending book."),
                      {std::to_string(removed)}}});
  }
  return facts;
}

std::vector<RunFact> FindRunFacts(const CompileRequest& request, const ModGlob& glob) {
  std::vector<RunFact> facts;
  const std::size_t translations = glob.cboBibleName.size();
  if (!request.isTranslationNamed && translations > 1) {
    facts.push_back({RunFactKind::kTookFirst,
                     false,
                     {Translatable("Notice", "No translation is named: of %2, the first is taken, %1."),
                      {CodePage(request.texts.PageCharset).DecodeForDisplay(request.options.txtBibleSel),
                       std::to_string(translations)}}});
  }
  Append(facts, FindRangeFacts(request, glob));
  const FactFinder finder(request, glob);
  finder.WarnOfRemoval(facts);
  finder.FindOtherTranslation(facts);
  finder.FindNames(facts);
  finder.FindOldPages(facts);
  Append(facts, FindCharsetFacts(request, glob));
  Append(facts, FindTextFacts(request));
  return facts;
}

}  // namespace folionet
