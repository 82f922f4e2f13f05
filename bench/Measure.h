#pragma once

#include <functional>
#include <string>
#include <vector>

namespace folionet::bench {

// One run of a program, as a whole process.
struct ProcessRun {
  double milliseconds = 0;
  long peakKiB = 0;
};

// Runs a program with its output thrown away; throws std::runtime_error when it does not end with status 0 or, when
// `mayRefuse`, 1.
ProcessRun RunProcess(const std::vector<std::string>& command, bool mayRefuse = false);

// The runs that an argument asks for, from 1 to 1000; throws std::runtime_error for another.
int ReadRuns(const std::string& argument);

double Median(std::vector<double> values);

// The medians of measurements that were made in turn, A B C A B C ..., so that a drift of the machine meets all alike.
// Each measurement gives milliseconds. The first round warms up and does not count.
std::vector<double> Interleave(int runs, const std::vector<std::function<double()>>& measurements);

// The milliseconds that `work` takes.
double Time(const std::function<void()>& work);

}  // namespace folionet::bench
