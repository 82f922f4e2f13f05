#include "ListCommand.h"

#include <cstdio>

#include "BookTitles.h"
#include "OptionTable.h"
#include "Paths.h"

namespace folionet {
namespace {

void PrintLine(const std::string& line) { std::puts(line.c_str()); }

void ListTranslations(const CommonOptions& common, const Session& session) {
  const ModGlob& glob = session.glob;
  if (glob.cboBibleName.empty()) {
    std::fputs("Give the folder that holds Bible with --module-path FOLDER, or see \"folionet-cli check\".\n", stderr);
    if (!FolderExists(glob.ModulesPath)) throw ExitWith(common.folders.modulePath.empty() ? kExitFailed : kExitUsage);
  }
  for (std::size_t i = 0; i < glob.cboBibleName.size(); ++i) {
    PrintLine(session.codePage.DecodeForDisplay(glob.BibleFiles[i]) + "\t" +
              session.codePage.DecodeForDisplay(glob.BibleNames[i]));
  }
}

void ListBooks(const Session& session) {
  int number = 0;
  for (const std::string& title : session.glob.cboStartBook) {
    PrintLine(std::to_string(++number) + "\t" + session.codePage.DecodeForDisplay(title));
  }
}

}  // namespace

ExitStatus RunList(const CommonOptions& common, const std::string& subject) {
  Session session(common);
  if (subject == "settings") {
    for (const Option& option : OptionTable()) {
      PrintLine(std::string(option.key) + "=" + session.store.Text(option.key));
    }
    return kExitDone;
  }
  if (subject == "languages") {
    if (GetLang(session.glob, session.ui) != Outcome::kDone) return kExitFailed;
    for (const std::string& name : session.glob.cboLang) PrintLine(name);
    return kExitDone;
  }
  session.LoadCodePage();
  session.LoadLists(subject == "translations");
  if (subject == "translations") ListTranslations(common, session);
  if (subject == "books") ListBooks(session);
  return kExitDone;
}

}  // namespace folionet
