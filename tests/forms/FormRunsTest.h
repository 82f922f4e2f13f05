#pragma once

namespace folionet {

// Makes each case of tests/runs that drives the forms a test.
void RegisterFormRuns();

}  // namespace folionet
