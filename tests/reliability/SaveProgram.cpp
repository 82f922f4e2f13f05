// Saves what a person has typed, as the form does, so that a test can see it go wrong from outside:
//
//   save_program settings FOLDER TEXT     stores the exit settings, TEXT among them, in FOLDER/Folionet.ini
//   save_program header FOLDER TEXT       writes TEXT into FOLDER/CustomHeader.txt
//   save_program record FOLDER TEXT       adds a language with the description TEXT to FOLDER/lang.txt
//   save_program encoding FOLDER TEXT     chooses the charset TEXT for the settings, the header and the lists there, as
//                                         one change, finishing one begun before
//   save_program finish FOLDER ""         only finishes what was begun before
//
// Ends with 3 and a line on standard error when that fails.

#include <iostream>
#include <string>

#include "CustomHtml.h"
#include "EncodingLists.h"
#include "OptionLoading.h"
#include "OptionSaving.h"
#include "OwnCharset.h"
#include "RunTimeError.h"
#include "ScriptedUi.h"
#include "SettingsStore.h"

namespace folionet {
namespace {

bool Save(const std::string& what, const std::string& folder, const std::string& text) {
  test::ScriptedUi ui;
  if (what == "settings") {
    SettingsStore store(folder);
    PageOptions options;
    LoadAllOptions(store, options);
    options.main.Dir1 = text;
    SaveDefaults(store, options);
  } else if (what == "header") {
    SaveOwnText({folder + "/"}, kCustomHeader.fileName, text + "\r\n");
  } else if (what == "record") {
    AppendEncodingRecord({folder + "/"}, kLanguageList, {"xx", text});
  } else if (what == "encoding" || what == "finish") {
    SettingsStore store(folder);
    store.FinishChange();
    if (what == "finish") return true;
    SaveEncoding(store, folder + "/", {.cboCharset = text, .cboLang = {}});
  } else {
    return false;
  }
  return true;
}

}  // namespace
}  // namespace folionet

int main(int argc, char** argv) {
  constexpr int kFails = 3;
  if (argc != 4) return kFails;
  try {
    return folionet::Save(argv[1], argv[2], argv[3]) ? 0 : kFails;
  } catch (const folionet::RunTimeError& error) {
    std::cerr << error.what() << '\n';
  }
  return kFails;
}
