#pragma once

#include <exception>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "ChangeJournal.h"
#include "CompileContext.h"
#include "CompileRequest.h"
#include "PageInputs.h"
#include "SiteFolder.h"

namespace folionet {

// Ends a run that a person broke off.
class Stopped : public std::exception {};

// To be asked between two files: throws Stopped where the request says so.
void EndIfStopped(const CompileRequest& request);

// The output folder of a run.
struct RunFolder {
  SiteFolder site;
  std::shared_ptr<ChangeJournal> journal;  // of an open folder
};

// Opens the request's output folder for the run, unless it is open: makes it, parents included, when it is missing and
// the request says so, and keeps it for this run alone, so that no two compiles mix their pages. Throws RunTimeError.
void OpenOutputFolder(const CompileRequest& request, RunFolder& folder);

// The style sheet that is copied into the site.
std::string StyleSheetOf(const CompileRequest& request);

// Writes a copy of the program folder's default.css, with one further CR LF, into the output folder. With no folder
// chosen yet nothing is done. Throws RunTimeError; kFileAlreadyOpen when both are the same file.
void CopyCSS(const CompileRequest& request, RunFolder& folder);

// Writes a file that is no page into the open folder, in the manner of pages. Throws RunTimeError.
void WriteOtherFile(const CompileRequest& request, RunFolder& folder, const std::string& name, std::string_view bytes);

// To be called when the run has ended: hands on what earlier runs left to tell, and has this one's changes told later.
void EndRun(const CompileRequest& request, RunFolder& folder);

// To be called behind it for a run that is done: its changes need not be told later, unless the request lists them.
void ForgetChanges(const CompileRequest& request, RunFolder& folder);

// Notes what became of a file, where the request says so.
void NoteWritten(const CompileRequest& request, const RunFolder& folder, const std::string& name, PageChange change);

// The books after the ending one whose pages are deleted, where only chosen books are to stay: not those whose names a
// chosen book has too.
std::vector<int> BooksRemovedAfter(const CompileRequest& request, const PageNames& names);

// Deletes the pages of the books before the start book, and of BooksRemovedAfter, but no file that one of the names of
// `kept` leads to. Gives the number of these pages, which counts those that are kept or were not there; every failure
// is passed over. Throws Stopped before a page, and RunTimeError where another program has begun to write there.
std::int16_t CleanUp(const CompileRequest& request, const PageInputs& inputs, const std::vector<std::string>& kept,
                     RunFolder& folder);

}  // namespace folionet
