#pragma once

#include <QMenu>
#include <QObject>
#include <functional>
#include <optional>
#include <string>

#include "AppState.h"
#include "CompileRequest.h"
#include "FormMemory.h"
#include "Sentence.h"
#include "SiteSettings.h"

class QPushButton;

namespace folionet {

// The menu of the sites that have files of their own: opens one, makes one of what the form holds, goes back to the
// person's own settings. Its button bears the name of the site that is open.
class SiteMenu : public QObject {
  Q_OBJECT

 public:
  // `gather` gives what would be compiled now; nothing when that cannot be told, which it has said.
  using Gather = std::function<std::optional<CompileRequest>()>;
  SiteMenu(AppState& state, QPushButton& button, FormMemory& memory, Gather gather);

  // Whether all that the form holds was saved in the site that is open, or in the person's own settings. A failure is
  // told.
  std::function<bool()> saveAll;

  // Takes what a start shows of the site's choices: what a person does not change stays as the file has it.
  void NoteChoices(const CompileRequest& request);

  // Adds the choices that were changed since to what is saved.
  void SaveChoices(const CompileRequest& request);

 signals:
  // The form must end now, and start again with this site's file; empty for the person's own settings.
  void Chosen(const std::string& path);

 private:
  void FillMenu();
  void ShowName();
  void OpenAnother();
  void Open(const std::string& path);
  void Close();
  void SaveAs();
  void Leave(const std::string& path);
  SiteChoices ChoicesOf(const CompileRequest& request) const;

  AppState& m_state;
  QPushButton& m_button;
  FormMemory& m_memory;
  Gather m_gather;
  QMenu m_menu;
  QAction* m_open;
  QAction* m_saveAs;
  QAction* m_close;
  std::optional<SiteChoices> m_noted;
};

// Tells why a file is none of a site.
void TellNoSite(const Sentence& why, UserInterface& ui);

}  // namespace folionet
