#pragma once

#include <deque>
#include <functional>
#include <new>
#include <string>
#include <vector>

#include "UserInterface.h"

namespace folionet::test {

// A person made of a script: answers are taken from the front of their queue, and everything that is shown is kept.
// A queue that has run out answers No, an empty text, or what the chooser was given.
class ScriptedUi : public UserInterface {
 public:
  void ShowMessage(const Message& message) override {
    icon = message.icon;
    Keep(message.title, message.text);
    onMessage();
  }
  bool AskYesNo(const std::string& title, const std::string& text) override {
    Keep(title + "?", text);
    return Take(yesNo, false);
  }
  std::optional<std::string> AskText(const InputBox& box) override {
    Keep(box.title + "?", box.prompt + " [" + box.defaultText + "]");
    return Take(texts, std::string());
  }
  void ShowErrorReport(const ErrorReport& report) override {
    Keep(std::to_string(report.number) + " " + std::string(LabelOf(report.procedure)), report.extraInfo);
  }
  void SetPanel(int panel, std::string_view text) override { onPanel(panel, text); }
  void FocusControl(std::string_view name) override { onFocus(name); }

  std::optional<Colour> ChooseColour(Colour initial) override {
    Offer(initial, std::to_string(initial));
    return colours.empty() ? std::nullopt : std::optional(Take(colours, initial));
  }
  std::optional<SampleText> ChooseFont(const SampleText& initial) override {
    Offer(initial, initial.FontName);
    return fonts.empty() ? std::nullopt : std::optional(Take(fonts, initial));
  }
  std::string ChooseFile(const std::string& filter, const std::string& previous) override {
    return Take(texts, Offer(previous, filter));
  }
  std::string ChooseFileToSave(const std::string& name, const std::string& suffix,
                               const std::string& initial) override {
    Offer(initial, name + "|*." + suffix);
    return Take(texts, std::string());
  }
  std::string ChooseFolder(const std::string& initial, const std::string& /*title*/) override {
    return Take(texts, Offer(initial, initial));
  }
  void ShowPage(const std::string& path) override { pageShown = path; }

  // What the boxes said behind their titles, as "53 Label of the report: text".
  std::vector<std::string> Boxes() const {
    std::vector<std::string> boxes;
    for (std::size_t i = 0; i < log.size(); ++i) boxes.push_back(log[i] + ": " + said[i]);
    return boxes;
  }

  // The answers to come; files and folders are chosen from the texts.
  std::deque<bool> yesNo;
  std::deque<std::string> texts;
  std::deque<Colour> colours;
  std::deque<SampleText> fonts;
  bool isChooserBroken = false;

  // Boxes in their order, "Title", "Question?" or "53 Label of the report", and what each said.
  std::vector<std::string> log;
  std::vector<std::string> said;
  std::vector<std::string> offered;  // to choosers: what each began with, and a file chooser's filter
  MessageIcon icon{};                // of the last message
  std::string pageShown;

  std::function<void()> onMessage = [] {};
  std::function<void(int, std::string_view)> onPanel = [](int, std::string_view) {};
  std::function<void(std::string_view)> onFocus = [](std::string_view) {};

 private:
  void Keep(std::string title, std::string text) {
    log.push_back(std::move(title));
    said.push_back(std::move(text));
  }

  template <typename T>
  const T& Offer(const T& initial, std::string shown) {
    if (isChooserBroken) throw std::bad_alloc();
    offered.push_back(std::move(shown));
    return initial;
  }

  template <typename T>
  static T Take(std::deque<T>& answers, const T& otherwise) {
    if (answers.empty()) return otherwise;
    T answer = std::move(answers.front());
    answers.pop_front();
    return answer;
  }
};

}  // namespace folionet::test
