#pragma once

#include <string>
#include <string_view>

#include "CompileContext.h"
#include "CompileRequest.h"
#include "FileHandle.h"
#include "PageInputs.h"

namespace folionet {

// Makes the request's output folder, parents included, when it is missing and the request says so. Throws RunTimeError.
void MakeOutputFolder(const CompileRequest& request);

// Holds the output folder for one run, so that no two compiles mix their pages: a second one is kPermissionDenied for
// as long as the handle is open. Nothing is held for a dry run or for a folder that is not there. Throws RunTimeError.
FileHandle LockOutputFolder(const CompileRequest& request);

// Writes a copy of the program folder's default.css, with one further CR LF, into the output folder. With no folder
// chosen yet nothing is done. Throws RunTimeError; kFileAlreadyOpen when both are the same file.
void CopyCSS(const CompileRequest& request);

// Writes a file that is no page into the output folder, in the manner of pages. Throws RunTimeError.
void WriteOtherFile(const CompileRequest& request, const std::string& name, std::string_view bytes);

// Deletes the pages of the books before the start book. Gives the number of deletions tried, which counts pages that
// were not there; every failure is passed over.
std::int16_t CleanUp(const CompileRequest& request, const PageInputs& inputs);

}  // namespace folionet
