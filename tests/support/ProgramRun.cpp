#include "ProgramRun.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <stdexcept>

#include "TemporaryFolder.h"

namespace folionet::test {
namespace {

// Ends by a signal what would never end; the slowest program of the tests, a whole Bible under sanitizers, takes a
// tenth.
constexpr unsigned kMostSeconds = 300;
// No file of a program of the tests is longer, what it prints included.
constexpr rlim_t kMostBytes = rlim_t{1} << 29;

bool Redirect(int descriptor, const std::string& path) {
  constexpr mode_t kMode = 0600;
  return dup2(open(path.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, kMode), descriptor) >= 0;
}

[[noreturn]] void Become(const std::vector<std::string>& command, const std::string& folder,
                         const std::vector<std::string>& environment, const std::string& caught) {
  constexpr int kCannotRun = 127;
  std::vector<char*> arguments;
  for (const std::string& argument : command) arguments.push_back(const_cast<char*>(argument.c_str()));
  arguments.push_back(nullptr);
  alarm(kMostSeconds);
  // Which a shell ignores for what it runs in the background.
  for (const int stop : {SIGINT, SIGTERM, SIGHUP}) signal(stop, SIG_DFL);
  const rlimit most{kMostBytes, kMostBytes};
  setrlimit(RLIMIT_FSIZE, &most);
  setenv("HOME", folder.c_str(), 1);
  setenv("XDG_CONFIG_HOME", (folder + "config").c_str(), 1);
  setenv("XDG_DATA_HOME", (folder + "data").c_str(), 1);
  setenv("XDG_STATE_HOME", (folder + "state").c_str(), 1);
  for (const std::string& variable : environment) putenv(const_cast<char*>(variable.c_str()));
  const bool ready = Redirect(STDOUT_FILENO, caught + "output") && Redirect(STDERR_FILENO, caught + "errors");
  if (ready && chdir(folder.c_str()) == 0) execv(arguments.front(), arguments.data());
  _exit(kCannotRun);
}

}  // namespace

ProgramResult RunProgram(const std::vector<std::string>& command, const std::string& folder,
                         const std::vector<std::string>& environment) {
  constexpr int kSignalBase = 128;
  const TemporaryFolder caught;
  const pid_t child = fork();
  if (child == 0) Become(command, folder, environment, caught.Path());
  int status = 0;
  if (child < 0 || waitpid(child, &status, 0) != child) throw std::runtime_error("cannot run " + command.front());
  return {WIFEXITED(status) ? WEXITSTATUS(status) : kSignalBase + WTERMSIG(status), caught.Read("output"),
          caught.Read("errors")};
}

ProgramResult RunCli(const std::vector<std::string>& arguments, const std::string& folder) {
  std::vector<std::string> command{FOLIONET_CLI};
  command.insert(command.end(), arguments.begin(), arguments.end());
  return RunProgram(command, folder);
}

}  // namespace folionet::test
