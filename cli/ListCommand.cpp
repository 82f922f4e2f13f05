#include "ListCommand.h"

#include "BookTitles.h"
#include "OptionTable.h"
#include "Paths.h"

namespace folionet {
namespace {

// The status that the command ends with: a list that lacks a translation is told to scripts.
ExitStatus ListTranslations(const CommonOptions& common, const Session& session) {
  const ModGlob& glob = session.glob;
  if (glob.cboBibleName.empty()) {
    session.ui.Tell("Give the folder that holds Bible with --module-path FOLDER, or see \"folionet-cli check\".");
    if (!FolderExists(glob.ModulesPath)) throw ExitWith(common.folders.modulePath.empty() ? kExitFailed : kExitUsage);
  }
  for (std::size_t i = 0; i < glob.cboBibleName.size(); ++i) {
    session.ui.Print(session.codePage.DecodeForDisplay(glob.BibleFiles[i]),
                     session.codePage.DecodeForDisplay(glob.BibleNames[i]));
  }
  return glob.unreadableTexts.empty() ? kExitDone : kExitFailed;
}

void ListBooks(const Session& session) {
  int number = 0;
  for (const std::string& title : session.glob.cboStartBook) {
    session.ui.Print(std::to_string(++number), session.codePage.DecodeForDisplay(title));
  }
}

}  // namespace

ExitStatus RunList(const CommonOptions& common, const std::string& subject, ConsoleUi& ui) {
  Session session(common, ui);
  if (subject == "settings") {
    for (const Option& option : OptionTable()) {
      ui.Print(std::string(option.key) + "=" + session.store.Text(option.key));
    }
    return kExitDone;
  }
  if (subject == "languages") {
    if (GetLang(session.glob, session.ui) != Outcome::kDone) return kExitFailed;
    for (const std::string& name : session.glob.cboLang) ui.Print(name);
    return kExitDone;
  }
  session.LoadCodePage();
  session.LoadLists(subject == "translations");
  if (subject == "translations") return ListTranslations(common, session);
  ListBooks(session);
  return kExitDone;
}

}  // namespace folionet
