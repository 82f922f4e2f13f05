#include <csignal>

#include "Arguments.h"
#include "CommandEnd.h"
#include "RunTimeError.h"

namespace folionet {
namespace {

ExitStatus Run(const Arguments& arguments, ConsoleUi& ui) {
  try {
    return arguments.run(arguments.common, ui);
  } catch (const ExitWith& exit) {
    return exit.Status();
  } catch (const UsageError& error) {
    ui.Tell(error.what());
    return kExitUsage;
  } catch (const RunTimeError& error) {
    ui.ShowErrorReport({Procedure::kFormLoad, error});
  } catch (const std::exception& error) {
    ui.Tell(std::string("folionet-cli: ") + error.what());
  }
  return kExitFailed;
}

}  // namespace
}  // namespace folionet

int main(int argc, char** argv) {
  // A limit on the size of files is a failure of the write that meets it, like a full disk.
  std::signal(SIGXFSZ, SIG_IGN);
  const folionet::Arguments arguments = folionet::ParseArguments(argc, argv);
  folionet::ConsoleUi ui(arguments.common);
  folionet::ExitStatus status = arguments.status;
  if (arguments.run) {
    status = folionet::Run(arguments, ui);
  } else {
    ui.PrintText(arguments.output);
    ui.TellText(arguments.errors);
  }
  if (!ui.Finish()) return folionet::kExitFailed;
  return status;
}
