#pragma once

#include <string>

#include "Session.h"

namespace folionet {

// Reads a written site through and prints each link that leads nowhere as "page:line: ...", then the pages that the
// index does not lead to, then the counts. Control characters are shown as "?". Changes nothing. Gives kExitRefused
// when a link is broken. `indexName` may be empty: then it is index.html or index.htm.
ExitStatus RunVerify(const std::string& folder, const std::string& indexName);

}  // namespace folionet
