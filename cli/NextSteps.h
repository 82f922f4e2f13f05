#pragma once

#include <string_view>

namespace folionet {

// What a person at the command line does about a box that refuses a run, by the box's title: one line that names the
// option to give. Empty for a box that says so itself.
std::string_view NextStep(std::string_view title);

}  // namespace folionet
