#include "ProgramRun.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <stdexcept>

namespace folionet::test {
namespace {

// A file without a name, which is gone when the last program has closed it.
class Catch {
 public:
  Catch() : m_file(std::tmpfile()) {
    if (m_file == nullptr) throw std::runtime_error("no temporary file");
  }
  Catch(const Catch&) = delete;
  Catch& operator=(const Catch&) = delete;
  ~Catch() { std::fclose(m_file); }

  int Descriptor() const { return fileno(m_file); }

  std::string Text() const {
    std::rewind(m_file);
    std::string text;
    std::array<char, 4096> part{};
    while (const std::size_t length = std::fread(part.data(), 1, part.size(), m_file)) text.append(part.data(), length);
    return text;
  }

 private:
  std::FILE* m_file;
};

[[noreturn]] void Become(const std::vector<std::string>& command, const std::string& folder, int output, int errors) {
  constexpr int kCannotRun = 127;
  std::vector<char*> arguments;
  for (const std::string& argument : command) arguments.push_back(const_cast<char*>(argument.c_str()));
  arguments.push_back(nullptr);
  const bool ready = dup2(output, STDOUT_FILENO) >= 0 && dup2(errors, STDERR_FILENO) >= 0 && chdir(folder.c_str()) == 0;
  setenv("HOME", folder.c_str(), 1);
  setenv("XDG_CONFIG_HOME", (folder + "config").c_str(), 1);
  setenv("XDG_DATA_HOME", (folder + "data").c_str(), 1);
  if (ready) execv(arguments.front(), arguments.data());
  _exit(kCannotRun);
}

}  // namespace

ProgramResult RunProgram(const std::vector<std::string>& command, const std::string& folder,
                         const std::string& output) {
  constexpr int kSignalBase = 128;
  const Catch caught;
  const Catch errors;
  const int target = output.empty() ? caught.Descriptor() : open(output.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
  if (target < 0) throw std::runtime_error(output + " cannot be written");
  const pid_t child = fork();
  if (child == 0) Become(command, folder, target, errors.Descriptor());
  if (!output.empty()) close(target);
  int status = 0;
  if (child < 0 || waitpid(child, &status, 0) != child) throw std::runtime_error("cannot run " + command.front());
  return {WIFEXITED(status) ? WEXITSTATUS(status) : kSignalBase + WTERMSIG(status), caught.Text(), errors.Text()};
}

ProgramResult RunCli(const std::vector<std::string>& arguments, const std::string& folder, const std::string& output) {
  std::vector<std::string> command{FOLIONET_CLI};
  command.insert(command.end(), arguments.begin(), arguments.end());
  return RunProgram(command, folder, output);
}

}  // namespace folionet::test
