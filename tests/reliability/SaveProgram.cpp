// Saves what a person has typed, as the form does, so that a test can see it go wrong from outside:
//
//   save_program settings FOLDER TEXT     stores the exit settings, TEXT among them, in FOLDER/Folionet.ini
//   save_program header FOLDER TEXT       writes TEXT into FOLDER/CustomHeader.txt
//   save_program record FOLDER TEXT       adds a language with the description TEXT to FOLDER/lang.txt
//   save_program read FOLDER              prints the setting that "settings" stores
//
// Ends with 3 and a line on standard error when that fails.

#include <cstdio>
#include <iostream>
#include <string>

#include "CustomHtml.h"
#include "EncodingLists.h"
#include "OptionSaving.h"
#include "RunTimeError.h"
#include "SettingsStore.h"

namespace folionet {
namespace {

class PrintingUi : public UserInterface {
 public:
  void ShowMessage(const Message& message) override { std::cerr << message.text << '\n'; }
  bool AskYesNo(const std::string& /*title*/, const std::string& /*text*/) override { return false; }
  std::optional<std::string> AskText(const InputBox& /*box*/) override { return std::nullopt; }
  void ShowErrorReport(int errorNumber, std::string_view moduleLabel, const std::string& extraInfo) override {
    std::cerr << errorNumber << ' ' << moduleLabel << ' ' << extraInfo << '\n';
  }
  void SetPanel(int /*panel*/, std::string_view /*text*/) override {}
};

void SaveSettings(const std::string& folder, const std::string& text) {
  SettingsStore store(folder);
  MainOptions main;
  main.Dir1 = text;
  SaveDefaults(store, PageOptions(), main);
}

bool Save(const std::string& what, const std::string& folder, const std::string& text) {
  PrintingUi ui;
  if (what == "settings") {
    SaveSettings(folder, text);
  } else if (what == "header") {
    return SaveCustomHtml(folder + "/", kCustomHeader, CodePage(), text, ui);
  } else if (what == "record") {
    AppendEncodingRecord(folder + "/" + kLanguageList, CodePage(), {"xx", text});
  } else if (what == "read") {
    std::cout << SettingsStore(folder).Text("Dir1") << '\n';
  } else {
    return false;
  }
  return true;
}

}  // namespace
}  // namespace folionet

int main(int argc, char** argv) {
  constexpr int kFails = 3;
  if (argc < 3) return kFails;
  try {
    return folionet::Save(argv[1], argv[2], argc > 3 ? argv[3] : "") ? 0 : kFails;
  } catch (const folionet::RunTimeError& error) {
    std::cerr << error.what() << '\n';
  }
  return kFails;
}
