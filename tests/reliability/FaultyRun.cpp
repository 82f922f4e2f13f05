#include "FaultyRun.h"

#include <fstream>
#include <stdexcept>

namespace folionet::test {

FaultyRun RunFaulty(const Command& command, const TemporaryFolder& home, const std::string& watched,
                    const Fault& fault) {
  const TemporaryFolder outside;
  const std::string log = outside.Write("log", "");
  FaultyRun run{RunProgram(command, home.Path(),
                           {std::string("LD_PRELOAD=") + FAULTY_CALLS, "FAULT_FOLDER=" + watched, "FAULT_LOG=" + log,
                            "FAULT_AT=" + std::to_string(fault.at), "FAULT_KIND=" + fault.kind}),
                {}};
  std::ifstream calls(log);
  for (Call call; calls >> call.name && std::getline(calls.ignore(), call.path);) run.calls.push_back(call);
  if (run.calls.size() < fault.at) throw std::runtime_error("the call that was to go wrong was not met");
  return run;
}

}  // namespace folionet::test
