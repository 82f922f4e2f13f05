#pragma once

#include <string>
#include <vector>

#include "Finding.h"
#include "SiteReport.h"

namespace folionet {

// What became of pages that were to be removed.
struct RemovedPages {
  std::vector<std::string> removed;
  std::vector<Finding> kept;  // why the others are still there
};

// Deletes the stale pages of a site that was verified, each looked at once more: a file that is no page of a compile is
// never deleted, nor anything behind a symbolic link. Throws RunTimeError when the folder cannot be opened, and
// kPermissionDenied while a compile writes into it, or when the site is another one since it was verified.
RemovedPages RemovePages(const std::string& folder, const SiteReport& verified);

}  // namespace folionet
