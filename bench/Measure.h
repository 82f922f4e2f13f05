#pragma once

#include <functional>
#include <string>
#include <vector>

namespace folionet::bench {

// The milliseconds of a program as a whole process, with its output thrown away. Throws std::runtime_error when it does
// not end with status 0 or, when `mayRefuse`, 1.
double RunProcess(const std::vector<std::string>& command, bool mayRefuse = false);

// The most memory in KiB that a program holds. The system counts what its parent held when it was started, so that this
// is to be asked by a process that holds little itself.
long PeakOfProcess(const std::vector<std::string>& command);

// The runs that an argument asks for, from 1 to 1000; throws std::runtime_error for another.
int ReadRuns(const std::string& argument);

double Median(std::vector<double> values);

// The medians of measurements that were made in turn, A B C A B C ..., so that a drift of the machine meets all alike.
// Each measurement gives milliseconds. The first round warms up and does not count.
std::vector<double> Interleave(int runs, const std::vector<std::function<double()>>& measurements);

// The milliseconds that `work` takes.
double Time(const std::function<void()>& work);

}  // namespace folionet::bench
