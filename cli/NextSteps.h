#pragma once

#include <string_view>

#include "ErrorReport.h"
#include "UserInterface.h"

namespace folionet {

// What a person at the command line does about a box that refuses a run, by what the box is about: one line that
// names the option to give. Empty for a box that says so itself.
std::string_view NextStep(Topic topic);

// The same about a first start's failure, which is long: told before its report. Empty for any other procedure.
std::string_view StepBeforeReport(Procedure procedure);

// The same about an error report, by the procedure that failed, the error's number and its subject. Empty for a report
// that a box with a step of its own follows.
std::string_view NextStepAfterReport(const ErrorReport& report);

}  // namespace folionet
