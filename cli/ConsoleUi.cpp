#include "ConsoleUi.h"

#include <unistd.h>

#include <cstdio>

#include "ErrorReport.h"
#include "FindingLines.h"
#include "NextSteps.h"
#include "ProgramFolder.h"
#include "Text.h"

namespace folionet {
namespace {

// Line ends as a terminal and a text file have them here.
std::string WithNewLines(std::string_view text) {
  std::string lines;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '\r' || i + 1 == text.size() || text[i + 1] != '\n') lines += text[i];
  }
  return lines;
}

}  // namespace

ConsoleUi::ConsoleUi(const CommonOptions& common)
    : m_common(common), m_showsResults(!common.quiet), m_showsProgress(!common.quiet && isatty(STDERR_FILENO) != 0) {}

ConsoleUi::~ConsoleUi() { EndProgress(); }

void ConsoleUi::EndProgress() {
  if (m_progressShown) std::fputs("\r\033[K", stderr);
  m_progressShown = false;
}

// Each stream is behind the other in the order in which they were written to, where both go to one place.
bool ConsoleUi::Write(std::FILE* stream, std::string_view text, std::string_view kept) {
  EndProgress();
  const std::string shown = Escaped(text, kept) + "\n";
  if (stream == stderr) std::fflush(stdout);
  return std::fwrite(shown.data(), 1, shown.size(), stream) == shown.size();
}

void ConsoleUi::Print(std::string_view line) { Write(stdout, line, {}); }

void ConsoleUi::Print(std::initializer_list<std::string> fields) {
  std::string line;
  for (const std::string& field : fields) line += Escaped(field) + "\t";
  Write(stdout, line.substr(0, line.size() - 1), "\t");
}

void ConsoleUi::WriteText(std::FILE* stream, std::string_view text) {
  if (text.empty()) return;
  if (text.back() == '\n') text.remove_suffix(1);
  Write(stream, text, "\t\n");
}

void ConsoleUi::PrintText(std::string_view text) { WriteText(stdout, text); }

bool ConsoleUi::Tell(std::string_view line) { return Write(stderr, line, {}); }

void ConsoleUi::TellText(std::string_view text) { WriteText(stderr, text); }

void ConsoleUi::Show(const Finding& finding) {
  m_hasWarned = m_hasWarned || finding.severity == Severity::kWarning;
  Print(m_common.json ? JsonLine(finding) : PlainLine(finding));
}

void ConsoleUi::Remark(const Finding& finding) {
  if (m_common.json) return Show(finding);
  m_hasWarned = m_hasWarned || finding.severity == Severity::kWarning;
  Tell(PlainLine(finding));
}

void ConsoleUi::Warn(Finding finding) {
  finding.severity = Severity::kWarning;
  if (m_common.json) return Show(finding);
  m_hasWarned = true;
  Tell(PlainLine(finding) + (finding.remedy.IsEmpty() ? "" : " " + finding.remedy.InEnglish()));
}

void ConsoleUi::Sum(const std::string& line, Severity worst) {
  if (!m_common.json && !(m_common.quiet && worst == Severity::kNote)) Print(line);
}

bool ConsoleUi::Flush() { return std::fflush(stdout) == 0 && std::ferror(stdout) == 0; }

bool ConsoleUi::Finish() {
  if (Flush()) return true;
  std::fputs("folionet-cli: standard output cannot be written. Send it to a file on a disk with room.\n", stderr);
  return false;
}

ExitStatus ConsoleUi::Done() const { return m_common.strict && m_hasWarned ? kExitRefused : kExitDone; }

void ConsoleUi::ShowMessage(const Message& message) {
  if (message.topic == Topic::kResult) {
    if (m_showsResults) PrintText(WithNewLines(message.text));
    return;
  }
  TellText(message.title + ": " + WithNewLines(message.text));
  if (const std::string_view step = NextStep(message.topic); !step.empty()) Tell(step);
}

bool ConsoleUi::AskYesNo(const std::string& /*title*/, const std::string& /*text*/) { return false; }

std::optional<std::string> ConsoleUi::AskText(const InputBox& /*box*/) { return std::nullopt; }

void ConsoleUi::ShowErrorReport(const ErrorReport& report) {
  if (const std::string_view step = StepBeforeReport(report.procedure); !step.empty()) {
    TellText(std::string(step) + "\n\n");
  }
  TellText(WithNewLines(BuildErrorReport(report, ExecutableFolder())));
  if (const std::string_view step = NextStepAfterReport(report); !step.empty()) TellText("\n" + std::string(step));
}

void ConsoleUi::SetPanel(int panel, std::string_view text) {
  constexpr auto kInterval = std::chrono::milliseconds(40);
  if (!m_showsProgress || panel != 1) return;
  const auto now = std::chrono::steady_clock::now();
  if (now - m_lastProgress < kInterval) return;
  m_lastProgress = now;
  m_progressShown = true;
  std::fputs(("\r\033[K" + Escaped(text)).c_str(), stderr);
}

}  // namespace folionet
