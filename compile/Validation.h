#pragma once

#include <optional>
#include <string>

#include "CompileRequest.h"
#include "UserInterface.h"

namespace folionet {

// A refusal: what to tell, and the control that gets the focus (empty for none).
struct Refusal {
  Message message;
  std::string control;
};

// The address of the index page, split at its last ".": with 8.3 names `base` is what follows its last "/".
struct IndexAddress {
  std::string base;
  std::string extension;
};

// Throws RunTimeError (kInvalidProcedureCall) for an address without a ".".
IndexAddress SplitIndexAddress(const std::string& httpRoot, bool use83);

// The first thing, in the form's order, for which the request is refused before anything is prepared.
std::optional<Refusal> Validate(const CompileRequest& request);

}  // namespace folionet
