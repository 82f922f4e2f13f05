#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <vector>

#include "Measure.h"
#include "ReadAlone.h"

namespace folionet::bench {
namespace {

namespace fs = std::filesystem;

struct File {
  std::string name;
  std::string bytes;
};

std::string ReadFile(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<File> ReadFolder(const fs::path& folder) {
  std::vector<File> files;
  for (const auto& entry : fs::directory_iterator(folder)) {
    files.push_back({entry.path().filename().string(), ReadFile(entry.path())});
  }
  return files;
}

// The bare writing of finished files from memory: open, write, close, one after the other.
void WriteBare(const std::vector<File>& files, const std::string& folder, int flags) {
  for (const File& file : files) {
    const int descriptor = open((folder + "/" + file.name).c_str(), flags | O_WRONLY | O_CLOEXEC, 0666);
    if (descriptor < 0 || write(descriptor, file.bytes.data(), file.bytes.size()) < 0 || close(descriptor) != 0) {
      throw std::runtime_error("cannot write " + file.name);
    }
  }
}

class Bench {
 public:
  Bench(std::string self, std::string cli, const std::string& work, int runs)
      : m_self(std::move(self)),
        m_cli(std::move(cli)),
        m_library(work + "/library"),
        m_site(work + "/site"),
        m_bare(work + "/bare"),
        m_text(work + "/text.osis.xml"),
        m_imported(work + "/imported"),
        m_runs(runs) {}

  void All() {
    Import("import of OSIS : reading it through libxml2 alone", m_text, "xml");
    const std::string zip = m_text + ".zip";
    MakeZip(zip, m_text);
    Import("import of OSIS in a zip : unpacking through libarchive alone", zip, "archive");
    Growth();
    Fresh();
    Again();
    StartUp();
    Check();
  }

 private:
  std::vector<std::string> CompileCommand(const std::vector<std::string>& more = {}) const {
    std::vector<std::string> command{m_cli,        "compile",         "--quiet", "--output", m_site, "--index-address",
                                     "index.html", "--versalia-path", m_library};
    command.insert(command.end(), more.begin(), more.end());
    return command;
  }

  double Compile(bool fresh, const std::vector<std::string>& more = {}) {
    if (fresh) fs::remove_all(m_site);
    return RunProcess(CompileCommand(more));
  }

  // Asked of a process of this program that has read nothing yet.
  double PeakMiB(std::vector<std::string> command) const {
    const std::string result = fs::path(m_site).parent_path() / "peak";
    command.insert(command.begin(), {m_self, "peak", result});
    RunProcess(command);
    return std::stod(ReadFile(result)) / 1024;
  }

  double Bare(const std::vector<File>& files, bool fresh, int flags) {
    if (fresh) {
      fs::remove_all(m_bare);
      fs::create_directory(m_bare);
    }
    return Time([&] { WriteBare(files, m_bare, flags); });
  }

  static void Print(const char* what, double measured, double base) {
    std::printf("%-58s %8.2f ms : %7.2f ms = %5.2f\n", what, measured, base, measured / base);
  }

  void Fresh() {
    Compile(true);
    const std::vector<File> files = ReadFolder(m_site);
    std::size_t bytes = 0;
    for (const File& file : files) bytes += file.bytes.size();
    std::printf("%zu files, %.1f MB; medians of %d interleaved runs\n", files.size(), static_cast<double>(bytes) / 1e6,
                m_runs);
    const auto medians =
        Interleave(m_runs, {[&] { return Compile(true); }, [&] { return Bare(files, true, O_CREAT | O_TRUNC); }});
    Print("first compile : bare writing", medians[0], medians[1]);
    m_freshLimit = medians[1];
  }

  void Again() {
    Compile(true);
    const auto again = Interleave(m_runs, {[&] { return Compile(false); }});
    Print("second compile, nothing changed : bare writing", again[0], m_freshLimit);

    // Two colours in turn, so that every run changes every page; the bare rewriting does the same.
    const std::vector<std::string> colours[] = {{"--set", "ForeColor=0"}, {"--set", "ForeColor=255"}};
    Compile(true, colours[0]);
    const std::vector<File> black = ReadFolder(m_site);
    Compile(true, colours[1]);
    const std::vector<File> red = ReadFolder(m_site);
    Bare(red, true, O_CREAT);
    bool compiledRed = true;
    bool wroteRed = true;
    const auto changed = Interleave(m_runs, {[&] {
                                               compiledRed = !compiledRed;
                                               return Compile(false, colours[compiledRed ? 1 : 0]);
                                             },
                                             [&] {
                                               wroteRed = !wroteRed;
                                               return Bare(wroteRed ? red : black, false, 0);
                                             }});
    Print("compile with an option changed : bare rewriting in place", changed[0], changed[1]);
  }

  // Of a whole Bible; both from the start of a process to its end.
  void Import(const char* what, const std::string& text, const std::string& reading) {
    const std::vector<std::string> command{m_cli, "import", text, "--into", m_imported, "--quiet"};
    const auto import = [&] {
      fs::remove_all(m_imported);
      return RunProcess(command);
    };
    const auto read = [&] { return RunProcess({m_self, reading, text}); };
    const auto medians = Interleave(m_runs, {import, read});
    Print(what, medians[0], medians[1]);
    fs::remove_all(m_imported);
    std::printf("import: peak memory %.1f MiB\n", PeakMiB(command));
  }

  // Each verse stands so many times in its chapter.
  void Growth() {
    const fs::path text = fs::path(m_library) / "Modules/Bible/KJV.TXT";
    const std::string original = ReadFile(text);
    const auto startUp = Interleave(m_runs, {[&] { return RunProcess({m_cli, "--version"}); }})[0];
    double single = 0;
    for (const int times : {1, 2, 4, 8}) {
      std::ofstream grown(text, std::ios::binary | std::ios::trunc);
      for (std::size_t at = 0; at < original.size();) {
        const std::size_t end = original.find('\n', at) + 1;
        for (int i = 0; i < times; ++i) grown.write(original.data() + at, static_cast<std::streamsize>(end - at));
        at = end;
      }
      grown.close();
      const double time = Interleave(m_runs, {[&] { return Compile(true); }})[0] - startUp;
      if (times == 1) single = time;
      fs::remove_all(m_site);
      std::printf("%d x the verses: %7.2f ms without start-up, %5.2f x; peak memory %.1f MiB\n", times, time,
                  time / single, PeakMiB(CompileCommand()));
    }
    std::ofstream(text, std::ios::binary | std::ios::trunc) << original;
  }

  void StartUp() {
    const auto medians =
        Interleave(m_runs, {[&] {
                              return RunProcess({m_cli, "list", "books", "--versalia-path", m_library});
                            },
                            [&] {
                              return RunProcess({m_cli, "--version"});
                            }});
    std::printf("%-58s %8.2f ms\n", "folionet-cli --version", medians[1]);
    Print("list books : --version", medians[0], medians[1]);
  }

  void Check() {
    const auto readAll = [&] {
      std::size_t lines = 0;
      for (const auto& entry : fs::recursive_directory_iterator(m_library)) {
        if (!entry.is_regular_file()) continue;
        const std::string bytes = ReadFile(entry.path());
        for (const char* at = bytes.data();
             (at = static_cast<const char*>(
                  std::memchr(at, '\n', static_cast<std::size_t>(bytes.data() + bytes.size() - at)))) != nullptr;
             ++at) {
          ++lines;
        }
      }
      if (lines == 0) throw std::runtime_error("the library has no lines");
    };
    const auto medians = Interleave(m_runs, {[&] {
                                               return RunProcess({m_cli, "check", "--versalia-path", m_library}, true);
                                             },
                                             [&] { return Time(readAll); },
                                             [&] {
                                               return RunProcess({m_cli, "--version"});
                                             }});
    Print("check : reading and splitting its files + start-up", medians[0], medians[1] + medians[2]);
  }

  std::string m_self;
  std::string m_cli;
  std::string m_library;
  std::string m_site;
  std::string m_bare;
  std::string m_text;
  std::string m_imported;
  int m_runs;
  double m_freshLimit = 0;
};

}  // namespace
}  // namespace folionet::bench

// The program folionet-cli, a folder in a memory file system that holds library/ and text.osis.xml, and the runs of
// each measurement; or "xml" or "archive" and a file, which is only read through; or "peak", a file and a command,
// whose peak memory in KiB goes into the file.
int main(int argc, char** argv) {
  using namespace folionet::bench;
  try {
    const std::vector<std::string> given(argv + 1, argv + argc);
    if (given.size() > 3 && given[0] == "peak") {
      std::ofstream(given[1]) << PeakOfProcess({given.begin() + 2, given.end()});
      return 0;
    }
    if (given.size() == 2) {
      const std::size_t length = given[0] == "xml" ? ReadXmlAlone(given[1]) : ReadArchiveAlone(given[1]);
      if (length == 0) throw std::runtime_error("nothing in " + given[1]);
      return 0;
    }
    if (given.size() != 3) throw std::runtime_error("folionet-bench CLI WORK RUNS");
    Bench(argv[0], given[0], given[1], ReadRuns(given[2])).All();
  } catch (const std::exception& error) {
    std::fprintf(stderr, "folionet-bench: %s\n", error.what());
    return 3;
  }
  return 0;
}
