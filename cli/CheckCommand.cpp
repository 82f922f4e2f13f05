#include "CheckCommand.h"

#include <cstdio>

#include "CatalogueCheck.h"
#include "FaultList.h"
#include "TextCheck.h"
#include "TitlesCheck.h"

namespace folionet {

ExitStatus RunCheck(const CommonOptions& common, const std::string& translation,
                    const std::vector<std::string>& settings) {
  Session session(common);
  session.Override(settings);
  session.LoadCodePage();
  FaultList faults(session.codePage);
  CheckCatalogue(session.glob, faults);
  CheckTitles(session.glob, session.store.Text("cboLang"), faults);

  const std::size_t count = session.glob.cboBibleName.size();
  std::size_t first = 0;
  std::size_t end = count;
  if (!translation.empty()) {
    first = session.FindTranslation(translation);
    end = first + 1;
  }
  for (std::size_t place = first; place < end; ++place) {
    CheckText(session.glob, session.glob.BibleFiles[place], faults);
  }
  faults.PrintCount();
  if (faults.Count() == 0) return kExitDone;
  std::fflush(stdout);
  std::fputs(count == 0 ? "Give Versalia's folders with --versalia-path FOLDER and --module-path FOLDER, or install a "
                          "translation in Versalia.\n"
                        : "Correct these places, or let Versalia install the translation anew, and check again.\n",
             stderr);
  return kExitRefused;
}

}  // namespace folionet
