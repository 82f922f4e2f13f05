#pragma once

#include <string>

#include "CommonOptions.h"
#include "ConsoleUi.h"

namespace folionet {

// The arguments of "folionet-cli verify"; an empty text stands for one that was not given.
struct VerifyArguments {
  std::string folder;
  std::string indexName;
  bool stale = false;        // print the pages of ours that nothing leads to, and nothing else
  bool removeStale = false;  // delete them, and print those
};

// Reads a written site through, that of `common`'s site file where no folder was given; its index page is then the one
// that this file names, if any. Prints each thing that links name and that is not there as "page:line: ...", of the
// first page that names it, then the pages that the index does not lead to, then the counts. What to do next goes to
// standard error. Changes nothing but what "removeStale" asks for. Gives kExitRefused when a link is broken or a page
// cannot be read, or when it is not certain that nothing leads to the pages to remove. `indexName` may be empty: then
// it is index.html or index.htm; one that is not there is a usage error.
ExitStatus RunVerify(const CommonOptions& common, VerifyArguments arguments, ConsoleUi& ui);

}  // namespace folionet
