#pragma once

#include <csignal>
#include <exception>
#include <stdexcept>
#include <string>

#include "ExitStatus.h"
#include "StopSignals.h"

namespace folionet {

// Ends the command with an exit status; what there is to say has been said.
class ExitWith : public std::exception {
 public:
  explicit ExitWith(ExitStatus status) : m_status(status) {}
  ExitStatus Status() const { return m_status; }

 private:
  ExitStatus m_status;
};

// An argument that cannot be used: its text says what to do instead, and ends the command with kExitUsage.
class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// How a command ends that a signal has stopped.
inline ExitStatus StoppedStatus() { return StopSignal() == SIGINT ? kExitInterrupted : kExitTerminated; }

[[noreturn]] inline void RefuseUsage(const std::string& text) { throw UsageError(text); }

}  // namespace folionet
