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
  setWindowTitle(Caption());
  m_folders->ListVolumes();
  return GoOnWithStart();
}

// A failure that was told is not told again. False when the program must end.
bool frmMain::GoOnWithStart() {
  const auto steps = StartSteps();
  try {
    for (; m_nextStep < steps.size(); ++m_nextStep) {
      if (!steps[m_nextStep]()) {
        End();
        return false;
      }
    }
  } catch (const RunTimeError& error) {
    if (m_startFailure == error.Extra()) return true;
    if (!m_hasStopped) ReadForSaveDefaults(m_state.store, m_state.options, m_state.main);
    m_hasStopped = true;
    m_startFailure = error.Extra();
    std::string extra = FromQt(m_ui->txtFilename->text());
    if (!extra.empty()) extra += "\r\n";
    m_state.ui.ShowErrorReport(error.Number(), "Form Load - MAIN", extra + error.Extra());
  }
  return true;
}

// Goes on with a start-up that was stopped. Whether it is complete now.
bool frmMain::IsStarted() {
  const std::size_t last = StartSteps().size();
  if (m_nextStep < last && !m_hasEnded) GoOnWithStart();
  return m_nextStep == last && !m_hasEnded;
}

// Each step reads one thing, shows it, and is taken again as a whole after a failure. False when the program must end.
std::vector<std::function<bool()>> frmMain::StartSteps() {
  const auto plain = [](auto act) {
    return [act] {
      act();
      return true;
    };
  };
  PageOptions& options = m_state.options;
  const SettingsStore& store = m_state.store;
  return {
      plain([this, &options, &store] {
        options.chkBack = store.Flag("chkBack");
        m_ui->chkBack->setChecked(options.chkBack);
        m_ui->cmdBackColour->setEnabled(!options.chkBack);
        m_ui->chkBack->setEnabled(!options.chkBack);
      }),
      plain([this, &options, &store] {
        options.chkUseNames = store.Flag("chkUseNames");
        m_ui->chkUseNames->setChecked(options.chkUseNames);
      }),
      plain([this, &store] { m_ui->chkUse83->setChecked(store.Flag("Use83")); }),
      [this, &store] {
        // Names and files are read in it long before the charset is shown and a bad one reported.
        m_state.codePage = StoredCodePage(store);
        return m_lists->Fill() != Outcome::kEndProgram;
      },
      plain([this] { m_style->LoadAlignment(); }),
      plain([this, &store] { m_ui->chkDoubleSpace->setChecked(store.Flag("chkDoubleSpace")); }),
      plain([this] { m_folders->Restore(); }),
      plain([this] { m_dialogs.Load<frmCustomHeader>(); }),
      plain([this] { m_dialogs.Load<frmCustomizeFooter>(); }),
      plain([this] { m_dialogs.Load<frmBackground>(); }),
      [this] { return m_lists->SelectFirst() != Outcome::kEndProgram; },
      plain([this] { m_dialogs.Load<frmPAgeTitles>(); }),
      plain([this] { m_dialogs.Load<frmEffects>(); }),
      plain([this] { m_dialogs.Load<frmKeywords>(); }),
      [this] { return m_lists->LoadVerses() != Outcome::kEndProgram; },
      plain([this] { m_style->GetDefaults(); }),
      plain([this] { ReadEncoding(); }),
      plain([this] { m_dialogs.Load<frmLinkToMAin>(); }),
      plain([&options, &store] { options.txtSample.FontBold = store.Boolean("FontBold"); }),
      plain([&options, &store] { options.txtSample.FontItalic = store.Boolean("FontItalic"); }),
      plain([this, &options, &store] {
        m_style->ShowSample();
        options.chkCSS = store.Flag("chkCSS");
        m_ui->chkCSS->setChecked(options.chkCSS);
        m_style->EnableDisableOptions();
      }),
  };
}

void frmMain::ReadEncoding() {
  PageEncoding encoding;
  LoadPageEncoding(m_state.store, encoding, m_state.ui);
  m_state.texts.PageCharset = encoding.PageCharset;
  m_state.texts.PageLanguage = encoding.PageLanguage;
  m_state.codePage = CodePage(encoding.PageCharset);
}

}  // namespace folionet
