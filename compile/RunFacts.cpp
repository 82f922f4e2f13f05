#include "RunFacts.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <set>
#include <string_view>
#include <utility>

#include "ChapterIndex.h"
#include "CharsetFacts.h"
#include "CodePage.h"
#include "FileHandle.h"
#include "FolderFacts.h"
#include "GeneratorLine.h"
#include "OutputFolder.h"
#include "PageNames.h"
#include "Paths.h"
#include "RunTimeError.h"
#include "TypedFindings.h"

namespace folionet {
namespace {

class FactFinder {
 public:
  FactFinder(const CompileRequest& request, const ModGlob& glob)
      : m_request(request),
        m_glob(glob),
        m_names(PageNamesOf(request, glob)),
        m_chapters(CountChapters(glob)),
        m_index(IndexFileName(request.options.txthttpRoot)) {}

  // What is only good to know of the books becomes a warning where pages of theirs are there now.
  std::vector<Finding> WarnOfRemoval(std::vector<Finding> facts) const {
    if (m_request.txtOutputPath.empty()) return facts;
    for (Finding& fact : facts) {
      if (fact.kind == "removes-pages" && ArePagesThere()) fact.severity = Severity::kWarning;
    }
    return facts;
  }

  // What is there of others in the output folder, and what the names of the pages lead to.
  std::vector<Finding> Find() {
    FindOtherTranslation();
    FindSharedIndex();
    FindMeetingBooks();
    FindLostBooks();
    FindLostIndex();
    FindLostImage();
    WarnOfOldPages();
    return std::move(m_facts);
  }

  std::set<std::string> OldPages() const {
    std::set<std::string> old;
    const std::string& folder = m_request.txtOutputPath;
    if (folder.empty() || !FolderExists(folder)) return old;
    const WrittenFiles known = FilesOfSite(m_request, m_glob);
    std::vector<std::string> names;
    try {
      names = FolderEntries(folder);
    } catch (const RunTimeError&) {
      return old;  // of a folder that may be written and not be read nothing is known
    }
    for (std::string& name : names) {
      if (!IsHtmlName(name) || known.contains(name)) continue;
      const FileHandle file = FileHandle::Open((folder + name).c_str(), O_RDONLY | O_NONBLOCK);
      if (IsOurPage(file)) old.insert(std::move(name));
    }
    return old;
  }

 private:
  // Several are told with their pages.
  void FindOtherTranslation() {
    const CodePage codePage(m_request.texts.PageCharset);
    const std::string there = TranslationOfSite(m_request, m_names);
    if (there.empty() || there == codePage.DecodeForDisplay(m_request.options.txtBibleSel)) return;
    const auto facts = LookIntoFolder(m_request.txtOutputPath, {}, [] { return true; }).value_or(FolderFacts());
    Sentence what{Words("QObject", "The folder holds pages of another translation: %1."), {there}};
    if (facts.translations.size() > 1) {
      std::string names;
      for (const auto& [name, pages] : facts.translations) {
        names += (names.empty() ? "" : ", ") + name + " (" + std::to_string(pages) + ")";
      }
      what = {Words("QObject", "The folder holds pages of several translations: %1."), {names}};
    }
    m_facts.push_back(Warning(
        "other-translation", std::move(what),
        {"Pages of the same names are written over; choose another folder with --output if that is not meant."}));
  }

  void WarnOfOldPages() {
    const std::set<std::string> old = OldPages();
    if (old.empty()) return;
    m_facts.push_back(Warning(
        "old-pages",
        {old.size() == 1 ? Words("QObject",
                                 "A page of an earlier compile, %2, lies in the folder. This one does not write "
                                 "it, and its index page does not lead to it.")
                         : Words("QObject",
                                 "%1 pages of earlier compiles, such as %2, lie in the folder. This one does "
                                 "not write them, and its index page does not lead to them."),
         {std::to_string(old.size()), *old.begin()}},
        {"\"folionet-cli verify FOLDER%1 --remove-stale\" deletes such pages and prints their names.",
         {m_index.empty() || m_index == "index.html" ? "" : " --index " + m_index}}));
  }

  int Books() const { return static_cast<int>(m_glob.cboStartBook.size()); }
  int ChaptersOf(int book) const { return m_chapters[static_cast<std::size_t>(book)]; }

