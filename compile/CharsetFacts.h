#pragma once

#include <vector>

#include "CompileRequest.h"
#include "Finding.h"
#include "modGlob.h"

namespace folionet {

// What is wrong between the charset of the pages and the bytes of the verse file and of the book titles (BookCodes and
// the start-book list).
std::vector<Finding> FindCharsetFacts(const CompileRequest& request, const ModGlob& glob);

}  // namespace folionet
