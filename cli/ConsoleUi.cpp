#include "ConsoleUi.h"

#include <unistd.h>

#include <cstdio>

#include "ErrorReport.h"
#include "NextSteps.h"
#include "ProgramFolder.h"

namespace folionet {
namespace {

void Write(std::FILE* stream, std::string_view text) {
  const std::string shown = WithoutControls(text, "\t\n") + "\n";
  std::fwrite(shown.data(), 1, shown.size(), stream);
}

}  // namespace

std::string WithNewLines(std::string_view text) {
  std::string lines;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '\r' || i + 1 == text.size() || text[i + 1] != '\n') lines += text[i];
  }
  return lines;
}

std::string WithoutControls(std::string_view text, std::string_view kept) {
  std::string shown;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto byte = static_cast<unsigned char>(text[i]);
    const auto next = static_cast<unsigned char>(i + 1 < text.size() ? text[i + 1] : 0);
    const bool isUpper = byte == 0xC2 && next >= 0x80 && next <= 0x9F;  // U+0080 to U+009F
    const bool isControl = byte < 0x20 || byte == 0x7F || isUpper;
    shown += isControl && kept.find(text[i]) == std::string_view::npos ? '?' : text[i];
    if (isUpper) ++i;
  }
  return shown;
}

ConsoleUi::ConsoleUi(bool quiet) : m_quiet(quiet), m_showsProgress(!quiet && isatty(STDERR_FILENO) != 0) {}

ConsoleUi::~ConsoleUi() { EndProgress(); }

void ConsoleUi::EndProgress() {
  if (m_progressShown) std::fputs("\r\033[K", stderr);
  m_progressShown = false;
}

void ConsoleUi::ShowMessage(const Message& message) {
  EndProgress();
  if (!message.isResult) {
    Write(stderr, message.title + ": " + WithNewLines(message.text));
    if (const std::string_view step = NextStep(message.title); !step.empty()) Write(stderr, step);
  } else if (!m_quiet) {
    Write(stdout, WithNewLines(message.text));
  }
}

bool ConsoleUi::AskYesNo(const std::string& /*title*/, const std::string& /*text*/) { return false; }

std::optional<std::string> ConsoleUi::AskText(const InputBox& /*box*/) { return std::nullopt; }

void ConsoleUi::ShowErrorReport(int errorNumber, std::string_view moduleLabel, const std::string& extraInfo) {
  EndProgress();
  Write(stderr, WithNewLines(BuildErrorReport(errorNumber, moduleLabel, extraInfo, ExecutableFolder())));
  if (const std::string_view step = NextStepAfterReport(errorNumber, moduleLabel, extraInfo); !step.empty()) {
    Write(stderr, "\n" + std::string(step));
  }
}

void ConsoleUi::SetPanel(int panel, std::string_view text) {
  constexpr auto kInterval = std::chrono::milliseconds(40);
  if (!m_showsProgress || panel != 1) return;
  const auto now = std::chrono::steady_clock::now();
  if (now - m_lastProgress < kInterval) return;
  m_lastProgress = now;
  m_progressShown = true;
  std::fputs(("\r\033[K" + WithoutControls(text)).c_str(), stderr);
}

}  // namespace folionet