  bool ArePagesThere() const {
    const std::string& folder = m_request.txtOutputPath;
    bool areThere = false;
    for (int book = 1; book <= m_request.cboStartBook; ++book) {
      ForEachChapter(m_glob, book, ChaptersOf(book), [&](int chapter) {
        const std::string name = m_names.OnDisk(book, chapter);
        areThere = areThere || (IsPageName(name) && FileExists(folder + name));
      });
    }
    return areThere;
  }

  // The pages of the books before the starting one are deleted in any case, and those that stay are not.
  void FindSharedIndex() {
    const CodePage utf8("utf-8");
    const std::string index = utf8.ToLower(m_index);
    std::string alike;
    for (int book = m_request.cboStartBook + 1; book <= Books(); ++book) {
      if (!index.starts_with(utf8.ToLower(m_names.BookOnDisk(book)))) continue;
      bool takesPage = false;
      ForEachChapter(m_glob, book, ChaptersOf(book), [&](int chapter) {
        const std::string page = m_names.OnDisk(book, chapter);
        takesPage = takesPage || page == m_index;
        if (alike.empty() && utf8.ToLower(page) == index) alike = page;
      });
      if (!takesPage) continue;
      m_facts.push_back(Warning("index-takes-page",
                                {Words("QObject", "The index page %1 takes the place of a chapter's page."), {m_index}},
                                {"Give it a name of its own with --index-address."}));
      return;
    }
    if (alike.empty()) return;
    m_facts.push_back(Warning("index-takes-page",
                              {Words("QObject",
                                     "The index page %1 takes the place of a chapter's page, %2, where the letter case "
                                     "of names does not count, as on Windows."),
                               {m_index, alike}},
                              {"Give it a name of its own with --index-address."}));
  }

  void FindMeetingBooks() {
    std::map<std::string, std::vector<int>> booksOfName;
    for (int book = m_request.cboStartBook + 1; book <= Books(); ++book) {
      if (ChaptersOf(book) > 0) booksOfName[m_names.OnDisk(book, 1)].push_back(book);
    }
    for (const auto& [name, books] : booksOfName) {
      if (books.size() < 2) continue;
      std::string numbers;
      for (const int book : books) numbers += (numbers.empty() ? "" : ", ") + std::to_string(book);
      m_facts.push_back(
          Warning("pages-meet",
                  {Words("QObject",
                         "The books %2 have the same page names, such as %1: only the pages of the last one are kept."),
                   {name, numbers}},
                  {"Give other titles with --language-file, or short names: --set \"Use83=1\"."}));
    }
  }

  void FindLostBooks() {
    std::string first;
    std::string numbers;
    for (int book = m_request.cboStartBook + 1; book <= Books(); ++book) {
      if (ChaptersOf(book) == 0 || m_names.AreReached(book)) continue;
      if (first.empty()) first = m_names.OnDisk(book, 1);
      numbers += (numbers.empty() ? "" : ", ") + std::to_string(book);
    }
    if (first.empty()) return;
    m_facts.push_back(
        Warning("pages-not-found",
                {Words("QObject",
                       "No browser finds the pages of the books %2, such as %1: \"?\", \"#\", \":\" and a quotation "
                       "mark have another meaning in a link."),
                 {first, numbers}},
                {"Give other titles with --language-file, or short names: --set \"Use83=1\"."}));
  }

  // A ":" is that of a scheme only before "//".
  static bool IsReached(std::string_view address) {
    const std::size_t colon = address.substr(0, address.find('/')).find(':');
    const bool isOfScheme = colon == std::string_view::npos || address.substr(colon + 1).starts_with("//");
    return isOfScheme && address.find_first_of("\"#") == std::string_view::npos &&
           address.find('?', address.rfind('/') + 1) == std::string_view::npos;
  }

  void FindLostIndex() {
    if (IsReached(m_request.options.txthttpRoot)) return;
    m_facts.push_back(Warning(
        "index-not-found",
        {Words("QObject",
               "No browser finds the index page %1: \"?\", \"#\", \":\" and a quotation mark have another meaning in a "
               "link."),
         {m_request.options.txthttpRoot}},
        {"Give it another name with --index-address."}));
  }

