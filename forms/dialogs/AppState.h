#pragma once

#include <optional>
#include <string>

#include "CodePage.h"
#include "Installation.h"
#include "PageEncoding.h"
#include "PageOptions.h"
#include "PageTexts.h"
#include "RunTimeError.h"
#include "SettingsStore.h"
#include "UserInterface.h"
#include "modGlob.h"

namespace folionet {

// What all forms of a running program share. Made in main, handed down by reference. Each dialog shows its own record
// of `options`; the compile run reads all of them.
struct AppState {
  SettingsStore& store;
  UserInterface& ui;
  std::string programFolder;    // ends in the folder separator
  GivenFolders givenFolders{};  // for this run

  ModGlob glob{};
  PageOptions options{};              // UTF-8, but txtBibleSel is the translation's name as the catalogue has it
  PageTexts texts{};                  // UTF-8; RolloverStyle and BodyLinkTag change only where Effects is run
  CodePage codePage{"windows-1252"};  // of texts.PageCharset
  PageEncoding typed{};               // codes that were typed, not picked: they hold until the program ends
  EncodingOptions refusedEncoding{};  // entries that were picked and could not be stored: they are at exit
  std::string startBookText{};        // the title shown in the main form's cboStartBook, in the bytes of its file
  std::optional<RunTimeError> lastSaveFailure{};  // set by TrySave; none after a save that went well
};

}  // namespace folionet
