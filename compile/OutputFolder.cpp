#include "OutputFolder.h"

#include <algorithm>
#include <set>
#include <string_view>

#include "ChapterNav.h"
#include "FileNames.h"
#include "MakeFolders.h"
#include "Numbers.h"
#include "PageFile.h"
#include "Paths.h"
#include "RunTimeError.h"
#include "Utf8.h"
#include "WholeFile.h"

namespace folionet {
namespace {

void Remove(const CompileRequest& request, RunFolder& folder, const std::string& name) {
  EndIfStopped(request);
  const Removal removal = folder.site.Remove(name);
  if (request.changes == nullptr) return;
  request.changes->NoteRemoved(name, removal);
  if (folder.site.HasKeptOld()) request.changes->NoteKept(name);
}

}  // namespace

void EndIfStopped(const CompileRequest& request) {
  if (request.isStopped && request.isStopped()) throw Stopped();
}

void OpenOutputFolder(const CompileRequest& request, RunFolder& folder) {
  if (folder.site.IsOpen()) return;
  const std::string& path = request.txtOutputPath;
  const Doing doing = request.dryRun ? Doing::kPlan : Doing::kChange;
  if (request.makeOutputFolder && IsFolderChosen(request)) {
    WorkAbout(Subject::kOutputFolder, [&] { MakeFolders(path, doing); });
  }
  folder.site.Open(path, doing);
  folder.site.Lock();
  folder.journal = std::make_shared<ChangeJournal>(request.stateFolder, folder.site.RealPath());
  // Another folder was in this place when a program that runs still opened it.
  if (!folder.journal->Holder().empty()) folder.site.RefuseHeld(folder.journal->Holder());
  folder.site.SetWatch(folder.journal.get());
}

void EndRun(const CompileRequest& request, RunFolder& folder) {
  if (folder.journal && request.changes != nullptr) {
    if (request.listsChanges) request.changes->journal = folder.journal;
    request.changes->knowsPending = folder.journal->KnowsPending();
    request.changes->trouble = folder.journal->Trouble();
    for (const std::string& name : folder.journal->Pending()) {
      if (request.changes->IsTold(name)) continue;
      (folder.site.Has(name) ? request.changes->pending : request.changes->pendingRemoved).push_back(name);
    }
  }
}

void ForgetChanges(const CompileRequest& request, RunFolder& folder) {
  if (folder.journal && !request.listsChanges) folder.journal->Forget();
}

std::string StyleSheetOf(const CompileRequest& request) {
  return request.styleSheet.empty() ? request.programFolder + kStyleSheetFile : request.styleSheet;
}

void CopyCSS(const CompileRequest& request, RunFolder& folder) {
  if (!IsFolderChosen(request)) return;
  const std::string source = StyleSheetOf(request);
  const std::string content = WorkAbout(Subject::kStyleSheet, [&] { return ReadWholeFile(source); });
  OpenOutputFolder(request, folder);
  if (folder.site.IsSameFile(kStyleSheetFile, source)) {
    throw RunTimeError(kFileAlreadyOpen, folder.site.Path() + kStyleSheetFile,
                       "The output folder is the program's own folder. Choose another one.")
        .About(Subject::kStyleSheet);
  }
  WorkAbout(Subject::kStyleSheet, [&] { WriteOtherFile(request, folder, kStyleSheetFile, content + "\r\n"); });
}

void NoteWritten(const CompileRequest& request, const RunFolder& folder, const std::string& name, PageChange change) {
  if (request.changes == nullptr) return;
  request.changes->Written(name, change, folder.site.WrittenBytes());
  if (folder.site.HasKeptOld()) request.changes->NoteKept(name);
}

void WriteOtherFile(const CompileRequest& request, RunFolder& folder, const std::string& name, std::string_view bytes) {
  const PageChange change = folder.site.Write(name, bytes);
  NoteWritten(request, folder, name, change);
}

std::vector<int> BooksRemovedAfter(const CompileRequest& request, const PageNames& names) {
  std::vector<int> books;
  if (!request.onlyChosen) return books;
  std::set<std::string> chosen;
  for (int book = request.cboStartBook + 1; book <= request.cboEndBook + 1; ++book) {
    chosen.insert(names.BookOnDisk(book));
  }
  for (int book = std::max(request.cboStartBook, request.cboEndBook + 1) + 1; book <= kBooks; ++book) {
    if (!chosen.contains(names.BookOnDisk(book))) books.push_back(book);
  }
  return books;
}

std::int16_t CleanUp(const CompileRequest& request, const PageInputs& inputs, const std::vector<std::string>& kept,
                     RunFolder& folder) {
  std::unordered_multimap<std::string, std::string> keptNames;
  if (request.cboStartBook > 0 || request.onlyChosen) {
    for (const std::string& name : kept) keptNames.emplace(FoldCase(name), name);
  }
  // A file system may take names that differ in letter case for one.
  const auto isKept = [&](const std::string& name) {
    const auto [begin, end] = keptNames.equal_range(FoldCase(name));
    return std::any_of(begin, end,
                       [&](const auto& row) { return row.second == name || folder.site.IsOneFile(row.second, name); });
  };
  std::int16_t removed = 0;
  const auto removeBook = [&](int book) {
    ForEachChapter(inputs.glob, book, ChaptersOf(inputs, book), [&](int chapter) {
      const std::string name = inputs.names.OnDisk(book, chapter);
      if (IsPageName(name) && !isKept(name)) Remove(request, folder, name);
      if (removed < kInt16Max) ++removed;
      inputs.ui.SetPanel(1, "Removing extra HTML .. " + name);
    });
  };
  for (int book = 1; book <= request.cboStartBook; ++book) removeBook(book);
  for (const int book : BooksRemovedAfter(request, inputs.names)) removeBook(book);
  return removed;
}

}  // namespace folionet