  void FindLostImage() {
    const PageOptions& options = m_request.options;
    const std::string& image = options.frmBackground.txtImagepath;
    if (!options.chkBack || options.chkCSS || image.find("://") != std::string::npos || IsReached(image)) return;
    m_facts.push_back(Warning("image-not-found",
                              {Words("QObject",
                                     "No browser finds the background image %1: \"?\", \"#\", \":\" and a quotation "
                                     "mark have another meaning in a link."),
                               {image}},
                              {"Give its file another name, and --set \"BackImage=NAME\"."}));
  }

  const CompileRequest& m_request;
  const ModGlob& m_glob;
  PageNames m_names;
  ChapterCounts m_chapters;
  std::string m_index;
  std::vector<Finding> m_facts;
};

void Append(std::vector<Finding>& facts, std::vector<Finding> more) {
  std::move(more.begin(), more.end(), std::back_inserter(facts));
}

// Of the chosen books.
std::vector<Finding> FindRangeFacts(const CompileRequest& request, const ModGlob& glob) {
  std::vector<Finding> facts;
  const bool isReversed = request.cboEndBook < request.cboStartBook;
  if (isReversed) {
    facts.push_back(
        Warning("ends-before-start",
                {Words("QObject", "The ending book stands before the starting book: the index page has no links."), {}},
                {"Give the books in their order with --start-book and --end-book."}));
  }
  const ChapterCounts counts = CountChapters(glob);
  const auto pagesOf = [&](int book) {
    const auto missing = std::count_if(glob.missingChapters.begin(), glob.missingChapters.end(),
                                       [&](const auto& chapter) { return chapter.first == book; });
    return counts[static_cast<std::size_t>(book)] - static_cast<int>(missing);
  };
  const auto addRemoval = [&](FindingKind kind, int pages, const char* one, const char* many) {
    if (pages == 0) return;
    facts.push_back({.kind = kind,
                     .severity = isReversed ? Severity::kWarning : Severity::kNote,
                     .what = {pages == 1 ? one : many, {std::to_string(pages)}}});
  };
  int chosen = 0;
  for (int book = request.cboStartBook + 1; book <= std::min(request.cboEndBook + 1, kBooks); ++book) {
    chosen += pagesOf(book);
  }
  if (chosen == 0 && !isReversed) {
    facts.push_back(Warning(
        "no-chapters",
        {Words("QObject", "The chapter index counts no chapter of the chosen books: the index page has no links."), {}},
        {"Choose books that it counts with --books, or with --start-book and --end-book."}));
  }
  int before = 0;
  for (int book = 1; book <= std::min(request.cboStartBook, kBooks); ++book) before += pagesOf(book);
  addRemoval("removes-pages", before, Words("QObject", "1 page is removed, that of a book before the starting book."),
             Words("QObject", "%1 pages are removed, those of the books before the starting book."));
  if (!request.onlyChosen) return facts;
  int after = 0;
  const PageNames names = PageNamesOf(request, glob);
  for (const int book : BooksRemovedAfter(request, names)) after += pagesOf(book);
  addRemoval("removes-later-pages", after, Words("QObject", "1 page is removed, that of a book after the ending book."),
             Words("QObject", "%1 pages are removed, those of the books after the ending book."));
  return facts;
}

}  // namespace

std::set<std::string> FindOldPages(const CompileRequest& request, const ModGlob& glob) {
  return FactFinder(request, glob).OldPages();
}

std::vector<Finding> FindRunFacts(const CompileRequest& request, const ModGlob& glob) {
  std::vector<Finding> facts;
  const std::size_t translations = glob.cboBibleName.size();
  if (!request.isTranslationNamed && translations > 1) {
    facts.push_back({.kind = "took-first",
                     .severity = Severity::kNote,
                     .what = {Words("QObject", "No translation is named: of %2, the first is taken, %1."),
                              {CodePage(request.texts.PageCharset).DecodeForDisplay(request.options.txtBibleSel),
                               std::to_string(translations)}},
                     .remedy = {"Name one with --translation NAME."}});
  }
  FactFinder finder(request, glob);
  Append(facts, finder.WarnOfRemoval(FindRangeFacts(request, glob)));
  Append(facts, finder.Find());
  Append(facts, FindCharsetFacts(request, glob));
  Append(facts, FindInTypedTexts({request.options, request.texts, request.programFolder}));
  return facts;
}

}  // namespace folionet
