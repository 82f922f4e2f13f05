#pragma once

#include <csignal>
#include <utility>
#include <vector>

namespace folionet {

// While one lives, the first SIGINT, SIGTERM or SIGHUP does not end the program but is noted; a second one ends it. One
// that is ignored already, as under nohup, stays so. There is one at a time.
class StopSignals {
 public:
  StopSignals();
  StopSignals(const StopSignals&) = delete;
  StopSignals& operator=(const StopSignals&) = delete;
  ~StopSignals();

 private:
  std::vector<std::pair<int, struct sigaction>> m_before;
};

// The signal that was noted last; 0 for none since the last StopSignals began.
int StopSignal();

}  // namespace folionet
