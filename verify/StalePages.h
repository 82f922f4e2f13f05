#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "Finding.h"
#include "SiteReport.h"

namespace folionet {

// What became of pages that were to be removed.
struct RemovedPages {
  std::vector<std::string> removed;
  std::vector<Finding> kept;  // why others are still there
  std::size_t left = 0;       // how many are, since the removing was stopped
};

// Deletes the stale pages of a site, in the very folder that was verified, each looked at once more: a file that is no
// page of a compile is never deleted, nor anything behind a symbolic link. `announce` is told each page before it is
// deleted; false stops, and that page stays. Throws RunTimeError, kPermissionDenied while a compile writes into the
// folder, or when the site is another one since it was verified.
RemovedPages RemovePages(const SiteReport& verified, const std::function<bool(const std::string& page)>& announce = {});

}  // namespace folionet
