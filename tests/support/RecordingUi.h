#pragma once

#include <deque>
#include <string>
#include <vector>

#include "UserInterface.h"

namespace folionet::test {

// Keeps what the program says, and gives scripted answers.
class RecordingUi : public UserInterface {
 public:
  void ShowMessage(const Message& message) override { said.push_back(message.title + ": " + message.text); }
  bool AskYesNo(const std::string& title, const std::string& text) override {
    said.push_back(title + "? " + text);
    return false;
  }
  std::optional<std::string> AskText(const InputBox& box) override {
    said.push_back(box.title + "? " + box.prompt + " [" + box.defaultText + "]");
    if (answers.empty()) return std::nullopt;
    std::string answer = answers.front();
    answers.pop_front();
    return answer;
  }
  void ShowErrorReport(int errorNumber, std::string_view moduleLabel, const std::string& extraInfo) override {
    said.push_back(std::to_string(errorNumber) + " " + std::string(moduleLabel) + ": " + extraInfo);
  }
  void SetPanel(int panel, std::string_view text) override {
    if (panel == 1) {
      progress.emplace_back(text);
    } else {
      said.push_back("panel " + std::to_string(panel) + ": " + std::string(text));
    }
  }
  void FocusControl(std::string_view name) override { focused = name; }

  std::deque<std::string> answers;  // to input boxes; without one, nobody can be asked
  std::vector<std::string> said;
  std::vector<std::string> progress;
  std::string focused;
};

}  // namespace folionet::test
