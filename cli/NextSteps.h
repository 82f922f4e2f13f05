#pragma once

#include <string_view>

namespace folionet {

// What a person at the command line does about a box that refuses a run, by the box's title: one line that names the
// option to give. Empty for a box that says so itself.
std::string_view NextStep(std::string_view title);

// The same about a first start's failure, which is long: told before its report. Empty for any other procedure.
std::string_view StepBeforeReport(std::string_view moduleLabel);

// The same about an error report, by its number, the procedure that failed and what the report names. Empty for a
// report that a box with a step of its own follows.
std::string_view NextStepAfterReport(int errorNumber, std::string_view moduleLabel, std::string_view extraInfo);

}  // namespace folionet
