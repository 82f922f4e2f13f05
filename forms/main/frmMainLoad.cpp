#include <string>

#include "BuildInfo.h"
#include "ChapterIndex.h"
#include "FolderPickers.h"
#include "LibraryLists.h"
#include "PageEncoding.h"
#include "QtText.h"
#include "RunTimeError.h"
#include "StyleOptions.h"
#include "frmMain.h"
#include "ui_frmMain.h"

namespace folionet {
namespace {

QString Caption() {
  return QStringLiteral("Versalia HTML Bible Compiler Ver %1.%2.%3")
      .arg(kVersionMajor)
      .arg(kVersionMinor)
      .arg(kVersionRevision);
}

}  // namespace

bool frmMain::LoadForm() {
  m_startFailed = false;
  try {
    LoadFirstOptions();
    const bool goesOn = LoadLibrary() && LoadOptions() && LoadLooks();
    if (!goesOn) End();
    return goesOn;
  } catch (const RunTimeError& error) {
    std::string extra = FromQt(m_ui->txtFilename->text());
    if (!extra.empty()) extra += "\r\n";
    m_startFailed = true;
    ReadForSaveDefaults(m_state.store, m_state.options, m_state.main);
    m_state.ui.ShowErrorReport(error.Number(), "Form Load - MAIN", extra + error.Extra());
    return true;
  }
}

// After a start that stopped at a bad setting a compile is refused for the same setting, as on the command line: pages
// with other options than those stored would be made without a word.
bool frmMain::AreSettingsSound() {
  try {
    MainOptions main;
    LoadPageOptions(m_state.store, main);
    ReadEncoding();
    m_dialogs.LoadMissing();
    return true;
  } catch (const RunTimeError& error) {
    m_state.ui.ShowErrorReport(error.Number(), "Form Load - MAIN", error.Extra());
    return false;
  }
}

void frmMain::LoadFirstOptions() {
  PageOptions& options = m_state.options;
  setWindowTitle(Caption());
  options.chkBack = m_state.store.Flag("chkBack");
  m_ui->chkBack->setChecked(options.chkBack);
  m_ui->cmdBackColour->setEnabled(!options.chkBack);
  m_ui->chkBack->setEnabled(!options.chkBack);
  options.chkUseNames = m_state.store.Flag("chkUseNames");
  m_ui->chkUseNames->setChecked(options.chkUseNames);
  m_ui->chkUse83->setChecked(m_state.store.Flag("Use83"));
}

bool frmMain::LoadLibrary() {
  // Names and files are read in it long before the charset is shown and a bad one reported.
  m_state.codePage = StoredCodePage(m_state.store);
  return m_lists->Fill() != Outcome::kEndProgram;
}

// The dialogs' own options and the chapters of the first translation.
bool frmMain::LoadOptions() {
  m_style->LoadAlignment();
  m_ui->chkDoubleSpace->setChecked(m_state.store.Flag("chkDoubleSpace"));
  m_folders->Restore();
  m_dialogs.Load<frmCustomHeader>();
  m_dialogs.Load<frmCustomizeFooter>();
  m_dialogs.Load<frmBackground>();
  if (m_lists->SelectFirst() == Outcome::kEndProgram) return false;
  m_dialogs.Load<frmPAgeTitles>();
  m_dialogs.Load<frmEffects>();
  m_dialogs.Load<frmKeywords>();
  return m_lists->LoadVerses() != Outcome::kEndProgram;
}

bool frmMain::LoadLooks() {
  PageOptions& options = m_state.options;
  m_style->GetDefaults();
  ReadEncoding();
  m_dialogs.Load<frmLinkToMAin>();
  options.txtSample.FontBold = m_state.store.Boolean("FontBold");
  options.txtSample.FontItalic = m_state.store.Boolean("FontItalic");
  m_style->ShowSample();
  options.chkCSS = m_state.store.Flag("chkCSS");
  m_ui->chkCSS->setChecked(options.chkCSS);
  m_style->EnableDisableOptions();
  return true;
}

void frmMain::ReadEncoding() {
  PageEncoding encoding;
  LoadPageEncoding(m_state.store, encoding, m_state.ui);
  m_state.texts.PageCharset = encoding.PageCharset;
  m_state.texts.PageLanguage = encoding.PageLanguage;
  m_state.codePage = CodePage(encoding.PageCharset);
}

}  // namespace folionet
