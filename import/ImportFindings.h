#pragma once

#include <vector>

#include "Finding.h"
#include "LibraryPlan.h"

namespace folionet {

// What a person is told of an import, in the order in which it is told: what becomes of the names of books, what is
// doubled, empty, missing or left out in the text, and where its language was taken from. `plan` has all but this.
std::vector<Finding> FindingsOf(const ImportedBible& bible, const LibraryRequest& request, const LibraryPlan& plan);

}  // namespace folionet
