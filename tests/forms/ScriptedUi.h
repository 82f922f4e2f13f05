#pragma once

#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "UserInterface.h"

namespace folionet {

// A person made of a script: answers are taken from the front of their queue, and everything that is shown is kept.
// A queue that has run out answers No, an empty text, or what the chooser was given.
class ScriptedUi : public UserInterface {
 public:
  struct Report {
    int number;
    std::string label;
    std::string extra;
  };

  void ShowMessage(const Message& message) override {
    messages.push_back(message);
    Log("message " + message.title);
    if (onMessage) onMessage(message);
  }

  bool AskYesNo(const std::string& title, const std::string& text) override {
    questions.push_back({MessageIcon::kInformation, title, text});
    Log("question " + title);
    return Take(yesNo, false);
  }

  std::optional<std::string> AskText(const InputBox& box) override {
    inputBoxes.push_back(box);
    Log("input " + box.title);
    return Take(texts, std::string());
  }

  void ShowErrorReport(int errorNumber, std::string_view moduleLabel, const std::string& extraInfo) override {
    reports.push_back({errorNumber, std::string(moduleLabel), extraInfo});
    Log("report " + std::string(moduleLabel));
  }

  void SetPanel(int panel, std::string_view text) override {
    panels[panel] = text;
    ++panelCalls[panel];
    if (onPanel) onPanel(panel, text);
  }

  void FocusControl(std::string_view name) override {
    focused.emplace_back(name);
    if (onFocus) onFocus(name);
  }

  Colour ChooseColour(Colour initial) override {
    colourInitials.push_back(initial);
    return Take(colours, initial);
  }

  SampleText ChooseFont(const SampleText& initial) override {
    fontInitials.push_back(initial);
    return Take(fonts, initial);
  }

  std::string ChooseFile(const std::string& filter, const std::string& previous) override {
    fileFilters.push_back(filter);
    return Take(files, previous);
  }

  std::string ChooseFolder(const std::string& initial) override {
    folderInitials.push_back(initial);
    return Take(folders, initial);
  }

  void ShowPage(const std::string& path) override { pagesShown.push_back(path); }

  // The answers to come.
  std::deque<bool> yesNo;
  std::deque<std::string> texts;
  std::deque<Colour> colours;
  std::deque<SampleText> fonts;
  std::deque<std::string> files;
  std::deque<std::string> folders;

  // What was shown or asked.
  std::vector<Message> messages;
  std::vector<Message> questions;
  std::vector<InputBox> inputBoxes;
  std::vector<Report> reports;
  std::map<int, std::string> panels;
  std::map<int, int> panelCalls;
  std::vector<std::string> focused;
  std::vector<Colour> colourInitials;
  std::vector<SampleText> fontInitials;
  std::vector<std::string> fileFilters;
  std::vector<std::string> folderInitials;
  std::vector<std::string> pagesShown;
  std::vector<std::string> log;  // boxes of every kind in their order: "report GetLang", "message No Path"

  // What a box does besides, such as passing panels on to a form.
  std::function<void(int, std::string_view)> onPanel;
  std::function<void(std::string_view)> onFocus;
  std::function<void(const Message&)> onMessage;

 private:
  void Log(std::string entry) { log.push_back(std::move(entry)); }

  template <typename T>
  static T Take(std::deque<T>& answers, T otherwise) {
    if (answers.empty()) return otherwise;
    T answer = std::move(answers.front());
    answers.pop_front();
    return answer;
  }
};

}  // namespace folionet
