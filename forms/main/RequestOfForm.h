#pragma once

#include "AppState.h"
#include "CompileRequest.h"

namespace folionet {

namespace Ui {
class frmMain;
}
class FolderPickers;
class LibraryLists;

// What the form holds, as a compile run takes it.
CompileRequest GatherRequest(const AppState& state, const Ui::frmMain& controls, const LibraryLists& lists,
                             const FolderPickers& folders);

// Whether a site's file names what is no address for a sitemap, which is then told.
bool RefusesSitemap(const CompileRequest& request, const AppState& state);

// The path of the index page that a run of this request writes.
std::string IndexPagePath(const CompileRequest& request);

}  // namespace folionet
