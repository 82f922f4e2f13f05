#pragma once

#include <string>

#include "ConsoleUi.h"

namespace folionet {

// The arguments of "folionet-cli verify"; an empty text stands for one that was not given.
struct VerifyArguments {
  std::string folder;
  std::string indexName;
  bool stale = false;        // print the pages of ours that nothing leads to, and nothing else
  bool removeStale = false;  // delete them, and print those
};

// Reads a written site through and prints each thing that links name and that is not there as "page:line: ...", of the
// first page that names it, then the pages that the index does not lead to, then the counts. What to do next goes to
// standard error. Changes nothing but what "removeStale" asks for. Gives kExitRefused when a link is broken or a page
// cannot be read, or when it is not certain that nothing leads to the pages to remove. `indexName` may be empty: then
// it is index.html or index.htm; one that is not there is a usage error.
ExitStatus RunVerify(const VerifyArguments& arguments, ConsoleUi& ui);

}  // namespace folionet
