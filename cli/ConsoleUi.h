#pragma once

#include <chrono>
#include <string>
#include <string_view>

#include "UserInterface.h"

namespace folionet {

// The command line's half of the way to the person: messages and reports in the words of the boxes, on standard error,
// a refusal with a line that says what to do next; what was asked for on standard output; progress on standard error
// when that is a terminal. Nothing is ever asked.
class ConsoleUi : public UserInterface {
 public:
  explicit ConsoleUi(bool quiet);
  ~ConsoleUi() override;

  void ShowMessage(const Message& message) override;
  bool AskYesNo(const std::string& title, const std::string& text) override;
  std::optional<std::string> AskText(const InputBox& box) override;
  void ShowErrorReport(int errorNumber, std::string_view moduleLabel, const std::string& extraInfo) override;
  void SetPanel(int panel, std::string_view text) override;

 private:
  void EndProgress();

  bool m_quiet;
  bool m_showsProgress;
  bool m_progressShown = false;
  std::chrono::steady_clock::time_point m_lastProgress;
};

// The text with its line ends as a terminal and a text file have them here.
std::string WithNewLines(std::string_view text);

// The text with "?" for each control character but those to keep: a terminal would obey what an argument or a file
// brings.
std::string WithoutControls(std::string_view text, std::string_view kept = {});

}  // namespace folionet
