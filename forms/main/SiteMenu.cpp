#include "SiteMenu.h"

#include <QAction>
#include <QDir>
#include <QFileInfo>
#include <QPushButton>
#include <utility>

#include "BuildInfo.h"
#include "QtText.h"
#include "RunTimeError.h"
#include "TranslationNames.h"

namespace folionet {
namespace {

constexpr char kFilter[] = "Folionet|*.folionet";

QString Shown(QString text) { return text.replace(QLatin1Char('&'), QStringLiteral("&&")); }

}  // namespace

SiteMenu::SiteMenu(AppState& state, QPushButton& button, FormMemory& memory, Gather gather)
    : QObject(&button), m_state(state), m_button(button), m_memory(memory), m_gather(std::move(gather)) {
  const auto action = [this](const char* name, const QString& text, void (SiteMenu::*act)()) {
    auto* made = new QAction(text, this);
    made->setObjectName(QLatin1String(name));
    connect(made, &QAction::triggered, this, act);
    return made;
  };
  m_open = action("actOpenSite", tr("&Open a site..."), &SiteMenu::OpenAnother);
  m_saveAs = action("actSaveSite", tr("&Save as a site..."), &SiteMenu::SaveAs);
  m_close = action("actCloseSite", tr("&Back to my own settings"), &SiteMenu::Close);
  m_button.setMenu(&m_menu);
  connect(&m_menu, &QMenu::aboutToShow, this, &SiteMenu::FillMenu);
  ShowName();
}

void SiteMenu::ShowName() {
  const QString path = ToQt(m_state.store.SitePath());
  constexpr int kShownLetters = 16;
  const QString name = QFileInfo(path).completeBaseName();
  const int room = m_button.fontMetrics().averageCharWidth() * kShownLetters;
  const QString caption = path.isEmpty() ? tr("Sites") : m_button.fontMetrics().elidedText(name, Qt::ElideRight, room);
  m_button.setText(Shown(caption));
  m_button.setAccessibleDescription(path);
  m_button.setToolTip(path.isEmpty() ? tr("Sites that have settings of their own, each in a file.")
                                     : tr("The settings of this site are in %1.").arg(path));
  m_close->setEnabled(!path.isEmpty());
}

void SiteMenu::FillMenu() {
  m_menu.clear();
  for (const QString& path : m_memory.Recent(FormMemory::kSites)) {
    QAction* site = m_menu.addAction(
        Shown(QFileInfo(path).completeBaseName() + QStringLiteral(" \u2014 ") + QFileInfo(path).absolutePath()));
    site->setCheckable(true);
    site->setChecked(FromQt(path) == m_state.store.SitePath());
    connect(site, &QAction::triggered, this, [this, path] { Open(FromQt(path)); });
  }
  m_menu.addSeparator();
  m_menu.addActions({m_open, m_saveAs, m_close});
}

void SiteMenu::OpenAnother() {
  const std::string start = FromQt(QDir::homePath()) + "/";
  const std::string& open = m_state.store.SitePath();
  const std::string chosen = m_state.ui.ChooseFile(kFilter, open.empty() ? start : open);
  if (chosen != start) Open(chosen);
}

void SiteMenu::Open(const std::string& path) {
  if (path == m_state.store.SitePath()) return;
  if (const auto why = WhyNoSite(path)) return TellNoSite(*why, m_state.ui);
  Leave(path);
}

void SiteMenu::Close() { Leave({}); }

// What stands in the form belongs to the site that is left.
void SiteMenu::Leave(const std::string& path) {
  if (!m_state.ui.AskYesNo(FromQt(tr("Another site")), "All settings will be saved.\r\nOK?") || !saveAll()) return;
  if (!path.empty()) m_memory.Add(FormMemory::kSites, ToQt(path));
  m_memory.Save();
  emit Chosen(path);
}

void SiteMenu::SaveAs() {
  const std::optional<CompileRequest> request = m_gather();
  if (!request) return;
  const std::string& open = m_state.store.SitePath();
  const std::string path =
      m_state.ui.ChooseFileToSave("Folionet", "folionet", open.empty() ? FromQt(QDir::homePath()) + "/" : open);
  if (path.empty()) return;
  SiteChoices choices = ChoicesOf(*request);
  choices.sitemap = request->sitemapAddress;
  choices.onlyChosen = request->onlyChosen;
  try {
    SaveSite(path, choices, m_state.options, m_state.store);
    m_state.store.UseSite(path);
  } catch (const RunTimeError& error) {
    m_state.ui.ShowErrorReport({Procedure::kSaveDefaults, error});
    return;
  }
  m_noted = ChoicesOf(*request);
  m_memory.Add(FormMemory::kSites, ToQt(m_state.store.SitePath()));
  m_memory.Save();
  ShowName();
}

SiteChoices SiteMenu::ChoicesOf(const CompileRequest& request) const {
  SiteChoices choices;
  if (request.cboBibleName >= 0) {
    choices.translation =
        ShownStem(m_state.glob.BibleFiles[static_cast<std::size_t>(request.cboBibleName)], m_state.codePage);
  }
  if (request.cboStartBook >= 0 && request.cboEndBook >= 0) {
    choices.books = std::to_string(request.cboStartBook + 1) + "-" + std::to_string(request.cboEndBook + 1);
  }
  if (request.options.txthttpRoot != PageOptions().txthttpRoot) choices.indexAddress = request.options.txthttpRoot;
  choices.bringsEncoding = m_state.glob.Imported.IsThere();
  return choices;
}

void SiteMenu::NoteChoices(const CompileRequest& request) {
  if (!m_noted) m_noted = ChoicesOf(request);
}

void SiteMenu::SaveChoices(const CompileRequest& request) {
  if (m_state.store.SitePath().empty() || !m_noted) return;
  const SiteChoices now = ChoicesOf(request);
  m_state.store.SaveTogether([&] {
    for (const auto& [key, choice] : {std::pair{kSiteTranslation, &SiteChoices::translation},
                                      {kSiteBooks, &SiteChoices::books},
                                      {kSiteIndexAddress, &SiteChoices::indexAddress}}) {
      if (now.*choice == *m_noted.*choice || (now.*choice).empty()) continue;
      m_state.store.SaveSetting(kApplicationTitle, kSiteSection, key, now.*choice);
    }
  });
  m_noted = now;
}

void TellNoSite(const Sentence& why, UserInterface& ui) {
  ui.ShowMessage({MessageIcon::kWarning, FromQt(SiteMenu::tr("Not a site")), FromQt(InDesktopLanguage(why))});
}

}  // namespace folionet
