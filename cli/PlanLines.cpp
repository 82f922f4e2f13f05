#include "PlanLines.h"

#include <array>
#include <string_view>

#include "CodePage.h"
#include "Counted.h"
#include "PageNames.h"
#include "RunFacts.h"
#include "Text.h"

namespace folionet {
namespace {

void PrintLine(const Finding& finding, ConsoleUi& ui) {
  if (ui.IsJson()) return ui.Show(finding);
  constexpr std::size_t kColumn = 9;
  const std::string_view kind = finding.kind.Word();
  ui.Print(std::string(kind).append(kColumn - kind.size(), ' ') + finding.file + finding.what.InEnglish());
}

void PrintFiles(FindingKind kind, const std::vector<std::string>& names, ConsoleUi& ui) {
  for (const std::string& name : names) PrintLine({.kind = kind, .severity = Severity::kNote, .file = name}, ui);
}

struct Extent {
  std::size_t pages = 0;
  std::size_t bytes = 0;
};

// The book whose pages' names begin as this one does; 0 for another file.
int BookOf(const std::string& name, const PageNames& names) {
  int best = 0;
  for (int book = 1; book <= kBooks; ++book) {
    const std::string& begin = names.BookOnDisk(book);
    if (!name.starts_with(begin) || (best != 0 && begin.size() <= names.BookOnDisk(best).size())) continue;
    if (name.size() > begin.size() && IsDigit(name[begin.size()])) best = book;
  }
  return best;
}

// Those that are not in the index page's range lie there all the same.
void PrintBooks(const CompileRequest& request, const ModGlob& glob, const std::array<Extent, kBooks + 1>& books,
                ConsoleUi& ui) {
  const CodePage codePage(request.texts.PageCharset);
  for (int book = 1; book <= kBooks; ++book) {
    const Extent& extent = books[static_cast<std::size_t>(book)];
    if (extent.pages == 0) continue;
    const bool isChosen = book > request.cboStartBook && book <= request.cboEndBook + 1;
    const std::string title = codePage.DecodeForDisplay(glob.cboStartBook[static_cast<std::size_t>(book - 1)]);
    PrintLine({.kind = "book",
               .severity = Severity::kNote,
               .place = {.book = book},
               .what = {"%1: %2, %3%4",
                        {title, Counted(extent.pages, "page"), Counted(extent.bytes, "byte"),
                         isChosen ? "" : ", not in the index page"}}},
              ui);
  }
}

}  // namespace

void PrintPlan(const CompileRequest& request, const ModGlob& glob, const SiteChanges& changes, ConsoleUi& ui) {
  PrintFiles("new", changes.New(), ui);
  PrintFiles("changed", changes.Changed(), ui);
  PrintFiles("same", changes.Same(), ui);
  PrintFiles("removed", changes.Removed(), ui);
  for (const std::string& name : changes.Kept()) PrintFiles("kept", {KeptName(name)}, ui);
  for (const std::string& name : FindOldPages(request, glob)) PrintFiles("stale", {name}, ui);

  const PageNames names = PageNamesOf(request, glob);
  std::array<Extent, kBooks + 1> books{};
  std::size_t bytes = 0;
  for (const auto& list : {changes.New(), changes.Changed(), changes.Same()}) {
    for (const std::string& name : list) {
      Extent& extent = books[static_cast<std::size_t>(BookOf(name, names))];
      ++extent.pages;
      extent.bytes += changes.Bytes(name);
      bytes += changes.Bytes(name);
    }
  }
  PrintBooks(request, glob, books, ui);
  const std::string counts = std::to_string(changes.New().size()) + " new, " +
                             std::to_string(changes.Changed().size()) + " changed, " +
                             std::to_string(changes.Same().size()) + " the same, " +
                             std::to_string(changes.Removed().size()) + " removed; " + Counted(bytes, "byte") + ".";
  if (ui.IsJson()) return ui.Show({.kind = "plan", .severity = Severity::kNote, .what = {"%1", {counts}}});
  ui.Sum(counts + " Nothing was written.", Severity::kWarning);
}

}  // namespace folionet
