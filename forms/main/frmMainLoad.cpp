#include <string>

#include "BuildInfo.h"
#include "EncodingInUse.h"
#include "FactLines.h"
#include "FolderPickers.h"
#include "LibraryLists.h"
#include "OptionLoading.h"
#include "OwnCharset.h"
#include "QtText.h"
#include "RunTimeError.h"
#include "SiteMenu.h"
#include "SiteSettings.h"
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
  m_ui->txthttpRoot->setText(ToQt(m_state.store.SiteText(kSiteIndexAddress)));
  const bool goesOn = GoOnWithStart();
  // What is still to be said, when the rest is as it was.
  if (!m_state.glob.OutputFolder.empty()) m_ui->txthttpRoot->setFocus();
  return goesOn;
}

// Takes the steps that are to be taken. What a person has set since the start stopped is not read over. False when the
// program must end.
bool frmMain::GoOnWithStart() {
  if (m_hasStopped) m_state.store.ReadAnew();  // an editor may have mended what stopped it
  const bool goesOn = TakeSteps();
  m_state.options.areKept = m_nextStep < StartSteps().size();
  if (!m_state.options.areKept && goesOn) m_sites->NoteChoices(Gather());
  m_facts->Show();
  return goesOn;
}

// A failure that was told is not told again.
bool frmMain::TakeSteps() {
  const auto steps = StartSteps();
  try {
    for (; m_nextStep < steps.size(); ++m_nextStep) {
      if (!steps[m_nextStep]()) {
        TakeWayOut();
        if (!m_hasEnded) End();
        return false;
      }
    }
  } catch (const RunTimeError& error) {
    if (m_startFailure && IsSameFailure(*m_startFailure, error)) return true;
    if (!m_hasStopped) LoadMissingOptions(m_state.store, m_state.options);
    m_hasStopped = true;
    m_startFailure = error;
    std::string extra = FromQt(m_ui->txtFilename->text());
    if (!extra.empty()) extra += "\r\n";
    m_state.ui.ShowErrorReport({Procedure::kFormLoad, error, extra});
  }
  return true;
}

// Goes on with a start-up that was stopped. Whether it is complete now.
bool frmMain::IsStarted() {
  const std::size_t last = StartSteps().size();
  if (m_nextStep < last && !m_hasEnded) GoOnWithStart();
  return m_nextStep == last && !m_hasEnded;
}

// As IsStarted, and what stopped the start-up is told again.
bool frmMain::TellAndGoOn() {
  m_startFailure.reset();
  return IsStarted();
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
  const auto load = [&options, &store](std::string_view key) { LoadOption(store, *FindOption(key), options); };
  return {
      plain([this, load, &options] {
        load("chkBack");
        m_ui->chkBack->setChecked(options.chkBack);
        m_ui->cmdBackColour->setEnabled(!options.chkBack);
        m_ui->chkBack->setEnabled(!options.chkBack);
      }),
      plain([this, load, &options] {
        load("chkUseNames");
        m_ui->chkUseNames->setChecked(options.chkUseNames);
      }),
      plain([this, load, &options] {
        load("Use83");
        m_ui->chkUse83->setChecked(options.chkUse83);
      }),
      [this, &store] {
        // Names and files are read in it long before the charset is shown and a bad one reported.
        if (m_state.texts.PageCharset.empty()) m_state.codePage = StoredCodePage(store);
        return m_lists->Fill() != Outcome::kEndProgram;
      },
      plain([this] { m_style->LoadAlignment(); }),
      plain([this, load, &options] {
        load("chkDoubleSpace");
        m_ui->chkDoubleSpace->setChecked(options.chkDoubleSpace);
      }),
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
      plain([this] {
        if (HasEncoding(m_state.texts)) return;
        UseEncoding(m_state, ReadEncoding(m_state));
        if (m_state.glob.Imported.IsThere()) m_lists->ShowNames();
      }),
      plain([this] { m_dialogs.Load<frmLinkToMAin>(); }),
      plain([this, &options, &store] {
        LoadOptions(store, OptionPart::kLooks, options);
        m_style->ShowSample();
        m_ui->chkCSS->setChecked(options.chkCSS);
        m_style->EnableDisableOptions();
      }),
  };
}

}  // namespace folionet
