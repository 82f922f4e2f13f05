#include "ListCommand.h"

#include <algorithm>
#include <iterator>

#include "BookTitles.h"
#include "ChosenText.h"
#include "CommandEnd.h"
#include "EncodingLists.h"
#include "OptionTable.h"
#include "OwnCharset.h"
#include "PageEncoding.h"
#include "Paths.h"
#include "ProgramFolder.h"
#include "TranslationNames.h"

namespace folionet {
namespace {

// The status that the command ends with: a list that lacks a translation is told to scripts.
ExitStatus ListTranslations(const Session& session) {
  const ModGlob& glob = session.glob;
  if (glob.cboBibleName.empty()) {
    session.ui.Tell("Give the folder that holds Bible with --module-path FOLDER, or see \"folionet-cli check\".");
    if (!FolderExists(glob.ModulesPath)) throw ExitWith(kExitFailed);
  }
  for (std::size_t i = 0; i < glob.cboBibleName.size(); ++i) {
    session.ui.Print({ShownStem(glob.BibleFiles[i], session.codePage), ShownName(glob, i, session.codePage)});
  }
  return glob.unreadableTexts.empty() ? kExitDone : kExitFailed;
}

ExitStatus ListBooks(Session& session) {
  const ModGlob& glob = session.glob;
  for (std::size_t i = 0; i < glob.cboStartBook.size(); ++i) {
    session.ui.Print({std::to_string(i + 1), session.codePage.DecodeForDisplay(glob.cboStartBook[i]),
                      session.codePage.DecodeForDisplay(glob.BookCodes[i + 1])});
  }
  return kExitDone;
}

// The plain file, which needs no other beside it, comes first.
ExitStatus ListLanguages(Session& session) {
  const std::string plain(FindOption("cboLang")->defaultText);
  const bool hasPlain = FileExists(SysdefsFile(session.glob, plain));
  if (hasPlain) session.ui.Print(plain);
  if (hasPlain && LanguageFiles(session.glob).empty()) return kExitDone;
  if (GetLang(session.glob, session.ui) != Outcome::kDone) return kExitFailed;
  for (const std::string& name : session.glob.cboLang) session.ui.Print(name);
  return kExitDone;
}

ExitStatus ListEncodings(const Session& session, std::string_view name) {
  const EncodingList list =
      ReadEncodingList(OwnFolderOfRun(session.store, ProgramFolderToRead(session.chosenProgramFolder)), name);
  if (list.failure) throw RunTimeError(*list.failure);
  for (const std::string& entry : list.entries) session.ui.Print(entry);
  return kExitDone;
}

// A setting as a compile of the first translation finds it.
std::string SettingOf(const Session& session, std::string_view key) {
  if (key == "cboLang") return BookTitlesFile(session.store, session.glob);
  const std::string code = CodeOfText(session.glob.Imported, session.store, key);
  return code.empty() ? session.store.Text(key) : code + " (of the text)";
}

ExitStatus ListSettings(Session& session) {
  session.ChooseFirst();
  for (const Option& option : OptionTable()) {
    session.ui.Print(std::string(option.key) + "=" + SettingOf(session, option.key));
  }
  return kExitDone;
}

}  // namespace

bool IsListSubject(std::string_view subject) {
  constexpr std::string_view kSubjects[] = {"translations", "languages", "books", "charsets", "codes", "settings"};
  return std::find(std::begin(kSubjects), std::end(kSubjects), subject) != std::end(kSubjects);
}

ExitStatus RunList(const CommonOptions& common, const std::string& subject, ConsoleUi& ui) {
  Session session(common, ui);
  if (subject == "settings") return ListSettings(session);
  if (subject == "languages") return ListLanguages(session);
  if (subject == "books") session.ChooseFirst();
  session.LoadCodePage();
  if (subject == "charsets") return ListEncodings(session, kCharsetList);
  if (subject == "codes") return ListEncodings(session, kLanguageList);
  if (subject == "books") {
    session.LoadBookTitles();
    return ListBooks(session);
  }
  session.LoadLists();
  return ListTranslations(session);
}

}  // namespace folionet
