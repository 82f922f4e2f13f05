#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QWidget>
#include <memory>
#include <string>

#include "AppState.h"
#include "Catalogue.h"
#include "ChapterIndex.h"
#include "Compile.h"
#include "ScriptedUi.h"
#include "SmallLibrary.h"
#include "TemporaryFolder.h"

namespace folionet {

// What a dialog is shown with: a small library with its first translation chosen, a store of settings and a program
// folder, all in a folder of the test's own.
class DialogBench {
 public:
  DialogBench() : m_library(m_folder.Path() + "library") {
    m_folder.Write("program/lang.txt", "\"en-us\",\"English USA\"\r\n\"el\",\"Greek\"\r\n");
    m_folder.Write("program/enc.txt", "\"windows-1252\",\"(ANSI Latin 1)\"\r\n\"utf-8\",\"(Unicode)\"\r\n");
    StartAgain();
  }

  // What ending the program and starting it once more does: only files are left of what was.
  void StartAgain() {
    m_state.reset();
    m_store = std::make_unique<SettingsStore>(m_folder.Path() + "settings/");
    m_state = std::make_unique<AppState>(
        AppState{.store = *m_store, .ui = ui, .programFolder = ProgramFolder(), .codePage = CodePage()});
    m_state->texts.PageCharset = "windows-1252";
    m_state->texts.PageLanguage = "en-us";
    ModGlob& glob = m_state->glob;
    SetInstallation(glob, m_library.Path(), m_library.Path() + "Modules/", "Sysdefs");
    EXPECT_EQ(PopulateCombos(1, "BOOKS.TXT", glob, m_state->codePage, ui), Outcome::kDone);
    EXPECT_EQ(LoadVerseCount(glob, IndexFile(glob, m_state->codePage, "SMALL"), ui), Outcome::kDone);
    m_state->options.txtBibleSel = "Small Bible";
    m_state->options.txthttpRoot = "index.html";
    m_state->startBookText = glob.cboStartBook.front();
  }

  // Compiles with the options as they stand. Gives a page's text.
  std::string Compiled(const std::string& page) {
    CompileRequest request;
    request.options = m_state->options;
    request.texts = m_state->texts;
    request.txtOutputPath = m_folder.Path() + "site/";
    request.txtFilename = VerseFile(m_state->glob, m_state->codePage, "SMALL");
    request.cboLang = "BOOKS.TXT";
    request.cboBibleName = 0;
    request.programFolder = ProgramFolder();
    request.makeOutputFolder = true;
    EXPECT_EQ(cmdCompile_Click(request, m_state->glob, ui), CompileOutcome::kDone);
    return m_folder.Read("site/" + page);
  }

  // Makes every later saving of settings fail: their folder's name is taken by a file.
  void BlockSettings() {
    std::filesystem::remove_all(m_folder.Path() + "settings");
    m_folder.Write("settings", "");
  }

  // The stored text of a key; "<missing>" when there is none.
  std::string Stored(const std::string& key) const {
    return SettingsStore(m_folder.Path() + "settings/").GetSetting("Folionet", "Keys", key, "<missing>");
  }

  std::string ProgramFolder() const { return m_folder.Path() + "program/"; }
  AppState& State() { return *m_state; }
  const test::TemporaryFolder& Folder() const { return m_folder; }

  ScriptedUi ui;

 private:
  test::TemporaryFolder m_folder;
  SmallLibrary m_library;
  std::unique_ptr<SettingsStore> m_store;
  std::unique_ptr<AppState> m_state;
};

// The control of that name; the test fails when the form has none of this type.
template <typename Control>
Control& Find(const QWidget& form, const std::string& name) {
  auto* control = form.findChild<Control*>(QString::fromStdString(name));
  if (control == nullptr) throw std::runtime_error("no control " + name);
  return *control;
}

inline void Click(const QWidget& form, const std::string& name) { Find<QAbstractButton>(form, name).click(); }

}  // namespace folionet
