#include "FaultyRun.h"

#include <fstream>
#include <ostream>
#include <stdexcept>

namespace folionet::test {
namespace {

std::vector<Call> ReadCalls(const std::string& path) {
  std::vector<Call> calls;
  std::ifstream log(path);
  std::string line;
  while (std::getline(log, line)) {
    const std::size_t blank = line.find(' ');
    calls.push_back({line.substr(0, blank), line.substr(blank + 1)});
  }
  return calls;
}

void ArrangeLibrary(const TemporaryFolder& home) {
  MakeSmallLibrary(home);
  home.Write("program/CustomHeader.txt", "<p>the header</p>\r\n");
  home.Write("program/CustomFooter.txt", "<p>the footer</p>\r\n");
  home.Write("config/Folionet.ini", "[Keys]\nchkCSS=1\nPageTitles=%bible%: %bk% %ch%\n");
}

Command Compile(const Command& more) {
  return CompileCommand(With({"--index-address=index.html", "--translation=KJV"}, more));
}

Job Save(const std::string& what, const std::string& file, const std::string& before) {
  return {what, [=](const TemporaryFolder& home) { home.Write(file, before); },
          [=](const TemporaryFolder& home) {
            return Command{SAVE_PROGRAM, what, home.Path(), kNewText};
          }};
}

}  // namespace

FaultyRun RunFaulty(const Command& command, const TemporaryFolder& home, const Fault& fault) {
  const TemporaryFolder outside;
  const std::string log = outside.Write("log", "");
  Command whole{"/usr/bin/timeout",
                "60",
                "/usr/bin/env",
                std::string("LD_PRELOAD=") + FAULTY_CALLS,
                "FAULT_FOLDER=" + home.Path(),
                "FAULT_LOG=" + log,
                "FAULT_AT=" + std::to_string(fault.at),
                "FAULT_KIND=" + fault.kind};
  whole.insert(whole.end(), command.begin(), command.end());
  FaultyRun run;
  run.result = RunProgram(whole, home.Path());
  run.calls = ReadCalls(log);
  if (run.calls.size() < fault.at) throw std::runtime_error("the call that was to go wrong was not met");
  return run;
}

Job CompileAnew() {
  return {"CompileAnew", ArrangeLibrary, [](const TemporaryFolder&) { return Compile({"--output=made/site"}); }};
}

Job CompileOver() {
  return {"CompileOver",
          [](const TemporaryFolder& home) {
            ArrangeLibrary(home);
            home.Write("site/genesis_1.html", "a page that is taken away");
            home.Write("site/exodus_1.html", std::string(5000, 'x'));
            home.Write("site/exodus_2.html", "shorter");
            home.Write("site/not-ours.html", "not ours");
          },
          [](const TemporaryFolder&) {
            return Compile({"--output=site", "--start-book=2"});
          }};
}

std::vector<Job> Saves() {
  return {Save("settings", "Folionet.ini", "[Keys]\nDir1=the old text\nKeywords=kept, as it is\n"),
          Save("header", "CustomHeader.txt", "<p>the old header</p>\r\n"),
          Save("record", "lang.txt", "\"en-us\",\"English USA\"\r\n")};
}

FolderContent ContentAfter(const Job& job) {
  const TemporaryFolder home;
  job.arrange(home);
  const FaultyRun run = RunFaulty(job.command(home), home);
  EXPECT_EQ(run.result.status, 0) << run.result.errors;
  return ReadFolder(home.Path());
}

void PrintTo(const Job& job, std::ostream* stream) { *stream << job.name; }

std::string Describe(const Fault& fault, const Call& call) {
  return "call " + std::to_string(fault.at) + ", " + call.name + " " + call.path + ", " + fault.kind;
}

}  // namespace folionet::test
