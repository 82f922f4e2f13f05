#pragma once

namespace folionet {

// The exit statuses of the programs.
enum ExitStatus {
  kExitDone = 0,
  kExitRefused = 1,
  kExitUsage = 2,
  kExitFailed = 3,
  kExitInterrupted = 130,  // by SIGINT
  kExitTerminated = 143    // by SIGTERM or SIGHUP
};

}  // namespace folionet
