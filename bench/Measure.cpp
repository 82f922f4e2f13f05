#include "Measure.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cstring>
#include <stdexcept>

extern char** environ;

namespace folionet::bench {

double Time(const std::function<void()>& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

namespace {

// What the process has used; throws when it does not end with status 0 or, when `mayRefuse`, 1.
rusage Run(const std::vector<std::string>& command, bool mayRefuse) {
  std::vector<char*> arguments;
  for (const std::string& argument : command) arguments.push_back(const_cast<char*>(argument.c_str()));
  arguments.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, 1, "/dev/null", O_WRONLY, 0);
  pid_t child = 0;
  const int error = posix_spawn(&child, arguments[0], &actions, nullptr, arguments.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  if (error != 0) throw std::runtime_error("cannot start " + command[0]);
  int status = 0;
  rusage usage{};
  wait4(child, &status, 0, &usage);
  const int exitStatus = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  if (exitStatus != 0 && !(mayRefuse && exitStatus == 1)) {
    throw std::runtime_error(command[0] + " ended with status " + std::to_string(exitStatus));
  }
  return usage;
}

}  // namespace

double RunProcess(const std::vector<std::string>& command, bool mayRefuse) {
  return Time([&] { Run(command, mayRefuse); });
}

long PeakOfProcess(const std::vector<std::string>& command) { return Run(command, false).ru_maxrss; }

int ReadRuns(const std::string& argument) {
  int runs = 0;
  const char* end = argument.data() + argument.size();
  const auto [stop, error] = std::from_chars(argument.data(), end, runs);
  if (error != std::errc() || stop != end || runs < 1 || runs > 1000) {
    throw std::runtime_error("a number of runs from 1 to 1000 was expected: " + argument);
  }
  return runs;
}

double Median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  const std::size_t middle = values.size() / 2;
  return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

std::vector<double> Interleave(int runs, const std::vector<std::function<double()>>& measurements) {
  std::vector<std::vector<double>> times(measurements.size());
  for (int run = -1; run < runs; ++run) {
    for (std::size_t i = 0; i < measurements.size(); ++i) {
      const double time = measurements[i]();
      if (run >= 0) times[i].push_back(time);
    }
  }
  std::vector<double> medians;
  for (const auto& of : times) medians.push_back(Median(of));
  return medians;
}

}  // namespace folionet::bench
